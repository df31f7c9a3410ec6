// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "Typesetter.h"

#include <algorithm>

namespace {

// The library draws plain text of this size at the loaded size, from prepared glyphs.
constexpr unsigned int standardFontSize = 40;

// Fractions of the text size that suit most fonts.
constexpr double spaceWidth = 0.32;
constexpr double capitalHeight = 0.73;

} // namespace

Typesetter::Typesetter(Canvas& target, int pixels) : canvas(target), standardPixels(pixels) {}

// For plain text of the loaded size, pass the standard size, which is the fastest. If the font was
// loaded at another size than 40, plain text of 40 pixels is not available, and 41 is the nearest size.
TextStyle Typesetter::ToStyle(const Type& type) const {
    const bool isPlain = !type.bold && !type.italic;
    if (isPlain && type.pixels == standardPixels) {
        return {type.color, standardFontSize, false, false};
    }
    unsigned int size = static_cast<unsigned int>(std::max(type.pixels, 1));
    if (isPlain && size == standardFontSize) {
        ++size;
    }
    return {type.color, size, type.bold, type.italic};
}

// The library measures at the loaded size; other sizes are in proportion.
int Typesetter::MeasureWord(std::u16string_view word, const Type& type) {
    const double width = canvas.MeasureText(word);
    return Round(width * type.pixels / standardPixels);
}

// A space has no width when drawn, so each word is placed separately.
Line Typesetter::Arrange(std::u16string_view text, const Type& type) {
    const int space = Round(type.pixels * spaceWidth);
    Line line{{}, 0};
    int pen = 0;
    while (!text.empty()) {
        const size_t length = std::min(text.find(u' '), text.size());
        if (length > 0) {
            const std::u16string_view word = text.substr(0, length);
            line.words.push_back({word, pen});
            pen += MeasureWord(word, type);
            line.width = pen;
        }
        pen += space;
        text.remove_prefix(std::min(length + 1, text.size()));
    }
    return line;
}

void Typesetter::Draw(unsigned int buffer, const Line& line, const Type& type, int x,
                      int baseline) {
    const TextStyle style = ToStyle(type);
    for (const Line::Word& word : line.words) {
        canvas.DrawText(buffer, word.text, style, x + word.x, baseline);
    }
}

void Typesetter::DrawOutlined(unsigned int buffer, const Line& line, const Type& type,
                              const Color& outline, int thickness, int x, int baseline) {
    // The diagonal steps are shorter, so that the outline is as thick at corners as at edges.
    const int diagonal = std::max(1, thickness * 3 / 4);
    const int offsets[][2] = {{-thickness, 0},       {thickness, 0},         {0, -thickness},
                              {0, thickness},        {-diagonal, -diagonal}, {diagonal, -diagonal},
                              {-diagonal, diagonal}, {diagonal, diagonal}};
    Type dark = type;
    dark.color = outline;
    for (const auto& offset : offsets) {
        Draw(buffer, line, dark, x + offset[0], baseline + offset[1]);
    }
    Draw(buffer, line, type, x, baseline);
}

int Typesetter::Write(unsigned int buffer, std::u16string_view text, const Type& type, int x,
                      int baseline, Align align) {
    const Line line = Arrange(text, type);
    const int shift = align == Align::Left     ? 0
                      : align == Align::Centre ? line.width / 2
                                               : line.width;
    Draw(buffer, line, type, x - shift, baseline);
    return line.width;
}

int Typesetter::CenterBaseline(int top, int height, int pixels) {
    return top + Round((height + pixels * capitalHeight) / 2);
}

// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Lays out lines of text: words, spaces, alignment and sizes.
#ifndef OSD_TYPESETTER_H
#define OSD_TYPESETTER_H

#include "Canvas.h"

#include <string>
#include <string_view>
#include <vector>

/// The look of a text, in window pixels.
struct Type {
    int pixels;
    Color color;
    bool bold = false;
    bool italic = false;
};

/// Only for ASCII.
inline std::u16string Widen(const std::string& text) {
    return {text.begin(), text.end()};
}

enum class Align { Left, Centre, Right };

/// A line split into words with their positions. Refers to the original text.
struct Line {
    struct Word {
        std::u16string_view text;
        int x;
    };
    std::vector<Word> words;
    int width;
};

class Typesetter {
public:
    /// @param standardPixels the loaded font size
    Typesetter(Canvas& canvas, int standardPixels);

    Line Arrange(std::u16string_view text, const Type& type);

    void Draw(unsigned int buffer, const Line& line, const Type& type, int x, int baseline);
    /// Draws the line in `type` with an outline, so that it is readable over any picture.
    void DrawOutlined(unsigned int buffer, const Line& line, const Type& type, const Color& outline,
                      int thickness, int x, int baseline);

    /// Draws a text that starts, ends or is centred at x. Returns its width.
    int Write(unsigned int buffer, std::u16string_view text, const Type& type, int x, int baseline,
              Align align = Align::Left);

    /// The baseline that centres capital letters between `top` and `top + height`.
    static int CenterBaseline(int top, int height, int pixels);

private:
    int MeasureWord(std::u16string_view word, const Type& type);
    TextStyle ToStyle(const Type& type) const;

    Canvas& canvas;
    int standardPixels;
};

#endif

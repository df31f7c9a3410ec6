// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Subtitles on a transparent window: outlined, centred, faded in and out.
//
//   subtitles                           until a key is pressed
//   subtitles --out FILE.png            saves what the window shows after one second, and exits
//   subtitles --out FILE.png --at 250   saves the middle of the fade
//
// Only text is blended, so its alpha makes the fade. Because the buffer starts transparent black:
//  - Colours are multiplied by alpha, as compositors expect. ZoBlit copies them to the window
//    unchanged, while ZoDisplayFBO would multiply them again.
//  - Text over text of the same alpha keeps that alpha, so the alpha of an outline's overlapping copies
//    does not add up. Their colours would add up, so the outline is black.

#include "common/XWindow.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr unsigned int width = 640;
constexpr unsigned int height = 360;
constexpr unsigned int textSize = 36;
constexpr unsigned int spaceWidth = textSize / 3;
constexpr unsigned int baselines[] = {268, 316};
constexpr std::u16string_view lines[] = {u"The ferry is late again.", u"Time enough for the tide."};
constexpr tagZoColorRGBA white = {250, 246, 236, 255};

// Calls place(word, x) for each word of a line and returns the line's width. Words are placed one by
// one because a space has no width when drawn, and counts as 30 pixels when measured.
template <typename Place>
unsigned int LayOut(ZoGLDrawSurface& surface, std::u16string_view line, Place place) {
    unsigned int pen = 0;
    while (!line.empty()) {
        const tagZoTextInfo word = ToText(line.substr(0, line.find(u' ')), white);
        place(word, pen);
        unsigned int wordWidth = 0;
        unsigned int unused = 0;
        Check("measuring", surface.ZoGetTextSize(&word, &wordWidth, &unused));
        pen += wordWidth + spaceWidth;
        line.remove_prefix(std::min(size_t{word.length} + 1, line.size()));
    }
    return pen > 0 ? pen - spaceWidth : 0;
}

// The outline is the word in black, shifted to all sides. The word is drawn over it.
void DrawOutlined(ZoGLDrawSurface& surface, unsigned int frame, tagZoTextInfo word, unsigned int x,
                  unsigned int y, unsigned char alpha) {
    const tagZoRectInfo pens[] = {{x - 2, y, 0, 0},     {x + 2, y, 0, 0},     {x, y - 2, 0, 0},
                                  {x, y + 2, 0, 0},     {x - 1, y - 1, 0, 0}, {x + 1, y - 1, 0, 0},
                                  {x - 1, y + 1, 0, 0}, {x + 1, y + 1, 0, 0}, {x, y, 0, 0}};
    for (const tagZoRectInfo& pen : pens) {
        const bool isOnTop = &pen == std::end(pens) - 1;
        word.color = isOnTop ? white : tagZoColorRGBA{0, 0, 0, 255};
        word.color.a = alpha;
        Check("text", surface.ZoDrawText(frame, &word, &pen));
    }
}

// Draws the subtitles at a strength from 0, invisible, to 100.
void Draw(ZoGLDrawSurface& surface, unsigned int frame, unsigned int strength) {
    const tagZoRectInfo all = {0, 0, width, height};
    const tagZoColorRGBA nothing = {0, 0, 0, 0};
    Check("clearing", surface.ZoDrawRect(frame, &all, &nothing));
    const auto alpha = static_cast<unsigned char>(strength * 255 / 100);
    for (size_t i = 0; i < std::size(lines); ++i) {
        const unsigned int lineWidth = LayOut(surface, lines[i], [](auto&, unsigned) {});
        const unsigned int left = lineWidth + 4 < width ? (width - lineWidth) / 2 : 2;
        LayOut(surface, lines[i], [&](const tagZoTextInfo& word, unsigned int x) {
            DrawOutlined(surface, frame, word, left + x, baselines[i], alpha);
        });
    }
    const tagZoBlitInfo copy = {frame, ZO_WINDOW_HANDLE, all, all};
    Check("copy to the window", surface.ZoBlit(&copy));
}

// Fades in for half a second, stays for two seconds, fades out for half a second, pauses for as long.
unsigned int StrengthAt(unsigned int milliseconds) {
    const unsigned int time = milliseconds % 3500;
    return time < 500 ? time / 5 : time < 2500 ? 100 : time < 3000 ? (3000 - time) / 5 : 0;
}

} // namespace

int main(int argc, char* argv[]) {
    const Arguments arguments = ReadArguments(argc, argv, 1000);
    XWindow window(width, height, XWindow::Kind::Transparent);
    ZoGLDrawSurface surface;
    Check("binding", surface.ZoCreateGLWindowSurface(window.Show()));
    Check("font", surface.ZoLoadFont(fontFile, textSize));
    unsigned int frame = ZO_NO_HANDLE;
    Check("buffer", surface.ZoCreateGLFBO(&frame, width, height, ZO_FORMAT_RGBA8888));
    Animate(window, surface, arguments,
            [&](unsigned int milliseconds) { Draw(surface, frame, StrengthAt(milliseconds)); });
    return EXIT_SUCCESS;
}

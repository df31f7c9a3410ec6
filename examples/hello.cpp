// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Rectangles and a line of text.
//
//   hello                  shows the window until a key is pressed
//   hello --out FILE.png   saves what the window shows, and exits

#include "common/XWindow.h"

#include <cstdlib>

namespace {

constexpr unsigned int width = 640;
constexpr unsigned int height = 360;
constexpr unsigned int textSize = 40;

// Draws on the window itself. Later rectangles cover earlier ones.
void Fill(ZoGLDrawSurface& surface, const tagZoRectInfo& rect, const tagZoColorRGBA& color) {
    Check("rectangle", surface.ZoDrawRect(ZO_WINDOW_HANDLE, &rect, &color));
}

// Returns where the next word starts. Text is drawn word by word, because a space that is drawn does
// not move the text after it.
unsigned int DrawWord(ZoGLDrawSurface& surface, std::u16string_view word, unsigned int x,
                      unsigned int baseline) {
    constexpr unsigned int space = textSize / 3;
    const tagZoTextInfo text = ToText(word, {244, 246, 252, 255});
    const tagZoRectInfo pen = {x, baseline, 0, 0}; // letters stand on the baseline
    Check("text", surface.ZoDrawText(ZO_WINDOW_HANDLE, &text, &pen));

    unsigned int wordWidth = 0;
    unsigned int unused = 0; // the height is the same for every font
    Check("measuring", surface.ZoGetTextSize(&text, &wordWidth, &unused));
    return x + wordWidth + space;
}

// The pixels of a new frame are undefined, so each frame is drawn as a whole.
void Draw(ZoGLDrawSurface& surface) {
    Fill(surface, {0, 0, width, height}, {17, 23, 48, 255});
    Fill(surface, {136, 130, 368, 100}, {38, 46, 88, 255});
    Fill(surface, {136, 130, 8, 100}, {255, 200, 87, 255});
    const unsigned int next = DrawWord(surface, u"Hello,", 204, 194);
    DrawWord(surface, u"world", next, 194);
}

} // namespace

int main(int argc, char* argv[]) {
    const Arguments arguments = ReadArguments(argc, argv);
    XWindow window(width, height);
    ZoGLDrawSurface surface;
    Check("binding", surface.ZoCreateGLWindowSurface(window.Show()));
    Check("font", surface.ZoLoadFont(fontFile, textSize));
    if (arguments.out != nullptr) {
        Draw(surface);
        window.Save(surface, arguments.out);
        return EXIT_SUCCESS;
    }
    while (window.WaitForExpose()) {
        Draw(surface);
        Check("refresh", surface.ZoRefreshOnSrceen());
    }
    return EXIT_SUCCESS;
}

// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Two lines of a song over a picture: a second colour sweeps over each word while it is sung.
//
//   karaoke                  until a key is pressed
//   karaoke --out FILE.png   saves what the window shows, and exits
//
// The lines are drawn twice, into one buffer for each colour. A frame copies the first buffer and, of
// the second one, the part that has been sung. The edge of a copy may cut a letter in two.

#include "common/Picture.h"
#include "common/XWindow.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr tagZoRectInfo all = {0, 0, 640, 360};
constexpr tagZoRectInfo panel = {0, 224, 640, 136};
constexpr unsigned int lineHeight = 50;
constexpr unsigned int firstBaseline = 51;
constexpr unsigned int linesTop = 16;
constexpr unsigned int textSize = 32;
constexpr unsigned int spaceWidth = textSize / 3;
constexpr unsigned int lineCount = 2;
constexpr tagZoColorRGBA ground = {17, 23, 48, 255};
constexpr tagZoColorRGBA white = {244, 246, 252, 255};
constexpr tagZoColorRGBA amber = {255, 200, 87, 255};

struct Word {
    std::u16string_view text;
    unsigned int line;
    unsigned int start; // when the word is sung, in milliseconds
    unsigned int end;
    unsigned int x; // where it is on the panel, found by measuring
    unsigned int width;
};

struct Karaoke {
    ZoGLDrawSurface& surface;
    Word song[10] = {{u"Lanterns", 0, 500, 1400, 0, 0}, {u"drift", 0, 1400, 2000, 0, 0},
                     {u"across", 0, 2000, 2800, 0, 0},  {u"the", 0, 2800, 3100, 0, 0},
                     {u"bay,", 0, 3100, 4200, 0, 0},    {u"singing", 1, 4700, 5500, 0, 0},
                     {u"all", 1, 5500, 5900, 0, 0},     {u"the", 1, 5900, 6200, 0, 0},
                     {u"night", 1, 6200, 6900, 0, 0},   {u"away", 1, 6900, 8200, 0, 0}};

    // Measures all words, and centres each line.
    void LayOut() {
        for (unsigned int line = 0; line < lineCount; ++line) {
            unsigned int lineWidth = 0;
            for (Word& word : song) {
                if (word.line == line) {
                    const tagZoTextInfo text = ToText(word.text, white);
                    unsigned int unused = 0;
                    Check("measuring", surface.ZoGetTextSize(&text, &word.width, &unused));
                    word.x = lineWidth;
                    lineWidth += word.width + spaceWidth;
                }
            }
            for (Word& word : song) {
                word.x += word.line == line ? (panel.width - lineWidth + spaceWidth) / 2 : 0;
            }
        }
    }

    unsigned int DrawLines(const tagZoColorRGBA& color) {
        unsigned int buffer = ZO_NO_HANDLE;
        Check("buffer",
              surface.ZoCreateGLFBO(&buffer, panel.width, panel.height, ZO_FORMAT_RGBA8888));
        const tagZoRectInfo whole = {0, 0, panel.width, panel.height};
        Check("panel", surface.ZoDrawRect(buffer, &whole, &ground));
        for (const Word& word : song) {
            const tagZoTextInfo text = ToText(word.text, color);
            const tagZoRectInfo pen = {word.x, firstBaseline + word.line * lineHeight, 0, 0};
            Check("text", surface.ZoDrawText(buffer, &text, &pen));
        }
        return buffer;
    }

    // The width of a line's sung part, in pixels.
    unsigned int GetSweep(unsigned int line, unsigned int time) const {
        unsigned int sweep = 0;
        for (const Word& word : song) {
            if (word.line == line && time >= word.start) {
                const unsigned int sung = std::min(time, word.end) - word.start;
                sweep = word.x + word.width * sung / (word.end - word.start);
            }
        }
        return sweep;
    }

    void Copy(unsigned int buffer, const tagZoRectInfo& part) {
        tagZoBlitInfo copy = {buffer, ZO_WINDOW_HANDLE, part, part};
        copy.dstRect.y += panel.y;
        Check("copy to the window", surface.ZoBlit(&copy));
    }
};

// Drawn first, because a bitmap clears the window.
void ShowPicture(ZoGLDrawSurface& surface, const Picture& picture) {
    const tagZoBitmapInfo bitmap = {picture.rgba.data(), ZO_FORMAT_RGBA8888, 0,  0,
                                    picture.width,       picture.height,     all};
    Check("bitmap", surface.ZoDisplayBitmap(&bitmap));
}

} // namespace

int main(int argc, char* argv[]) {
    const Arguments arguments = ReadArguments(argc, argv, 2600);
    XWindow window(all.width, all.height);
    ZoGLDrawSurface surface;
    Check("binding", surface.ZoCreateGLWindowSurface(window.Show()));
    Check("font", surface.ZoLoadFont(fontFile, textSize));
    const Picture sky = ReadPng(EXAMPLES_FOLDER "/common/desktop.png");
    Karaoke karaoke = {surface};
    karaoke.LayOut();
    const unsigned int unsung = karaoke.DrawLines(white);
    const unsigned int sung = karaoke.DrawLines(amber);
    Animate(window, surface, arguments, [&](unsigned int milliseconds) {
        ShowPicture(surface, sky);
        karaoke.Copy(unsung, {0, 0, panel.width, panel.height});
        for (unsigned int line = 0; line < lineCount; ++line) {
            karaoke.Copy(sung, {0, linesTop + line * lineHeight,
                                karaoke.GetSweep(line, milliseconds % 9000), lineHeight});
        }
    });
    return EXIT_SUCCESS;
}

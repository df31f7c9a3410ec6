// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// The whole frame, described once for the library, the baseline and the peers: 60 filled rectangles,
/// 8 copies of 200x100 out of another buffer and 40 lines of 30 glyphs go into one composed buffer;
/// a 256x256 bitmap is uploaded and drawn on the window; the window is cleared and the buffer
/// presented on it with blending.
///
/// libzogles shows client bitmaps only on the window, and its presentation clears the window. All
/// others also draw the bitmap and clear it, so that work and picture are the same.
///
/// The rectangles are opaque and cover the buffer, because each library blends alpha differently and
/// the pictures would differ.
#ifndef ZOGLES_BENCH_FRAME_H
#define ZOGLES_BENCH_FRAME_H

#include "Driver.h"

#include <string>
#include <vector>

struct Tile {
    tagZoRectInfo area;
    tagZoColorRGBA color;
};

/// A region copied from the source buffer without scaling.
struct Copy {
    tagZoRectInfo src;
    tagZoRectInfo dst;
};

struct TextLine {
    std::string text;      ///< ASCII without spaces: libzogles draws nothing for a space
    unsigned int x;        ///< where the first glyph starts
    unsigned int baseline; ///< pixels from the top
    tagZoColorRGBA color;
};

/// A monospaced font, so that differences in kerning cannot shift glyphs.
constexpr char frameFontPath[] = "/usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf";
constexpr unsigned int fontSize = 40; ///< pixels to the em
constexpr char firstGlyph = '!';
constexpr char lastGlyph = '~';

constexpr tagZoRectInfo bitmapArea = {512, 232, 256, 256};
constexpr unsigned int sourceWidth = 400;
constexpr unsigned int sourceHeight = 200;

inline unsigned char ToByte(unsigned int value) {
    return static_cast<unsigned char>(value & 255);
}

struct Frame {
    std::vector<Tile> sourceTiles; ///< the contents of the source buffer
    std::vector<Tile> rectangles;
    std::vector<Copy> copies;
    std::vector<TextLine> lines;       ///< 20 rows in two columns, which overlap
    std::vector<unsigned char> bitmap; ///< opaque RGBA pixels

    Frame() {
        for (unsigned int i = 0; i < 32; ++i) {
            sourceTiles.push_back(
                {{i % 8 * 50, i / 8 * 50, 50, 50},
                 {ToByte(90 + i * 5), ToByte(170 - i * 5), ToByte(i % 2 * 80), 255}});
        }
        for (unsigned int i = 0; i < 60; ++i) {
            rectangles.push_back(
                {{i % 10 * 128, i / 10 * 120, 128, 120},
                 {ToByte(20 + i * 2), ToByte(30 + i % 10 * 9), ToByte(130 - i * 2), 255}});
        }
        for (unsigned int i = 0; i < 8; ++i) {
            copies.push_back({{i % 2 * 200, i / 2 % 2 * 100, 200, 100},
                              {60 + i % 4 * 310, 90 + i / 4 * 360, 200, 100}});
        }
        for (unsigned int i = 0; i < 40; ++i) {
            std::string text = "TextLine";
            while (text.size() < 30) {
                const size_t step = size_t{i} * 11 + text.size() * 7;
                text += static_cast<char>(firstGlyph + step % (lastGlyph - firstGlyph + 1));
            }
            lines.push_back({text,
                             i % 2 == 0 ? 10U : 550U,
                             32 + i / 2 * 36,
                             {255, 255, ToByte(i % 2 == 0 ? 255 : 120), 255}});
        }
        for (unsigned int i = 0; i < bitmapArea.width * bitmapArea.height; ++i) {
            const unsigned int x = i % bitmapArea.width;
            const unsigned int y = i / bitmapArea.width;
            bitmap.insert(bitmap.end(), {ToByte(x), ToByte(y), ToByte(x ^ y), 255});
        }
    }
};

#endif

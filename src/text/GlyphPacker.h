// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// Places glyphs in an atlas.
#ifndef ZOGLES_TEXT_GLYPHPACKER_H
#define ZOGLES_TEXT_GLYPHPACKER_H

#include <algorithm>

/// Packs cells into rows from left to right, in the order of the calls. The pass that sizes an
/// atlas and the pass that fills it place the same cells, so they agree.
///
/// Each cell is one pixel wider than its bitmap, so that the linear filter never mixes neighbouring
/// glyphs. A row is as tall as its tallest bitmap. A cell that would make the row 1,024 pixels wide
/// or wider starts a new row.
class GlyphPacker {
public:
    struct Position {
        unsigned int x;
        unsigned int y;
    };

    /// Places the next cell.
    /// @param width,height of the bitmap in pixels
    Position Place(unsigned int width, unsigned int height) {
        if (rowWidth + width + gap >= rowLimit) {
            widest = Width();
            rowTop += rowHeight;
            rowWidth = 0;
            rowHeight = 0;
        }
        const Position position = {rowWidth, rowTop};
        rowWidth += width + gap;
        rowHeight = std::max(rowHeight, height);
        return position;
    }

    /// Size of all cells placed so far, in pixels.
    unsigned int Width() const { return std::max(widest, rowWidth); }
    unsigned int Height() const { return rowTop + rowHeight; }

private:
    static constexpr unsigned int gap = 1;
    static constexpr unsigned int rowLimit = 1024;

    unsigned int widest = 0;
    unsigned int rowTop = 0;
    unsigned int rowWidth = 0;
    unsigned int rowHeight = 0;
};

#endif

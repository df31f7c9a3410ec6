// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// Places glyphs: converts their pixels to the quads that GL draws.
#ifndef ZOGLES_TEXT_PEN_H
#define ZOGLES_TEXT_PEN_H

#include "gl/Vertices.h"
#include "text/Glyph.h"

#include <cstring>

/// Whether a glyph's bitmap starts left of the pen and is wider than its advance. Such a glyph is
/// drawn starting at the pen and measured by its bitmap.
inline bool IsOverhanging(const tagGlyphInfo& glyph) {
    return glyph.bitmapLeft < 0.0f && glyph.advanceX > 0.0f && glyph.advanceX < glyph.bitmapWidth;
}

/// Whether a glyph has a visible shape. Spaces and absent units have none.
inline bool IsShown(const tagGlyphInfo& glyph) {
    return glyph.bitmapWidth * glyph.bitmapHeight > 0.0f;
}

/// Places glyphs side by side. Each step computes x, y, s and t at once; components that a step
/// does not change are multiplied or divided by 1, or have 0 added.
class Pen {
public:
    static constexpr size_t verticesPerGlyph = 6;

    /// @param start where the vertices of the first glyph go
    /// @param x,y where the first glyph starts: vertex space, y is the baseline
    /// @param scaleX,scaleY vertex space per pixel of the target
    /// @param texWidth,texHeight size of the atlas in texels
    Pen(Vertex* start, float x, float y, float scaleX, float scaleY, float texWidth,
        float texHeight)
        : vertices(start), position(Vertex{x, y, 0.0f, 0.0f}),
          advanceScale(Vertex{scaleX, scaleY, 0.0f, 0.0f}),
          bearingScale(Vertex{scaleX, scaleY, 1.0f, 1.0f}),
          extentScale(Vertex{scaleX, -scaleY, 1.0f, 1.0f}),
          extentDivisor(Vertex{1.0f, 1.0f, texWidth, texHeight}) {}

    /// Where the vertices of the next glyph go.
    Vertex* Vertices() const { return vertices; }

    /// Draws the units up to the first that the font cannot show. With the standard atlas, the loop
    /// makes no call and runs in registers.
    /// @param standard decides which units the font can show
    /// @param find returns the glyph to draw for a unit
    /// @return where it stopped
    template <typename Find>
    __attribute__((noinline)) const char16_t* DrawRun(const char16_t* text, const char16_t* end,
                                                      const GlyphMap::Units& standard, Find find) {
        const GlyphMap::Units units = standard;
        Vertex at = position;
        Vertex* next = vertices;
        for (; text != end && IsShown(units[*text]); ++text, next += verticesPerGlyph) {
            at = Draw(find(*text, units[*text]), at, next);
        }
        position = at;
        vertices = next;
        return text;
    }

private:
    // Writes a glyph's two triangles and returns where the next glyph starts.
    Vertex Draw(const tagGlyphInfo& glyph, Vertex at, Vertex* quad) const {
        const Vertex advanceAndSize = Half(glyph, 0);
        Vertex bearingAndCell = Half(glyph, 1);
        if (IsOverhanging(glyph)) {
            bearingAndCell[0] = 0.0f;
        }
        const Vertex size = {advanceAndSize[2], advanceAndSize[3], advanceAndSize[2],
                             advanceAndSize[3]};
        const Corners corners =
            SpanCorners(at + bearingAndCell * bearingScale, size * extentScale / extentDivisor);
        quad[0] = corners.topLeft;
        quad[1] = corners.topRight;
        quad[2] = corners.bottomLeft;
        quad[3] = corners.topRight;
        quad[4] = corners.bottomLeft;
        quad[5] = corners.bottomRight;
        return at + advanceAndSize * advanceScale;
    }

    static Vertex Half(const tagGlyphInfo& glyph, size_t half) {
        static_assert(sizeof(glyph) == 2 * sizeof(Vertex));
        Vertex four;
        memcpy(&four, reinterpret_cast<const char*>(&glyph) + half * sizeof(four), sizeof(four));
        return four;
    }

    Vertex* vertices;
    Vertex position;
    Vertex advanceScale;
    Vertex bearingScale;
    Vertex extentScale;
    Vertex extentDivisor;
};

#endif

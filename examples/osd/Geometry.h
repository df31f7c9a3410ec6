// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Rectangles and colours of the demo.
#ifndef OSD_GEOMETRY_H
#define OSD_GEOMETRY_H

#include <zogles/ZoGLDrawSurface.h>

#include <algorithm>
#include <cmath>

using Color = tagZoColorRGBA;

/// Signed, unlike the library's record, so that differences can be negative.
struct Rect {
    int x;
    int y;
    int width;
    int height;

    int Right() const { return x + width; }
    int Bottom() const { return y + height; }
    Rect Inset(int by) const { return {x + by, y + by, width - 2 * by, height - 2 * by}; }
    Rect Times(int factor) const {
        return {x * factor, y * factor, width * factor, height * factor};
    }
};

inline int Round(double value) {
    return static_cast<int>(std::lround(value));
}

inline tagZoRectInfo ToRecord(const Rect& rect) {
    const auto pixels = [](int value) { return static_cast<unsigned int>(std::max(value, 0)); };
    return {pixels(rect.x), pixels(rect.y), pixels(rect.width), pixels(rect.height)};
}

#endif

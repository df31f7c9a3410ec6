// Rectangles and colours as the demo thinks of them, and how they become the library's records.
#ifndef OSD_GEOMETRY_H
#define OSD_GEOMETRY_H

#include <zogles/ZoGLDrawSurface.h>

#include <algorithm>
#include <cmath>

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

struct Color {
    int red;
    int green;
    int blue;
    int alpha = 255;
};

inline int Round(double value) {
    return static_cast<int>(std::lround(value));
}

/// `share` of the second colour (0 to 1) over the first. Rectangles and copies replace what they
/// cover, so whatever shall look translucent is mixed here before it is painted.
inline Color Mix(const Color& under, const Color& over, double share) {
    const auto channel = [share](int from, int to) { return Round(from + (to - from) * share); };
    return {channel(under.red, over.red), channel(under.green, over.green),
            channel(under.blue, over.blue), channel(under.alpha, over.alpha)};
}

inline tagZoRectInfo ToRecord(const Rect& rect) {
    const auto pixels = [](int value) { return static_cast<unsigned int>(std::max(value, 0)); };
    return {pixels(rect.x), pixels(rect.y), pixels(rect.width), pixels(rect.height)};
}

/// To the library a channel of 1 is full intensity, like 255. A mixed colour that happens to hit 1
/// would flash up, so it becomes 2.
inline tagZoColorRGBA ToRecord(const Color& color) {
    const auto channel = [](int value) {
        return static_cast<unsigned char>(value == 1 ? 2 : std::clamp(value, 0, 255));
    };
    return {channel(color.red), channel(color.green), channel(color.blue), channel(color.alpha)};
}

#endif

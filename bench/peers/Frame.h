/// @file
/// The frame that every contestant draws, described once: 60 filled rectangles, 8 copies of
/// 200x100 out of another buffer and 40 lines of 30 glyphs go into one composed buffer; a 256x256
/// bitmap is uploaded and drawn on the window; the window is cleared and the buffer presented on it
/// with blending.
///
/// libzogles shows client bitmaps only on the window, and its presentation clears the window. So
/// that all do the same work and end with the same picture, the bitmap is drawn, and wiped, by all.
///
/// The rectangles are opaque and cover the buffer: alpha is blended differently by each library,
/// and without them the pictures would show that instead of what was drawn.
#ifndef ZOGLES_BENCH_PEERS_FRAME_H
#define ZOGLES_BENCH_PEERS_FRAME_H

#include <string>
#include <vector>

constexpr int frameWidth = 1280;
constexpr int frameHeight = 720;

struct Area {
    int x; ///< pixels from the left
    int y; ///< pixels from the top
    int width;
    int height;
};

/// An opaque colour.
struct Shade {
    unsigned char r;
    unsigned char g;
    unsigned char b;
};

struct Tile {
    Area area;
    Shade shade;
};

/// A region copied out of the source buffer, in its own size.
struct Copy {
    int srcX;
    int srcY;
    Area dst;
};

struct Line {
    std::string text; ///< ASCII without spaces, which libzogles gives no room
    int x;            ///< where the first glyph starts
    int baseline;     ///< pixels from the top
    Shade shade;
};

/// A font of one advance for all glyphs: differences in kerning cannot shift anything.
constexpr char fontPath[] = "/usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf";
constexpr int fontSize = 40; ///< pixels to the em
constexpr char firstGlyph = '!';
constexpr char lastGlyph = '~';

constexpr Area wholeFrame = {0, 0, frameWidth, frameHeight};
constexpr Area bitmapArea = {512, 232, 256, 256};
constexpr int sourceWidth = 400;
constexpr int sourceHeight = 200;

inline unsigned char ToByte(int value) {
    return static_cast<unsigned char>(value & 255);
}

inline std::vector<Tile> MakeRectangles() {
    std::vector<Tile> tiles;
    for (int i = 0; i < 60; ++i) {
        tiles.push_back({{i % 10 * 128, i / 10 * 120, 128, 120},
                         {ToByte(20 + i * 2), ToByte(30 + i % 10 * 9), ToByte(130 - i * 2)}});
    }
    return tiles;
}

/// What the source buffer holds. It is drawn once, before the first frame.
inline std::vector<Tile> MakeSourceTiles() {
    std::vector<Tile> tiles;
    for (int i = 0; i < 32; ++i) {
        tiles.push_back({{i % 8 * 50, i / 8 * 50, 50, 50},
                         {ToByte(90 + i * 5), ToByte(170 - i * 5), ToByte(i % 2 * 80)}});
    }
    return tiles;
}

inline std::vector<Copy> MakeCopies() {
    std::vector<Copy> copies;
    for (int i = 0; i < 8; ++i) {
        copies.push_back(
            {i % 2 * 200, i / 2 % 2 * 100, {60 + i % 4 * 310, 90 + i / 4 * 360, 200, 100}});
    }
    return copies;
}

/// 20 rows at a distance of 36 in two columns, which overlap since a line is 720 wide.
inline std::vector<Line> MakeLines() {
    std::vector<Line> lines;
    for (int i = 0; i < 40; ++i) {
        std::string text = "Line";
        while (text.size() < 30) {
            const int step = i * 11 + static_cast<int>(text.size()) * 7;
            text += static_cast<char>(firstGlyph + step % (lastGlyph - firstGlyph + 1));
        }
        lines.push_back({text,
                         i % 2 == 0 ? 10 : 550,
                         32 + i / 2 * 36,
                         {255, 255, ToByte(i % 2 == 0 ? 255 : 120)}});
    }
    return lines;
}

/// The bitmap's pixels, opaque: red, green, blue, alpha.
inline std::vector<unsigned char> MakeBitmap() {
    std::vector<unsigned char> pixels;
    for (int i = 0; i < bitmapArea.width * bitmapArea.height; ++i) {
        const int x = i % bitmapArea.width;
        const int y = i / bitmapArea.width;
        pixels.insert(pixels.end(), {ToByte(x), ToByte(y), ToByte(x ^ y), 255});
    }
    return pixels;
}

#endif

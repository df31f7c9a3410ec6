/// @file
/// The whole frame: what a busy screen of menus draws.
#ifndef ZOGLES_BENCH_FRAMECONTENT_H
#define ZOGLES_BENCH_FRAMECONTENT_H

#include "Stage.h"

#include <vector>

/// 60 rectangles, 40 lines of 30 units and 8 blits of 200x100 into one buffer, a 256x256 bitmap on
/// the window, and the presentation of the buffer, which clears the window.
class FrameContent {
public:
    explicit FrameContent(const Stage& stage);
    ~FrameContent() = default;
    FrameContent(const FrameContent&) = delete;
    FrameContent& operator=(const FrameContent&) = delete;

    void Draw(ZoGLDrawSurface& surface) const;
    void Draw(Floor& floor) const;

private:
    static constexpr size_t rectCount = 60;
    static constexpr size_t lineCount = 40;
    static constexpr size_t blitCount = 8;

    const Stage& stage;
    std::u16string text;
    std::vector<unsigned char> pixels;
    tagZoTextInfo line;
    tagZoBitmapInfo bitmap;
    tagZoRectInfo rects[rectCount];
    tagZoColorRGBA colors[rectCount];
    Floor::Color floorColors[rectCount];
    tagZoRectInfo starts[lineCount];
    tagZoBlitInfo blits[blitCount];
};

#endif

#include "FrameContent.h"

namespace {

constexpr tagZoColorRGBA white = {255, 255, 255, 255};
constexpr unsigned int bitmapSide = 256;

} // namespace

FrameContent::FrameContent(const Stage& usedStage)
    : stage(usedStage), text(Line(30)), pixels(size_t{bitmapSide} * bitmapSide * 4, 120),
      line(Request(text, white)), bitmap{pixels.data(), ZO_FORMAT_RGBA8888,  0, 0, bitmapSide,
                                         bitmapSide,    {900, 400, 256, 256}} {
    for (unsigned int i = 0; i < rectCount; ++i) {
        rects[i] = {20 + i % 10 * 124, 20 + i / 10 * 115, 110, 100};
        colors[i] = {static_cast<unsigned char>(40 + 3 * i), 90, 160, 200};
        floorColors[i] = ToFloorColor(colors[i]);
    }
    for (unsigned int i = 0; i < lineCount; ++i) {
        starts[i] = {10 + i % 2 * 640, 36 + i / 2 * 35, 0, 0};
    }
    for (unsigned int i = 0; i < blitCount; ++i) {
        blits[i] = {stage.source,
                    stage.target,
                    {80 + i * 20, 40 + i * 10, 200, 100},
                    {30 + i % 4 * 300, 300 + i / 4 * 200, 200, 100}};
    }
}

void FrameContent::Draw(ZoGLDrawSurface& surface) const {
    for (size_t i = 0; i < rectCount; ++i) {
        surface.ZoDrawRect(stage.target, &rects[i], &colors[i]);
    }
    for (const tagZoRectInfo& start : starts) {
        surface.ZoDrawText(stage.target, &line, &start);
    }
    for (const tagZoBlitInfo& blit : blits) {
        surface.ZoBlit(&blit);
    }
    surface.ZoDisplayBitmap(&bitmap);
    surface.ZoDisplayFBO(stage.target, &wholeWindow, &wholeWindow);
}

void FrameContent::Draw(Floor& floor) const {
    const Floor::Color floorWhite = ToFloorColor(white);
    for (size_t i = 0; i < rectCount; ++i) {
        floor.FillRect(stage.floorTarget, rects[i], floorColors[i]);
    }
    for (const tagZoRectInfo& start : starts) {
        floor.DrawLine(stage.floorTarget, line.text, line.length, floorWhite, start.x, start.y);
    }
    for (const tagZoBlitInfo& blit : blits) {
        floor.Blit(stage.floorSource, stage.floorTarget, blit.srcRect, blit.dstRect);
    }
    floor.ShowBitmap(bitmap.data, static_cast<int>(bitmap.width), static_cast<int>(bitmap.height),
                     bitmap.rect);
    floor.Present(stage.floorTarget, wholeWindow, wholeWindow);
}

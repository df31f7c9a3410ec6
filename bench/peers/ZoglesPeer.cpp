// The frame by libzogles.

#include "Frame.h"
#include "Support.h"

#include "zogles/ZoGLDrawSurface.h"

#include <cstdint>

namespace {

tagZoRectInfo ToRect(const Area& area) {
    return {static_cast<unsigned int>(area.x), static_cast<unsigned int>(area.y),
            static_cast<unsigned int>(area.width), static_cast<unsigned int>(area.height)};
}

tagZoColorRGBA ToColor(const Shade& shade) {
    return {shade.r, shade.g, shade.b, 255};
}

struct ZoglesLine {
    std::u16string text;
    tagZoTextInfo info;
    tagZoRectInfo start;
};

} // namespace

int main(int argc, char** argv) {
    ZoGLDrawSurface surface;
    auto* window = reinterpret_cast<ANativeWindow*>(static_cast<uintptr_t>(OpenWindow()));
    Require(surface.ZoCreateGLWindowSurface(window) == ZO_SUCCESS, "binding the window");
    TurnOffVsync(); // the library leaves the interval alone, and its context is current here
    Require(surface.ZoLoadFont(fontPath, fontSize) == ZO_SUCCESS, fontPath);

    unsigned int composed = ZO_NO_HANDLE;
    unsigned int source = ZO_NO_HANDLE;
    surface.ZoCreateGLFBO(&composed, frameWidth, frameHeight, ZO_FORMAT_RGBA8888);
    surface.ZoCreateGLFBO(&source, sourceWidth, sourceHeight, ZO_FORMAT_RGBA8888);
    const auto drawTiles = [&surface](unsigned int target, const std::vector<Tile>& tiles) {
        for (const Tile& tile : tiles) {
            const tagZoRectInfo rect = ToRect(tile.area);
            const tagZoColorRGBA color = ToColor(tile.shade);
            surface.ZoDrawRect(target, &rect, &color);
        }
    };
    drawTiles(source, MakeSourceTiles());

    const std::vector<Tile> rectangles = MakeRectangles();
    const std::vector<unsigned char> pixels = MakeBitmap();
    const tagZoRectInfo whole = ToRect(wholeFrame);
    const tagZoBitmapInfo bitmap = {pixels.data(), ZO_FORMAT_RGBA8888, 0, 0, 256,
                                    256,           ToRect(bitmapArea)};
    std::vector<tagZoBlitInfo> blits;
    for (const Copy& copy : MakeCopies()) {
        const Area from = {copy.srcX, copy.srcY, copy.dst.width, copy.dst.height};
        blits.push_back({source, composed, ToRect(from), ToRect(copy.dst)});
    }
    std::vector<ZoglesLine> lines;
    for (const Line& line : MakeLines()) {
        ZoglesLine made = {std::u16string(line.text.begin(), line.text.end()),
                           {},
                           ToRect({line.x, line.baseline, 0, 0})};
        made.info.length = static_cast<unsigned int>(made.text.size());
        made.info.color = ToColor(line.shade);
        made.info.fontSize = fontSize;
        lines.push_back(made);
    }

    Contestant contestant;
    contestant.draw = [&] {
        drawTiles(composed, rectangles);
        for (const tagZoBlitInfo& blit : blits) {
            surface.ZoBlit(&blit);
        }
        for (ZoglesLine& line : lines) {
            line.info.text = line.text.c_str();
            surface.ZoDrawText(composed, &line.info, &line.start);
        }
        surface.ZoDisplayBitmap(&bitmap);
        surface.ZoDisplayFBO(composed, &whole, &whole);
    };
    contestant.swap = [&surface] { surface.ZoRefreshOnSrceen(); };
    RunContestant(argc, argv, contestant);
}

#include "OSDFixture.h"

namespace {

class OSDRectGLTest : public OSDFixture {};

const struct {
    const char* name;
    tagZoRectInfo rect;
} rects[] = {
    {"inside", {5, 7, 20, 11}},    {"the whole buffer", {0, 0, 64, 48}},
    {"a pixel", {63, 47, 1, 1}},   {"past two edges", {50, 40, 150, 150}},
    {"outside", {160, 0, 10, 48}}, {"far outside", {0xFFFFFFF0, 0, 8, 48}},
    {"no width", {10, 10, 0, 20}}, {"no height", {10, 10, 20, 0}},
};

} // namespace

TEST_F(OSDRectGLTest, FillsItsPixelsAndNoOthers) {
    Bind();
    for (const auto& [name, area] : rects) {
        SCOPED_TRACE(name);
        const tagZoRectInfo rect = area;
        const auto expected = [&](int x, int y) {
            return Contains(rect, x, y) ? Pixel{255, 128, 2, 200} : emptyPixel;
        };
        const unsigned int buffer = CreateBuffer(64, 48);
        Draw(buffer, rect, {255, 128, 2, 200});
        EXPECT_TRUE(Matches(Read(buffer), expected));
        surface->ZoDestoryGLFBO(buffer);
        FillWindow({0, 0, 0, 0});
        Draw(ZO_WINDOW_HANDLE, rect, {255, 128, 2, 200});
        EXPECT_TRUE(Matches(ReadWindow(), expected));
    }
    EXPECT_EQ(harness::TakeLog(), Log());
}

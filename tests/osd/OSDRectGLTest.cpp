#include "OSDFixture.h"

namespace {

class OSDRectGLTest : public OSDFixture {};

const struct {
    const char* name;
    tagZoRectInfo rect;
} rects[] = {
    {"inside", {5, 7, 20, 11}},     {"the whole buffer", {0, 0, 64, 48}},
    {"a pixel", {63, 47, 1, 1}},    {"past two edges", {50, 40, 150, 150}},
    {"outside", {5000, 0, 10, 48}}, {"far outside", {0xFFFFFFF0, 0, 8, 48}},
    {"no width", {10, 10, 0, 20}},  {"no height", {10, 10, 20, 0}},
};

} // namespace

TEST_F(OSDRectGLTest, FillsExactlyItsPixels) {
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
        Fill(ZO_WINDOW_HANDLE, {0, 0, 0, 0});
        Draw(ZO_WINDOW_HANDLE, rect, {255, 128, 2, 200});
        EXPECT_TRUE(Matches(Read(ZO_WINDOW_HANDLE), expected));
    }
    EXPECT_EQ(harness::TakeLog(), Log());
}

TEST_F(OSDRectGLTest, ReadsNoVerticesWithoutABuffer) {
    Bind();
    harness::FailCall("glGenBuffers");
    Draw(ZO_WINDOW_HANDLE, {0, 0, 9, 9}, {1, 1, 1, 1});
    EXPECT_EQ(harness::CountOf("glDrawArrays"), 1);
    EXPECT_EQ(harness::CountOf("glEnableVertexAttribArray"), 0);
    ExpectGlError(GL_INVALID_OPERATION);
}

TEST_F(OSDRectGLTest, StopsAtTheFirstRecordThatIsNotZeroed) {
    Bind();
    ASSERT_EQ(surface->Init(ZO_COMPONENT_RECT), ZO_SUCCESS);
    harness::FailCall("memset_s", 2);
    harness::FailCall("memset_s", 3);
    const tagZoRectInfo rect = {0, 0, 9, 9};
    const tagZoColorRGBA color = {1, 1, 1, 1};
    EXPECT_EQ(surface->ZoDrawRect(ZO_WINDOW_HANDLE, &rect, &color), ZO_FAILURE);
    EXPECT_EQ(harness::TakeLog().size(), 1U);
}

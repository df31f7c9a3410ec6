#include "support/SurfaceFixture.h"

using harness::Call;

namespace {

class OSDRectGLTest : public SurfaceFixture {};

const tagZoColorRGBA orange = {255, 128, 2, 200};
constexpr Pixel orangePixel = {255, 128, 2, 200};
constexpr Pixel empty = {0, 0, 0, 0};

} // namespace

TEST_F(OSDRectGLTest, FillsExactlyTheRectangleAndReplacesAlpha) {
    Bind();
    const unsigned int buffer = CreateBuffer(64, 48);
    const tagZoRectInfo rect = {5, 7, 20, 11};
    ASSERT_EQ(surface->ZoDrawRect(buffer, &rect, &orange), ZO_SUCCESS);
    EXPECT_TRUE(Matches(Read(buffer), [](int x, int y) {
        return x >= 5 && x < 25 && y >= 7 && y < 18 ? orangePixel : empty;
    }));
    const tagZoColorRGBA erase = {0, 0, 0, 0};
    ASSERT_EQ(surface->ZoDrawRect(buffer, &rect, &erase), ZO_SUCCESS);
    EXPECT_TRUE(Matches(Read(buffer), [](int, int) { return empty; }));
    EXPECT_EQ(harness::TakeLog(), Log());
}

TEST_F(OSDRectGLTest, MakesItsCallsInOrderAndNoOthers) {
    Bind();
    const unsigned int buffer = CreateBuffer(64, 48);
    const tagZoRectInfo rect = {0, 0, 64, 48};
    surface->ZoDrawRect(buffer, &rect, &orange);
    const GLuint framebuffer = Target(buffer).framebuffer;
    const OSDRect& renderer = *surface->osdRect;
    const auto calls = harness::Record([&] { surface->ZoDrawRect(buffer, &rect, &orange); });
    EXPECT_EQ(calls, (std::vector<std::string>{
                         Call("memset_s", &rect, sizeof(tagFrameBuffObject), 0,
                              sizeof(tagFrameBuffObject)),
                         Call("memset_s", &rect, sizeof(tagRectInfo), 0, sizeof(tagRectInfo)),
                         Call("memset_s", &rect, sizeof(tagColorRGBA), 0, sizeof(tagColorRGBA)),
                         Call("glBindFramebuffer", GL_FRAMEBUFFER, framebuffer),
                         Call("glViewport", 0, 0, 64, 48),
                         Call("glUseProgram", renderer.program),
                         Call("glUniform4fv", renderer.colorLocation, 1, 1.0f, 128.0f / 255.0f,
                              2.0f / 255.0f, 200.0f / 255.0f),
                         Call("glEnableVertexAttribArray", renderer.positionLocation),
                         Call("glBindBuffer", GL_ARRAY_BUFFER, renderer.vertexBuffer),
                         Call("glVertexAttribPointer", renderer.positionLocation, 4, GL_FLOAT,
                              GL_FALSE, 0, static_cast<void*>(nullptr)),
                         Call("glBufferData", GL_ARRAY_BUFFER, 96, &rect, GL_DYNAMIC_DRAW),
                         Call("glDrawArrays", GL_TRIANGLES, 0, 6),
                         Call("glBindBuffer", GL_ARRAY_BUFFER, 0),
                         Call("glDisableVertexAttribArray", renderer.positionLocation),
                         Call("glBindFramebuffer", GL_FRAMEBUFFER, 0),
                     }));
    EXPECT_EQ(harness::CountAllocations([&] { surface->ZoDrawRect(buffer, &rect, &orange); }), 0);
}

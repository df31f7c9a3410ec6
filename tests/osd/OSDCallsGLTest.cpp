// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The calls that the drawing operations make, the vertices they upload and the state they leave.

#include "OSDFixture.h"
#include "support/Calls.h"

#include <algorithm>

namespace {

const Image image = Noise(3, 5);
constexpr tagZoRectInfo rect = {16, 8, 32, 16};

template <typename Renderer>
Calls DrawQuad(const Renderer& renderer, const std::string& bindTexture) {
    return Sample(GL_TEXTURE0, bindTexture, renderer.texLocation) +
           FeedVertices(renderer.coordLocation, renderer.vertexBuffer, 64) +
           Calls{Call("glDrawElements", GL_TRIANGLES, 6, GL_UNSIGNED_SHORT, data)};
}

// The driver chooses the name of a texture that an operation makes.
constexpr char bindNew[] = "bind the new texture";
Calls RecordWithNewTextureNamed(const std::function<void()>& run) {
    Calls calls = harness::Record(run);
    const auto made = std::find(calls.begin(), calls.end(), Call("glGenTextures", 1, data));
    const auto bound = std::find_if(made, calls.end(), [](const std::string& call) {
        return call.find("glBindTexture") == 0 && call != BindTexture(0);
    });
    if (bound != calls.end()) {
        std::replace(calls.begin(), calls.end(), std::string(*bound), std::string(bindNew));
    }
    return calls;
}

class OSDCallsGLTest : public OSDFixture {};

} // namespace

TEST_F(OSDCallsGLTest, AreExactlyThese) {
    Bind();
    ASSERT_EQ(surface->Init(ZO_COMPONENT_RECT | ZO_COMPONENT_BLIT | ZO_COMPONENT_FRAME |
                            ZO_COMPONENT_BITMAP),
              ZO_SUCCESS);
    const unsigned int source = CreateBuffer(128, 64);
    const unsigned int target = CreateBuffer(64, 32);
    const size_t targetSize = sizeof(tagFrameBuffObject);
    const size_t rectSize = sizeof(tagRectInfo);
    const OSDRect& filler = *surface->osdRect;
    const OSDBlit& blitter = *surface->osdBlit;
    const OSDFrame& frame = *surface->osdFrame;
    const OSDBitmap& bitmap = *surface->osdBitmap;
    const Calls bind = BindTarget(Target(target).framebuffer, 64, 32);
    const Calls unbind = {BindFramebuffer(0)};
    const Calls unbindTexture = {BindTexture(0)};
    const Calls blitStart = bind + Calls{Call("glUseProgram", blitter.program)};
    const Calls blitEnd = UnbindVertices(blitter.coordLocation) + unbindTexture + unbind;
    const Calls makeTexture = {Call("glActiveTexture", GL_TEXTURE0),
                               Call("glGenTextures", 1, data)};
    const Calls deleteTexture = {Call("glDeleteTextures", 1, data)};
    const Calls disableBlending = {Call("glDisable", GL_BLEND)};
    const auto clearAndBlend = [this](GLuint program) {
        return BindTarget(0, windowWidth, windowHeight) +
               Calls{Call("glClearColor", 0, 0, 0, 0),
                     Call("glClear", GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT),
                     Call("glUseProgram", program)} +
               EnableBlending();
    };
    constexpr float h = 0.5f;
    constexpr float q = 0.25f;
    constexpr float s0 = 1 / 34.0f; // within the copy of 34 by 18 pixels
    constexpr float s1 = s0 + 32 / 34.0f;
    constexpr float t0 = 17 / 18.0f;
    constexpr float t1 = t0 - 16 / 18.0f;
    const struct {
        const char* name;
        std::function<void()> run;
        Calls calls;
        std::vector<harness::Vertex> vertices;
        GLenum activeTexture;
    } operations[] = {
        {"rectangle",
         [&] {
             Draw(target, rect, {255, 128, 2, 1});
         },
         Calls{Zero(targetSize), Zero(rectSize), Zero(sizeof(tagColorRGBA))} + bind +
             Calls{Call("glUseProgram", filler.program),
                   Call("glUniform4fv", filler.colorLocation, 1, 1.0f, 128 / 255.0f, 2 / 255.0f,
                        1.0f)} +
             FeedVertices(filler.positionLocation, filler.vertexBuffer, 96) +
             Calls{Call("glDrawArrays", GL_TRIANGLES, 0, 6)} +
             UnbindVertices(filler.positionLocation) + unbind,
         {{-h, h, 0, 1}, {h, h, 0, 1}, {-h, -h, 0, 1}, {h, -h, 0, 1}, {-h, -h, 0, 1}, {h, h, 0, 1}},
         GL_TEXTURE2},
        {"blit",
         [&] { Blit(source, target, rect, rect); },
         Calls(2, Zero(targetSize)) + blitStart +
             DrawQuad(blitter, BindTexture(Target(source).texture)) + blitEnd,
         {{-h, -h, 0.125f, 0.625f},
          {h, -h, 0.375f, 0.625f},
          {-h, h, 0.125f, 0.875f},
          {h, h, 0.375f, 0.875f}},
         GL_TEXTURE0},
        // Copies the region and a pixel around it.
        {"blit within one buffer",
         [&] { Blit(target, target, rect, rect); },
         Calls(2, Zero(targetSize)) + makeTexture +
             Calls{bind[0], bindNew,
                   Call("glCopyTexImage2D", GL_TEXTURE_2D, 0, GL_RGBA, 15, 7, 34, 18, 0)} +
             SetParameters() + blitStart + DrawQuad(blitter, bindNew) + blitEnd + deleteTexture,
         {{-h, -h, s0, t1}, {h, -h, s1, t1}, {-h, h, s0, t0}, {h, h, s1, t0}},
         GL_TEXTURE0},
        {"presentation",
         [&] { Display(target, rect, WholeWindow()); },
         Calls{Zero(targetSize), Zero(rectSize), Zero(rectSize)} + clearAndBlend(frame.program) +
             DrawQuad(frame, BindTexture(Target(target).texture)) + disableBlending +
             UnbindVertices(frame.coordLocation) + unbindTexture,
         {{-1, -1, q, q}, {1, -1, 0.75f, q}, {-1, 1, q, 0.75f}, {1, 1, 0.75f, 0.75f}},
         GL_TEXTURE0},
        {"bitmap",
         [&] { Display(image, WholeWindow()); },
         Calls{Zero(sizeof(tagBitmapInfo))} + makeTexture +
             Calls{bindNew,
                   Call("glTexImage2D", GL_TEXTURE_2D, 0, GL_RGBA, 3, 5, 0, GL_RGBA,
                        GL_UNSIGNED_BYTE, data),
                   Call("glPixelStorei", GL_UNPACK_ALIGNMENT, 4)} +
             SetParameters() + unbindTexture + clearAndBlend(bitmap.program) +
             DrawQuad(bitmap, bindNew) + UnbindVertices(bitmap.coordLocation) + disableBlending +
             unbindTexture + deleteTexture,
         {{-1, 1, 0, 0}, {1, 1, 1, 0}, {-1, -1, 0, 1}, {1, -1, 1, 1}},
         GL_TEXTURE0},
    };
    const std::string live = harness::DescribeLive();
    for (const auto& operation : operations) {
        SCOPED_TRACE(operation.name);
        glActiveTexture(GL_TEXTURE2);
        EXPECT_EQ(RecordWithNewTextureNamed(operation.run), operation.calls);
        EXPECT_EQ(harness::Current().vertices, operation.vertices);
        ExpectStateAfterDraw(operation.activeTexture);
        EXPECT_EQ(harness::CountAllocations(operation.run), 0);
        EXPECT_EQ(harness::DescribeLive(), live);
    }
}

// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "support/Calls.h"
#include "support/SurfaceFixture.h"

namespace {

constexpr tagColorRGBA orange = {1.0f, 0.5f, 0.0f, 0.25f};

class FBOManagerGLTest : public SurfaceFixture {
protected:
    void SetUp() override {
        SurfaceFixture::SetUp();
        Bind();
    }

    FBOManager& Pool() const { return *surface->fboManager; }
};

std::vector<int> Fields(const tagFrameBuffObject& r) {
    return {static_cast<int>(r.handle), static_cast<int>(r.texture),
            static_cast<int>(r.framebuffer), r.width, r.height};
}

Calls Clear(const tagFrameBuffObject& target, const tagColorRGBA& color) {
    return BindTarget(target.framebuffer, target.width, target.height) +
           Calls{Call("glClearColor", color.r, color.g, color.b, color.a),
                 Call("glClear", GL_COLOR_BUFFER_BIT), BindFramebuffer(0)};
}

} // namespace

TEST_F(FBOManagerGLTest, CreatesABufferInOrderAndClear) {
    CreateBuffer(8, 8);
    unsigned int handle = 0;
    const Calls calls =
        harness::Record([&] { Pool().GLCreateFBO(&handle, 30, 20, GL_RGBA, false); });
    const tagFrameBuffObject record = Target(handle);
    EXPECT_EQ(Fields(record), Fields({0x10002, record.texture, record.framebuffer, 30, 20}));
    tagFrameBuffObject copy = {};
    Pool().NativeFBOOut(&record, &copy);
    EXPECT_EQ(Fields(copy), Fields(record));
    EXPECT_EQ(calls, (Calls{Call("glActiveTexture", GL_TEXTURE0), Call("glGenTextures", 1, data),
                            BindTexture(record.texture),
                            Call("glTexImage2D", GL_TEXTURE_2D, 0, GL_RGBA, 30, 20, 0, GL_RGBA,
                                 GL_UNSIGNED_BYTE, "null")} +
                      SetParameters() +
                      Calls{Call("glGenFramebuffers", 1, data), BindFramebuffer(record.framebuffer),
                            Call("glFramebufferTexture2D", GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0,
                                 GL_TEXTURE_2D, record.texture, 0),
                            Call("glCheckFramebufferStatus", GL_FRAMEBUFFER), BindTexture(0),
                            BindFramebuffer(0)} +
                      Clear(record, {0.0f, 0.0f, 0.0f, 0.0f})));
    EXPECT_EQ(harness::TakeLog(), (Log{{6, "FBOManager", "Framebuffer complete.\n"}}));
    ExpectStateAfterDraw(GL_TEXTURE0);
}

TEST_F(FBOManagerGLTest, DestroysTheObjectsOfABuffer) {
    const unsigned int whole = CreateBuffer(4, 4);
    harness::FailCall("glGenTextures");
    const unsigned int withoutTexture = CreateBuffer(4, 4);
    harness::FailCall("glGenFramebuffers");
    const unsigned int withoutFramebuffer = CreateBuffer(4, 4);
    const Calls bothCalls = {Call("glDeleteTextures", 1, data),
                             Call("glDeleteFramebuffers", 1, data)};
    EXPECT_EQ(harness::Record([&] { Pool().GLDestoryFBO(whole); }), bothCalls);
    EXPECT_EQ(harness::Record([&] { Pool().GLDestoryFBO(withoutTexture); }), Calls{bothCalls[1]});
    EXPECT_EQ(harness::Record([&] { Pool().GLDestoryFBO(withoutFramebuffer); }),
              Calls{bothCalls[0]});
    for (int i = 1; i <= 3; ++i) {
        EXPECT_EQ(Fields(Pool().slots[i]), Fields({ZO_NO_HANDLE, 0, 0, 0, 0}));
    }
    EXPECT_EQ(harness::TakeLog(), Log());
    ExpectGlError(GL_INVALID_FRAMEBUFFER_OPERATION); // without a texture, nothing to clear
}

TEST_F(FBOManagerGLTest, ClearsATargetToAColour) {
    const tagFrameBuffObject buffer = Target(CreateBuffer(6, 4));
    for (const tagFrameBuffObject& target : {buffer, Target(ZO_WINDOW_HANDLE)}) {
        EXPECT_EQ(harness::Record([&] { Pool().ClearFBOTex(&target, &orange); }),
                  Clear(target, orange));
    }
    EXPECT_EQ(harness::Record([&] {
                  Pool().ClearFBOTex(nullptr, &orange);
                  Pool().ClearFBOTex(&buffer, nullptr);
              }),
              Calls());
    EXPECT_EQ(harness::TakeLog(), (Log{{6, "FBOManager", "FBO or color is nullptr\n"},
                                       {6, "FBOManager", "FBO or color is nullptr\n"}}));
}

#include "support/Calls.h"
#include "support/SurfaceFixture.h"

namespace {

constexpr unsigned int untouched = 0x12345678;
constexpr tagColorRGBA orange = {1.0f, 0.5f, 0.0f, 0.25f};
const Log completeLog = {{6, "FBOManager", "Framebuffer complete.\n"}};

class FBOManagerGLTest : public SurfaceFixture {
protected:
    void SetUp() override {
        SurfaceFixture::SetUp();
        Bind();
        pool = std::make_unique<FBOManager>(windowWidth, windowHeight);
    }
    void TearDown() override {
        pool.reset(); // while its context exists
        SurfaceFixture::TearDown();
    }

    unsigned int Create(int width, int height) {
        unsigned int handle = untouched;
        EXPECT_EQ(pool->GLCreateFBO(&handle, width, height, GL_RGBA, false), ZO_SUCCESS);
        return handle;
    }

    tagFrameBuffObject Get(unsigned int handle) const {
        tagFrameBuffObject record = {untouched, 1, 2, 3, 4};
        EXPECT_TRUE(pool->GetFBOInst(handle, &record)) << handle;
        return record;
    }

    std::unique_ptr<FBOManager> pool;
};

void ExpectRecord(const tagFrameBuffObject& record, const tagFrameBuffObject& expected) {
    const auto fields = [](const tagFrameBuffObject& r) {
        return std::vector<int>{static_cast<int>(r.handle), static_cast<int>(r.texture),
                                static_cast<int>(r.framebuffer), r.width, r.height};
    };
    EXPECT_EQ(fields(record), fields(expected));
}

Calls Clear(const tagFrameBuffObject& target, const tagColorRGBA& color) {
    return BindTarget(target.framebuffer, target.width, target.height) +
           Calls{Call("glClearColor", color.r, color.g, color.b, color.a),
                 Call("glClear", GL_COLOR_BUFFER_BIT), BindFramebuffer(0)};
}

constexpr tagFrameBuffObject freeSlot = {0xFFFFFFFF, 0, 0, 0, 0};

} // namespace

TEST_F(FBOManagerGLTest, StartsWithTheWindowAlone) {
    EXPECT_EQ(harness::Record([] { const FBOManager other(1280, 720); }), Calls());
    ExpectRecord(Get(0x10000), {0x10000, 0, 0, windowWidth, windowHeight});
    for (const unsigned int unknown : {0U, 1U, 0x10001U, 0x1000FU, 0x10010U, 0xFFFFFFFFU}) {
        tagFrameBuffObject record = {untouched, 1, 2, 3, 4};
        EXPECT_FALSE(pool->GetFBOInst(unknown, &record));
        ExpectRecord(record, {untouched, 1, 2, 3, 4});
    }
    tagFrameBuffObject copy = {};
    pool->NativeFBOOut(&freeSlot, &copy);
    ExpectRecord(copy, freeSlot);
    EXPECT_EQ(harness::TakeLog(), Log());
}

TEST_F(FBOManagerGLTest, CreatesABufferInOrderAndClear) {
    Create(8, 8);
    harness::TakeLog();
    glClearColor(1.0f, 1.0f, 1.0f, 1.0f);
    unsigned int handle = untouched;
    const Calls calls =
        harness::Record([&] { pool->GLCreateFBO(&handle, 30, 20, GL_RGBA, false); });
    const tagFrameBuffObject record = Get(handle);
    ExpectRecord(record, {0x10002, record.texture, record.framebuffer, 30, 20});
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
    EXPECT_EQ(harness::TakeLog(), completeLog);
    glBindFramebuffer(GL_FRAMEBUFFER, record.framebuffer);
    EXPECT_TRUE(Matches(ReadPixels(30, 20), [](int, int) { return Pixel{0, 0, 0, 0}; }));
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
    ExpectStateAfterDraw(GL_TEXTURE0);
}

TEST_F(FBOManagerGLTest, DestroysTheObjectsOfABuffer) {
    const unsigned int whole = Create(4, 4);
    harness::FailCall("glGenTextures");
    const unsigned int withoutTexture = Create(4, 4);
    harness::FailCall("glGenFramebuffers");
    const unsigned int withoutFramebuffer = Create(4, 4);
    harness::TakeLog();
    const Calls bothCalls = {Call("glDeleteTextures", 1, data),
                             Call("glDeleteFramebuffers", 1, data)};
    EXPECT_EQ(harness::Record([&] { pool->GLDestoryFBO(whole); }), bothCalls);
    EXPECT_EQ(harness::Record([&] { pool->GLDestoryFBO(withoutTexture); }), Calls{bothCalls[1]});
    EXPECT_EQ(harness::Record([&] { pool->GLDestoryFBO(withoutFramebuffer); }),
              Calls{bothCalls[0]});
    for (int i = 1; i <= 3; ++i) {
        ExpectRecord(pool->slots[i], freeSlot);
    }
    EXPECT_EQ(harness::TakeLog(), Log());
    ExpectGlError(GL_INVALID_FRAMEBUFFER_OPERATION); // without a texture, nothing to clear
}

TEST_F(FBOManagerGLTest, ClearsATargetToAColour) {
    const tagFrameBuffObject buffer = Get(Create(6, 4));
    harness::TakeLog();
    for (const tagFrameBuffObject& target : {buffer, Get(0x10000)}) {
        EXPECT_EQ(harness::Record([&] { pool->ClearFBOTex(&target, &orange); }),
                  Clear(target, orange));
    }
    EXPECT_EQ(harness::Record([&] {
                  pool->ClearFBOTex(nullptr, &orange);
                  pool->ClearFBOTex(&buffer, nullptr);
              }),
              Calls());
    EXPECT_EQ(harness::TakeLog(), (Log{{6, "FBOManager", "FBO or color is nullptr\n"},
                                       {6, "FBOManager", "FBO or color is nullptr\n"}}));
}

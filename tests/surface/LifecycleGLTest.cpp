#include "LifecycleFixture.h"

using harness::Call;

namespace {

class LifecycleGLTest : public LifecycleFixture {
protected:
    void ExpectWindowSize(unsigned int width, unsigned int height) const {
        EXPECT_EQ(surface->ZoGetWindowWidth(), width);
        EXPECT_EQ(surface->ZoGetWindowHeight(), height);
    }
};

constexpr char data[] = "data";
const harness::LogLine creating = SurfaceLine("Create GL window\n", 5);
const harness::LogLine recreating = SurfaceLine("ReCreate GL window\n", 5);

} // namespace

TEST_F(LifecycleGLTest, StartsUnboundWithoutACall) {
    EXPECT_EQ(harness::Record([&] {
                  surface = std::make_unique<ZoGLDrawSurface>();
                  ExpectUnbound();
                  ExpectWindowSize(1920, 1080);
                  surface->ZoDestoryGLWindowSurface();
                  surface.reset();
              }),
              Calls());
    EXPECT_EQ(harness::TakeLog(), Log());
}

TEST_F(LifecycleGLTest, MovesToAnotherWindowAndKeepsTheRest) {
    ASSERT_EQ(surface->ZoCreateGLWindowSurface(window.Native()), ZO_SUCCESS);
    EXPECT_EQ(harness::TakeLog().front(), creating);
    EXPECT_EQ(Components(), "pool ");
    ExpectWindowSize(windowWidth, windowHeight);
    EXPECT_EQ(Target(0x10000).height, windowHeight);
    ASSERT_EQ(surface->Init(allComponents), ZO_SUCCESS);
    const unsigned int buffer = CreateBuffer(8, 8);
    Fill(buffer);
    const void* text = surface->osdText.get();

    const TestWindow other(200, 100);
    const Calls calls = harness::Record([&] {
        EXPECT_EQ(surface->ZoCreateGLWindowSurface(nullptr), ZO_INVALID_PARAM);
        EXPECT_EQ(surface->ZoCreateGLWindowSurface(other.Native()), ZO_SUCCESS);
    });
    EXPECT_EQ(calls,
              (Calls{Call("eglDestroySurface", data, data),
                     Call("eglCreateWindowSurface", data, data,
                          reinterpret_cast<uintptr_t>(other.Native()), "null"),
                     Call("eglMakeCurrent", data, data, data, data),
                     Call("eglQuerySurface", data, data, 0x3057, data),
                     Call("eglQuerySurface", data, data, 0x3056, data), Call("glGetString", 0x1F02),
                     Call("glGetString", 0x1F00), Call("glGetString", 0x1F01)}));
    EXPECT_EQ(harness::TakeLog()[1], recreating);
    ExpectWindowSize(200, 100);
    EXPECT_EQ(Target(0x10000).height, windowHeight); // the pool's own record stays
    EXPECT_EQ(surface->osdText.get(), text);
    EXPECT_TRUE(Matches(Read(buffer), Filled));
    ExpectUsable();
    surface->ZoDestoryGLWindowSurface();
    ExpectUnbound();
    ExpectWindowSize(200, 100);
    EXPECT_EQ(surface->ZoRefreshOnSrceen(), ZO_NO_EGL_MANAGER);
}

TEST_F(LifecycleGLTest, DropsItsPartsInOrder) {
    Bind();
    CreateBuffer(4, 4);
    for (const bool isReset : {true, false}) {
        ASSERT_EQ(surface->Init(allComponents), ZO_SUCCESS);
        const Calls calls = harness::Record(
            [&] { isReset ? surface->ResetGLSource() : surface->ZoDestoryGLWindowSurface(); });
        const auto find = [&](const char* name) {
            return std::find_if(calls.begin(), calls.end(),
                                [=](const std::string& call) { return call.find(name) == 0; });
        };
        // Letting go of the window ends the context first; a reset does it last.
        ASSERT_TRUE(find("eglDestroyContext") != calls.end());
        EXPECT_EQ(find("glDeleteProgram") < find("eglDestroyContext"), isReset);
        EXPECT_EQ(find("glDeleteFramebuffers") < find("eglDestroyContext"), isReset);
        ExpectUnbound();
        Bind();
    }
}

TEST_F(LifecycleGLTest, LeavesNothingBehindInManyCycles) {
    Bind();
    const unsigned int dropped = CreateBuffer(9, 9);
    const unsigned int kept = CreateBuffer(8, 6);
    EXPECT_EQ(surface->ZoDestoryGLFBO(dropped), ZO_SUCCESS);
    const tagZoTextInfo text = {u"A", 1, {255, 255, 255, 255}, {}, 0, 40, 0, 0, 0};
    const tagZoRectInfo rect = {0, 0, 8, 6};
    for (int cycle = 0; cycle < 20; ++cycle) {
        SCOPED_TRACE(cycle);
        surface->ZoDestoryGLWindowSurface();
        ASSERT_EQ(harness::DescribeLive(), "");
        const TestWindow next(40 + cycle, 30);
        ASSERT_EQ(surface->ZoCreateGLWindowSurface(next.Native()), ZO_SUCCESS);
        ASSERT_EQ(surface->ZoGetWindowWidth(), 40U + static_cast<unsigned int>(cycle));
        ASSERT_EQ(surface->Init(allComponents), ZO_SUCCESS);
        ASSERT_EQ(Target(kept).height, 6);
        ASSERT_TRUE(Matches(Read(kept), Empty));
        Fill(kept);
        ASSERT_EQ(surface->ZoDrawText(kept, &text, &rect), ZO_SUCCESS);
        ASSERT_EQ(surface->ZoDisplayFBO(kept, &rect, &rect), ZO_SUCCESS);
        ASSERT_EQ(surface->ZoRefreshOnSrceen(), ZO_SUCCESS);
        surface->ZoDestoryGLWindowSurface();
        harness::TakeLog();
    }
}

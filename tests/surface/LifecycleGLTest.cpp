#include "LifecycleFixture.h"

namespace {

class LifecycleGLTest : public LifecycleFixture {
protected:
    void ExpectWindowSize(int width, int height) const {
        EXPECT_EQ(surface->ZoGetWindowWidth(), static_cast<unsigned int>(width));
        EXPECT_EQ(surface->ZoGetWindowHeight(), static_cast<unsigned int>(height));
    }
};

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
    ReadWindowSize();
    ExpectWindowSize(windowWidth, windowHeight);
    EXPECT_EQ(Target(ZO_WINDOW_HANDLE).height, windowHeight);
    ASSERT_EQ(surface->Init(allComponents), ZO_SUCCESS);
    const unsigned int buffer = CreateBuffer(8, 8);
    Fill(buffer, filling);
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
    ReadWindowSize();
    ExpectWindowSize(windowWidth, windowHeight);
    EXPECT_EQ(surface->osdText.get(), text);
    EXPECT_TRUE(Matches(Read(buffer), Filled));
    ExpectUsable();
    EXPECT_EQ(harness::Record([&] { surface->ZoRefreshOnSrceen(); }),
              Calls{Call("eglSwapBuffers", data, data)});
    surface->ZoDestoryGLWindowSurface();
    ExpectUnbound();
    ExpectWindowSize(windowWidth, windowHeight);
    EXPECT_EQ(surface->ZoRefreshOnSrceen(), ZO_NO_EGL_MANAGER);
}

TEST_F(LifecycleGLTest, KeepsThePoolsRecordAtASecondWindowSize) {
    Bind();
    const TestWindow other(200, 100);
    EXPECT_EQ(surface->ZoCreateGLWindowSurface(other.Native()), ZO_SUCCESS);
    ExpectWindowSize(200, 100);
    EXPECT_EQ(Target(ZO_WINDOW_HANDLE).height, windowHeight);
    surface->ZoDestoryGLWindowSurface();
    ExpectWindowSize(200, 100);
}

TEST_F(LifecycleGLTest, ReleasesComponentsInOrder) {
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
        // Releasing the window destroys the context first; a reset destroys it last.
        ASSERT_TRUE(find("eglDestroyContext") != calls.end());
        EXPECT_EQ(find("glDeleteProgram") < find("eglDestroyContext"), isReset);
        EXPECT_EQ(find("glDeleteFramebuffers") < find("eglDestroyContext"), isReset);
        ExpectUnbound();
        Bind();
    }
}

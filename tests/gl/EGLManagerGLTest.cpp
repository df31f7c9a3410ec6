#include "support/Calls.h"
#include "support/SurfaceFixture.h"

#include <EGL/egl.h>

namespace {

constexpr char null[] = "null";

class EGLManagerGLTest : public SurfaceFixture {
protected:
    void TearDown() override {
        manager.EGLRelease();
        SurfaceFixture::TearDown();
    }

    void SetUpAndBind() {
        ASSERT_EQ(manager.CreateWindowSurface(window.Native()), ZO_SUCCESS);
        ASSERT_EQ(manager.MakeCurrent(), ZO_SUCCESS);
        ReadWindowSize();
        harness::TakeLog();
    }

    void ExpectReleased() const {
        EXPECT_EQ(manager.display, EGL_NO_DISPLAY);
        EXPECT_EQ(manager.config, nullptr);
        EXPECT_EQ(manager.context, EGL_NO_CONTEXT);
        EXPECT_EQ(manager.surface, EGL_NO_SURFACE);
    }

    EGLManager manager;
};

harness::LogLine GlLine(const char* what, GLenum name) {
    return {6, "EGLManager",
            std::string("GL ") + what + " = " + reinterpret_cast<const char*>(glGetString(name)) +
                "\n"};
}

const harness::LogLine releasing = {2, "EGLManager", "EGLManager::EGLRelease"};
const harness::LogLine released = {5, "EGLManager", "EGL Context has been released\n"};

} // namespace

TEST_F(EGLManagerGLTest, SetsUpInOrderAndLogsTheDriver) {
    ExpectReleased();
    const Calls calls = harness::Record([&] {
        EXPECT_EQ(manager.CreateWindowSurface(window.Native()), ZO_SUCCESS);
        EXPECT_EQ(manager.MakeCurrent(), ZO_SUCCESS);
    });
    EXPECT_EQ(calls,
              (Calls{Call("eglGetDisplay", null), Call("eglInitialize", data, data, data),
                     Call("eglChooseConfig", data, data, data, 1, data) +
                         " 12339 4 12352 4 12324 8 12323 8 12322 8 12321 8",
                     Call("eglCreateContext", data, data, null, data) + " 12440 2",
                     Call("eglCreateWindowSurface", data, data,
                          reinterpret_cast<uintptr_t>(window.Native()), null),
                     Call("eglMakeCurrent", data, data, data, data),
                     Call("eglQuerySurface", data, data, 0x3057, data),
                     Call("eglQuerySurface", data, data, 0x3056, data), Call("glGetString", 0x1F02),
                     Call("glGetString", 0x1F00), Call("glGetString", 0x1F01)}));
    ReadWindowSize();
    const Log log = harness::TakeLog();
    EGLint major = 0;
    EGLint minor = 0;
    eglInitialize(manager.display, &major, &minor); // again, for the version
    EXPECT_EQ(log, (Log{{2, "EGLManager",
                         "Initialized EGL v" + std::to_string(major) + "." + std::to_string(minor)},
                        GlLine("Version", GL_VERSION),
                        GlLine("Vendor", GL_VENDOR),
                        GlLine("Renderer", GL_RENDERER)}));
    EXPECT_EQ(manager.GetWindowWidth(), windowWidth);
    EXPECT_EQ(manager.GetWindowHeight(), windowHeight);
    EXPECT_EQ(eglGetCurrentSurface(EGL_DRAW), manager.surface);
    EXPECT_EQ(eglGetCurrentSurface(EGL_READ), manager.surface);
    EXPECT_EQ(eglGetCurrentContext(), manager.context);
}

TEST_F(EGLManagerGLTest, ReleasesInOrderAndOnlyOnce) {
    SetUpAndBind();
    EXPECT_EQ(manager.SwapBuffers(), EGLBoolean{EGL_TRUE});
    harness::FailCall("eglSwapBuffers");
    EXPECT_EQ(manager.SwapBuffers(), EGLBoolean{EGL_FALSE});
    EXPECT_EQ(harness::Record([&] { manager.EGLRelease(); }),
              (Calls{Call("eglDestroyContext", data, data), Call("eglDestroySurface", data, data),
                     Call("eglMakeCurrent", data, null, null, null), Call("eglTerminate", data),
                     Call("eglReleaseThread")}));
    EXPECT_EQ(harness::TakeLog(), Log{releasing});
    ExpectReleased();
    EXPECT_EQ(harness::Record([&] { manager.Release(); }), Calls());
    EXPECT_EQ(harness::TakeLog(), (Log{releasing, released}));
    EXPECT_EQ(manager.GetWindowWidth(), windowWidth);
    EXPECT_EQ(manager.GetWindowHeight(), windowHeight);
    SetUpAndBind();
}

TEST_F(EGLManagerGLTest, LogsTheErrorThatEglReports) {
    // EGL_BAD_DISPLAY, as there is no display.
    EXPECT_EQ(manager.MakeCurrent(), ZO_FAILURE);
    EXPECT_EQ(manager.ReCreateWindowSurface(window.Native()), ZO_NO_WINDOW_SURFACE);
    EXPECT_EQ(harness::TakeLog(), (Log{{6, "EGLManager", "egl make current failed: 0x3008"},
                                       {6, "EGLManager", "eglCreateWindowSurface error: 0x3008"},
                                       releasing,
                                       released}));
}

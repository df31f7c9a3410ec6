#include "support/SurfaceFixture.h"

#include <EGL/egl.h>

using harness::Call;
using Calls = std::vector<std::string>;

namespace {

constexpr char data[] = "data";
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

    /// Which of the fields are set: "display config context surface".
    std::string Fields() const {
        std::string fields = manager.display == EGL_NO_DISPLAY ? "" : "display ";
        fields += manager.config == nullptr ? "" : "config ";
        fields += manager.context == EGL_NO_CONTEXT ? "" : "context ";
        return fields + (manager.surface == EGL_NO_SURFACE ? "" : "surface ");
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
const std::string unbindCall = Call("eglMakeCurrent", data, null, null, null);

} // namespace

TEST_F(EGLManagerGLTest, SetsUpInOrderAndLogsTheDriver) {
    EXPECT_EQ(Fields(), "");
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
    eglInitialize(manager.display, &major, &minor); // of an open display only tells the version
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
    EXPECT_EQ(harness::Record([&] { manager.EGLRelease(); }),
              (Calls{Call("eglDestroyContext", data, data), Call("eglDestroySurface", data, data),
                     unbindCall, Call("eglTerminate", data), Call("eglReleaseThread")}));
    EXPECT_EQ(harness::TakeLog(), Log{releasing});
    EXPECT_EQ(Fields(), "");
    EXPECT_EQ(harness::Record([&] { manager.Release(); }), Calls());
    EXPECT_EQ(harness::TakeLog(), (Log{releasing, released}));
    EXPECT_EQ(manager.GetWindowWidth(), windowWidth);
    EXPECT_EQ(manager.GetWindowHeight(), windowHeight);
    SetUpAndBind();
}

TEST_F(EGLManagerGLTest, ReportsFailuresOfTheSurfaceWithEglsOwnError) {
    // With no display, EGL itself says EGL_BAD_DISPLAY.
    EXPECT_EQ(manager.MakeCurrent(), ZO_FAILURE);
    EXPECT_EQ(manager.ReCreateWindowSurface(window.Native()), ZO_NO_WINDOW_SURFACE);
    EXPECT_EQ(harness::TakeLog(), (Log{{6, "EGLManager", "egl make current failed: 0x3008"},
                                       {6, "EGLManager", "eglCreateWindowSurface error: 0x3008"},
                                       releasing,
                                       released}));
    SetUpAndBind();
    EXPECT_EQ(manager.CreateWindowSurface(window.Native()), ZO_FAILURE);
    EXPECT_EQ(Fields(), "display config context surface ");
    EXPECT_EQ(manager.SwapBuffers(), EGLBoolean{EGL_TRUE});
    harness::FailCall("eglSwapBuffers");
    EXPECT_EQ(manager.SwapBuffers(), EGLBoolean{EGL_FALSE});
    harness::FailCall("eglCreateWindowSurface");
    EXPECT_EQ(manager.ReCreateWindowSurface(window.Native()), ZO_NO_WINDOW_SURFACE);
    EXPECT_EQ(Fields(), "");
}

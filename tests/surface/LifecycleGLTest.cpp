// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "support/LifecycleFixture.h"

namespace {

class LifecycleGLTest : public LifecycleFixture {
protected:
    void ExpectWindowSize(int width, int height) const {
        EXPECT_EQ(surface->ZoGetWindowWidth(), static_cast<unsigned int>(width));
        EXPECT_EQ(surface->ZoGetWindowHeight(), static_cast<unsigned int>(height));
    }
};

const harness::LogLine releasing = {2, "EGLManager", "EGLManager::EGLRelease"};
const harness::LogLine released = {5, "EGLManager", "EGL Context has been released\n"};

harness::LogLine GlLine(const std::string& what, GLenum name) {
    const auto* text = reinterpret_cast<const char*>(glGetString(name));
    return {6, "EGLManager", "GL " + what + " = " + text + "\n"};
}

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

TEST_F(LifecycleGLTest, BindsInOrderAndLogsTheDriver) {
    const Calls calls = harness::Record([&] { surface->ZoCreateGLWindowSurface(window.Native()); });
    EXPECT_EQ(calls, (Calls{Call("eglGetDisplay", "null"), Call("eglInitialize", data, data, data),
                            Call("eglChooseConfig", data,
                                 "12339 4 12352 4 12324 8 12323 8 12322 8 12321 8 ", data, 1, data),
                            Call("eglCreateContext", data, data, "null", "12440 2 ")} +
                      OpenWindow(window.Native())));
    const EGLManager& manager = *surface->eglManager;
    const Log log = harness::TakeLog();
    EGLint major = 0;
    EGLint minor = 0;
    eglInitialize(manager.display, &major, &minor); // again, for the version
    const std::string version = std::to_string(major) + "." + std::to_string(minor);
    EXPECT_EQ(log, (Log{SurfaceLine("Create GL window\n", 5),
                        {2, "EGLManager", "Initialized EGL v" + version},
                        GlLine("Version", GL_VERSION),
                        GlLine("Vendor", GL_VENDOR),
                        GlLine("Renderer", GL_RENDERER)}));
    EXPECT_EQ(Components(), "pool ");
    ReadWindowSize();
    ExpectWindowSize(windowWidth, windowHeight);
    EXPECT_EQ(Target(ZO_WINDOW_HANDLE).height, windowHeight);
    EXPECT_EQ(eglGetCurrentSurface(EGL_DRAW), manager.surface);
    EXPECT_EQ(eglGetCurrentSurface(EGL_READ), manager.surface);
    EXPECT_EQ(eglGetCurrentContext(), manager.context);
}

TEST_F(LifecycleGLTest, ReleasesEglInOrderAndOnlyOnce) {
    Bind();
    EGLManager& manager = *surface->eglManager;
    EXPECT_EQ(manager.SwapBuffers(), EGLBoolean{EGL_TRUE});
    harness::FailCall("eglSwapBuffers");
    EXPECT_EQ(manager.SwapBuffers(), EGLBoolean{EGL_FALSE});
    EXPECT_EQ(harness::Record([&] { manager.EGLRelease(); }),
              (Calls{Call("eglDestroyContext", data, data), Call("eglDestroySurface", data, data),
                     Call("eglMakeCurrent", data, "null", "null", "null"),
                     Call("eglTerminate", data), Call("eglReleaseThread")}));
    EXPECT_EQ(harness::TakeLog(), Log{releasing});
    EXPECT_TRUE(manager.display == EGL_NO_DISPLAY && manager.config == nullptr &&
                manager.context == EGL_NO_CONTEXT && manager.surface == EGL_NO_SURFACE);
    EXPECT_EQ(harness::Record([&] { manager.Release(); }), Calls());
    EXPECT_EQ(harness::TakeLog(), (Log{releasing, released}));
    EXPECT_EQ(manager.GetWindowWidth(), windowWidth);
    // EGL_BAD_DISPLAY, as there is no display.
    EXPECT_EQ(manager.MakeCurrent(), ZO_FAILURE);
    EXPECT_EQ(manager.ReCreateWindowSurface(window.Native()), ZO_NO_WINDOW_SURFACE);
    EXPECT_EQ(harness::TakeLog(), (Log{{6, "EGLManager", "egl make current failed: 0x3008"},
                                       {6, "EGLManager", "eglCreateWindowSurface error: 0x3008"},
                                       releasing,
                                       released}));
}

TEST_F(LifecycleGLTest, MovesToAnotherWindowAndKeepsTheRest) {
    Bind();
    ASSERT_EQ(surface->Init(allComponents), ZO_SUCCESS);
    const unsigned int buffer = CreateBuffer(8, 8);
    Fill(buffer, filling);
    const void* text = surface->osdText.get();

    const TestWindow other(200, 100);
    const Calls calls = harness::Record([&] {
        EXPECT_EQ(surface->ZoCreateGLWindowSurface(nullptr), ZO_INVALID_PARAM);
        EXPECT_EQ(surface->ZoCreateGLWindowSurface(other.Native()), ZO_SUCCESS);
    });
    EXPECT_EQ(calls, Calls{Call("eglDestroySurface", data, data)} + OpenWindow(other.Native()));
    EXPECT_EQ(harness::TakeLog()[1], SurfaceLine("ReCreate GL window\n", 5));
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
    EXPECT_EQ(harness::TakeLog()[0], SurfaceLine("ReCreate GL window\n", 5)); // without a font, too
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

TEST_F(LifecycleGLTest, InitReplacesARenderersProgramAndBuffer) {
    Bind();
    ASSERT_EQ(surface->Init(allComponents), ZO_SUCCESS);
    const std::string live = harness::DescribeLive();
    EXPECT_EQ(surface->osdText->Init() + surface->osdBlit->Init() + surface->osdBitmap->Init() +
                  surface->osdFrame->Init() + surface->osdRect->Init(),
              ZO_SUCCESS);
    EXPECT_EQ(harness::DescribeLive(), live);
    harness::FailCall("glCreateProgram");
    EXPECT_EQ(surface->osdRect->Init(), ZO_PROGRAM_FAILED);
    EXPECT_TRUE(surface->osdRect->program == 0 && surface->osdRect->vertexBuffer == 0);
}

TEST_F(LifecycleGLTest, InitCreatesWhatTheFlagsName) {
    constexpr char everything[] = "text blit bitmap frame rect pool ";
    const std::pair<unsigned int, const char*> cases[] = {
        {0, ""},         {0xFFFFFFC0, ""}, {0x01, "text "},    {0x02, "blit "}, {0x04, "bitmap "},
        {0x08, "rect "}, {0x10, "frame "}, {0x3F, everything}, {0x20, "pool "},
    };
    for (const auto& [flags, components] : cases) {
        SCOPED_TRACE(flags);
        surface->ZoDestoryGLWindowSurface();
        Bind();
        surface->fboManager.reset(); // the pool is one of the components
        EXPECT_EQ(surface->Init(flags), ZO_SUCCESS);
        EXPECT_EQ(Components(), components);
        const auto again = [&, wanted = flags] { surface->Init(wanted); };
        EXPECT_EQ(harness::Record(again), Calls()) << "a second Init changes nothing";
    }
    EXPECT_EQ(Target(0x10000).width, windowWidth);
}

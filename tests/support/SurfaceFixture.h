/// @file
/// A surface on a real X11 window and a real driver.
#ifndef ZOGLES_TESTS_SUPPORT_SURFACEFIXTURE_H
#define ZOGLES_TESTS_SUPPORT_SURFACEFIXTURE_H

#include "gl/EGLManager.h"
#include "gl/FBOManager.h"
#include "osd/OSDBitmap.h"
#include "osd/OSDBlit.h"
#include "osd/OSDFrame.h"
#include "osd/OSDRect.h"
#include "support/Harness.h"
#include "support/Image.h"
#include "text/OSDText.h"
#include "zogles/ZoGLDrawSurface.h"

#include <GLES2/gl2.h>
#include <gtest/gtest.h>
#include <memory>

/// A mapped X11 window, whose display connection is its own.
class TestWindow {
public:
    TestWindow(int width, int height);
    ~TestWindow();
    TestWindow(const TestWindow&) = delete;
    TestWindow& operator=(const TestWindow&) = delete;

    ANativeWindow* Native() const;

    /// What the X server shows of the window; waits, a while at most, until `isDone` says yes.
    Image Grab(const std::function<bool(const Image&)>& isDone) const;

private:
    void* display;
    unsigned long window;
    int width;
    int height;
};

/// After every test: no GL error, and once the surface is destroyed no live object.
class SurfaceFixture : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    /// Binds the surface to the window and forgets what that logged.
    void Bind();

    /// Asks EGL for the size of the window that is bound.
    void ReadWindowSize();

    /// Creates an off-screen buffer; fails the test if it can't.
    unsigned int CreateBuffer(unsigned int width, unsigned int height);

    /// The pixels of a target, the window's back buffer included.
    Image Read(unsigned int handle);

    /// The target's record.
    tagFrameBuffObject Target(unsigned int handle);

    /// Says that the test made a GL error on purpose.
    void ExpectGlError(GLenum error);

    /// Checks the GL state that every drawing operation leaves behind.
    void ExpectStateAfterDraw(GLenum activeTexture);

    /// The window's size: what the tests ask for and, once the surface is bound, what EGL says.
    /// Devices may give every window the size of the screen.
    int windowWidth = 160;
    int windowHeight = 120;
    TestWindow window{windowWidth, windowHeight};
    std::unique_ptr<ZoGLDrawSurface> surface;
};

/// The lines of an operation's log, for comparison with harness::TakeLog().
using Log = std::vector<harness::LogLine>;

#endif

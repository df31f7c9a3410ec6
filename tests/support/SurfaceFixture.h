// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// A surface on an X11 window and a driver.
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

/// A mapped X11 window and its connection to the server.
class TestWindow {
public:
    TestWindow(int width, int height);
    ~TestWindow();
    TestWindow(const TestWindow&) = delete;
    TestWindow& operator=(const TestWindow&) = delete;

    ANativeWindow* Native() const;

private:
    void* display;
    unsigned long window;
};

/// Expects after every test that GL has no error, and no object once the surface is destroyed.
class SurfaceFixture : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    /// Binds the surface to the window and drops the log of it.
    void Bind();

    /// Asks EGL for the size of the window that is bound.
    void ReadWindowSize();

    /// Creates an off-screen buffer; fails the test if it can't.
    unsigned int CreateBuffer(unsigned int width, unsigned int height);

    /// Fills a whole target.
    void Fill(unsigned int handle, const Pixel& pixel);

    /// The pixels of a target; the window's are those of its back buffer.
    Image Read(unsigned int handle);

    /// The target's record.
    tagFrameBuffObject Target(unsigned int handle);

    /// Expects a GL error that the test made on purpose, and clears all errors.
    void ExpectGlError(GLenum error);

    /// Expects the GL state that every drawing operation leaves.
    void ExpectStateAfterDraw(GLenum activeTexture);

    /// The window's size: what the tests ask for and, once the surface is bound, what EGL says.
    /// Devices may give every window the size of the screen.
    int windowWidth = 160;
    int windowHeight = 120;
    TestWindow window{windowWidth, windowHeight};
    std::unique_ptr<ZoGLDrawSurface> surface;
};

/// For comparison with harness::TakeLog().
using Log = std::vector<harness::LogLine>;

#endif

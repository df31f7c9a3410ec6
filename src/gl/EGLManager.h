// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// The EGL side of a surface: display, OpenGL ES 2.0 context and window surface.
#ifndef ZOGLES_GL_EGLMANAGER_H
#define ZOGLES_GL_EGLMANAGER_H

#include "zogles/ZoGLDrawSurface.h"

#include <EGL/egl.h>

/// Initialises EGL on a window, presents frames and releases EGL. A failing step of set-up or
/// binding is logged with EGL's error value. The client owns the window.
class ZOGLES_API EGLManager {
public:
    EGLManager();
    ~EGLManager();

    EGLManager(const EGLManager&) = delete;
    EGLManager& operator=(const EGLManager&) = delete;

    /// Opens and initialises the display, chooses a configuration and creates the context. After a
    /// failure, `EGLRelease` releases what was obtained before it.
    /// @return ZO_SUCCESS, or ZO_NO_DISPLAY to ZO_NO_CONTEXT
    int EGLSetupContext();

    /// First set-up on a window: context, then window surface.
    /// @return ZO_SUCCESS, a code of `EGLSetupContext`, ZO_NO_WINDOW_SURFACE (everything is
    ///     released), or ZO_FAILURE if a surface exists already (nothing is changed)
    int CreateWindowSurface(ANativeWindow* window);

    /// Replaces the window surface and keeps display and context.
    /// @return ZO_SUCCESS, or ZO_NO_WINDOW_SURFACE (everything is released)
    int ReCreateWindowSurface(ANativeWindow* window);

    /// Makes the context current on the calling thread and asks EGL for the window's size.
    /// @return ZO_SUCCESS or ZO_FAILURE
    int MakeCurrent();

    /// Presents the back buffer.
    /// @return the result of `eglSwapBuffers`
    EGLBoolean SwapBuffers() const;

    /// Destroys context and surface, unbinds the calling thread and terminates the display, for the
    /// whole process. May be called in any state and more than once.
    void EGLRelease();

    /// The same as `EGLRelease`.
    void Release();

    /// Window width in pixels as last queried, also after a release.
    ZOGLES_INLINE EGLint GetWindowWidth() const { return width; }

    /// Window height in pixels as last queried, also after a release.
    ZOGLES_INLINE EGLint GetWindowHeight() const { return height; }

private:
    int OpenSurface(ANativeWindow* window);

    EGLDisplay display;
    EGLContext context;
    EGLSurface surface;
    EGLConfig config;
    EGLint width;
    EGLint height;
};

#endif

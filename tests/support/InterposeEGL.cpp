// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "support/Interpose.h"

#include <EGL/egl.h>

PASS_ON(EGLDisplay, eglGetDisplay, (EGLNativeDisplayType native), (native))
PASS_ON(EGLBoolean, eglInitialize, (EGLDisplay display, EGLint* major, EGLint* minor),
        (display, major, minor))
PASS_ON(EGLint, eglGetError, (), ())
PASS_ON(EGLBoolean, eglMakeCurrent,
        (EGLDisplay display, EGLSurface draw, EGLSurface read, EGLContext context),
        (display, draw, read, context))
PASS_ON(EGLBoolean, eglQuerySurface,
        (EGLDisplay display, EGLSurface surface, EGLint attribute, EGLint* value),
        (display, surface, attribute, value))
PASS_ON(EGLBoolean, eglReleaseThread, (), ())
PASS_ON(EGLBoolean, eglSwapBuffers, (EGLDisplay display, EGLSurface surface), (display, surface))
PASS_ON(EGLBoolean, eglTerminate, (EGLDisplay display), (display))
PASS_ON(EGLBoolean, eglChooseConfig,
        (EGLDisplay display, const EGLint* attributes, EGLConfig* configs, EGLint size,
         EGLint* count),
        (display, attributes, configs, size, count))

BEGIN_LIFE(EGLContext, eglCreateContext, "context",
           (EGLDisplay display, EGLConfig config, EGLContext share, const EGLint* attributes),
           (display, config, share, attributes))
END_LIFE(EGLBoolean, eglDestroyContext, "context", context, EGL_FALSE,
         (EGLDisplay display, EGLContext context), (display, context))
BEGIN_LIFE(EGLSurface, eglCreateWindowSurface, "window surface",
           (EGLDisplay display, EGLConfig config, EGLNativeWindowType window,
            const EGLint* attributes),
           (display, config, window, attributes))
END_LIFE(EGLBoolean, eglDestroySurface, "window surface", surface, EGL_FALSE,
         (EGLDisplay display, EGLSurface surface), (display, surface))

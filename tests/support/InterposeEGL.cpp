#include "support/Interpose.h"

#include <EGL/egl.h>

namespace {

// Appends the attributes to the recorded call.
void NoteAttributes(const EGLint* list) {
    if (harness::Current().isRecording) {
        for (; list != nullptr && *list != EGL_NONE; ++list) {
            harness::Current().calls.back() += ' ' + std::to_string(*list);
        }
    }
}

} // namespace

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

extern "C" EGLBoolean eglChooseConfig(EGLDisplay display, const EGLint* attributes,
                                      EGLConfig* configs, EGLint size, EGLint* count) {
    INTERPOSE(eglChooseConfig, (display, attributes, configs, size, count));
    NoteAttributes(attributes);
    return isFailing ? EGL_FALSE : real(display, attributes, configs, size, count);
}

extern "C" EGLContext eglCreateContext(EGLDisplay display, EGLConfig config, EGLContext share,
                                       const EGLint* attributes) {
    INTERPOSE(eglCreateContext, (display, config, share, attributes));
    NoteAttributes(attributes);
    EGLContext context = isFailing ? EGL_NO_CONTEXT : real(display, config, share, attributes);
    harness::AddLive("context", reinterpret_cast<size_t>(context));
    return context;
}

END_LIFE(EGLBoolean, eglDestroyContext, "context", context, EGL_FALSE,
         (EGLDisplay display, EGLContext context), (display, context))

extern "C" EGLSurface eglCreateWindowSurface(EGLDisplay display, EGLConfig config,
                                             EGLNativeWindowType window, const EGLint* attributes) {
    INTERPOSE(eglCreateWindowSurface, (display, config, window, attributes));
    EGLSurface surface = isFailing ? EGL_NO_SURFACE : real(display, config, window, attributes);
    harness::AddLive("window surface", reinterpret_cast<size_t>(surface));
    return surface;
}

END_LIFE(EGLBoolean, eglDestroySurface, "window surface", surface, EGL_FALSE,
         (EGLDisplay display, EGLSurface surface), (display, surface))

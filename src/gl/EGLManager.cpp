// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "gl/EGLManager.h"

#include "platform/Log.h"

#include <GLES2/gl2.h>

namespace {

constexpr char tag[] = "EGLManager";

void LogEglError(const char* format) {
    __android_log_print(LogError, tag, format, static_cast<unsigned int>(eglGetError()));
}

void LogGlString(const char* what, GLenum name) {
    const GLubyte* text = glGetString(name);
    __android_log_print(LogError, tag, "GL %s = %s\n", what,
                        text == nullptr ? "" : reinterpret_cast<const char*>(text));
}

} // namespace

EGLManager::EGLManager()
    : display(EGL_NO_DISPLAY), context(EGL_NO_CONTEXT), surface(EGL_NO_SURFACE), config(nullptr),
      width(0), height(0) {}

EGLManager::~EGLManager() {
    EGLRelease();
}

int EGLManager::EGLSetupContext() {
    display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
    if (display == EGL_NO_DISPLAY) {
        LogEglError("eglGetDisplay failed: %#x");
        return ZO_NO_DISPLAY;
    }
    EGLint major = 0;
    EGLint minor = 0;
    if (eglInitialize(display, &major, &minor) != EGL_TRUE) {
        LogEglError("eglInitialize failed: %#x");
        return ZO_DISPLAY_INIT_FAILED;
    }
    __android_log_print(LogVerbose, tag, "Initialized EGL v%d.%d", major, minor);

    // clang-format off
    const EGLint configAttributes[] = {EGL_SURFACE_TYPE, EGL_WINDOW_BIT,
                                       EGL_RENDERABLE_TYPE, EGL_OPENGL_ES2_BIT,
                                       EGL_RED_SIZE, 8,
                                       EGL_GREEN_SIZE, 8,
                                       EGL_BLUE_SIZE, 8,
                                       EGL_ALPHA_SIZE, 8,
                                       EGL_NONE};
    // clang-format on
    EGLint count = 0;
    if (eglChooseConfig(display, configAttributes, &config, 1, &count) != EGL_TRUE) {
        LogEglError("eglChooseConfig error: %#x");
        return ZO_NO_CONFIG;
    }
    const EGLint contextAttributes[] = {EGL_CONTEXT_CLIENT_VERSION, 2, EGL_NONE};
    context = eglCreateContext(display, config, EGL_NO_CONTEXT, contextAttributes);
    if (context == EGL_NO_CONTEXT) {
        LogEglError("eglCreateContext error: %#x");
        return ZO_NO_CONTEXT;
    }
    return ZO_SUCCESS;
}

int EGLManager::CreateWindowSurface(ANativeWindow* window) {
    if (surface != EGL_NO_SURFACE) {
        __android_log_print(LogError, tag, "surface already created");
        return ZO_FAILURE;
    }
    const int code = EGLSetupContext();
    return code == ZO_SUCCESS ? OpenSurface(window) : code;
}

int EGLManager::ReCreateWindowSurface(ANativeWindow* window) {
    if (surface != EGL_NO_SURFACE) {
        eglDestroySurface(display, surface);
        surface = EGL_NO_SURFACE;
    }
    return OpenSurface(window);
}

int EGLManager::OpenSurface(ANativeWindow* window) {
    surface = eglCreateWindowSurface(display, config, reinterpret_cast<EGLNativeWindowType>(window),
                                     nullptr);
    if (surface == EGL_NO_SURFACE) {
        LogEglError("eglCreateWindowSurface error: %#x");
        EGLRelease();
        return ZO_NO_WINDOW_SURFACE;
    }
    return ZO_SUCCESS;
}

int EGLManager::MakeCurrent() {
    if (eglMakeCurrent(display, surface, surface, context) == EGL_FALSE) {
        LogEglError("egl make current failed: %#x");
        return ZO_FAILURE;
    }
    eglQuerySurface(display, surface, EGL_WIDTH, &width);
    eglQuerySurface(display, surface, EGL_HEIGHT, &height);
    LogGlString("Version", GL_VERSION);
    LogGlString("Vendor", GL_VENDOR);
    LogGlString("Renderer", GL_RENDERER);
    return ZO_SUCCESS;
}

EGLBoolean EGLManager::SwapBuffers() const {
    return eglSwapBuffers(display, surface);
}

void EGLManager::EGLRelease() {
    __android_log_print(LogVerbose, tag, "EGLManager::EGLRelease");
    if (display == EGL_NO_DISPLAY) {
        __android_log_print(LogWarning, tag, "EGL Context has been released\n");
        return;
    }
    if (context != EGL_NO_CONTEXT) {
        eglDestroyContext(display, context);
        context = EGL_NO_CONTEXT;
    }
    if (surface != EGL_NO_SURFACE) {
        eglDestroySurface(display, surface);
        surface = EGL_NO_SURFACE;
    }
    eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
    eglTerminate(display);
    eglReleaseThread();
    display = EGL_NO_DISPLAY;
    config = nullptr;
}

void EGLManager::Release() {
    EGLRelease();
}

// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Binding, release and teardown order.

#include "gl/EGLManager.h"
#include "osd/OSDBitmap.h"
#include "osd/OSDBlit.h"
#include "osd/OSDFrame.h"
#include "osd/OSDRect.h"
#include "surface/Operations.h"
#include "text/FontAtlas.h"
#include "text/FontStyleAtlas.h"
#include "text/OSDText.h"

#include <new>

// cppcheck-suppress uninitMemberVar; InitFBO initialises fboInfo
ZoGLDrawSurface::ZoGLDrawSurface() {
    for (TagFboInfo& entry : fboInfo) {
        InitFBO(&entry);
    }
}

ZoGLDrawSurface::~ZoGLDrawSurface() {
    ZoDestoryGLWindowSurface();
}

int ZoGLDrawSurface::ZoCreateGLWindowSurface(ANativeWindow* window) {
    if (window == nullptr) {
        __android_log_print(LogError, surfaceTag, "native window is NULL\n");
        return ZO_INVALID_PARAM;
    }
    if (!eglManager) {
        eglManager.reset(new (std::nothrow) EGLManager());
        if (!eglManager) {
            return RefuseMemory();
        }
    }
    __android_log_print(LogWarning, surfaceTag,
                        surfaceCreated ? "ReCreate GL window\n" : "Create GL window\n");
    int code = surfaceCreated ? eglManager->ReCreateWindowSurface(window)
                              : eglManager->CreateWindowSurface(window);
    if (code != ZO_SUCCESS) {
        __android_log_print(LogError, surfaceTag, "Create openGLES window surface fail %d\n", code);
        ResetGLSource();
        return ToError(code);
    }
    code = eglManager->MakeCurrent();
    if (code != ZO_SUCCESS) {
        __android_log_print(LogError, surfaceTag, "Make current EGL context fail %d\n", code);
        return ToError(code);
    }
    surfaceCreated = true;
    windowWidth = static_cast<unsigned int>(eglManager->GetWindowWidth());
    windowHeight = static_cast<unsigned int>(eglManager->GetWindowHeight());
    if (!fboManager) {
        ResetFboSource();
    }
    return ZO_SUCCESS;
}

void ZoGLDrawSurface::ZoDestoryGLWindowSurface() {
    if (eglManager) {
        eglManager->Release();
        surfaceCreated = false;
    }
    ResetGLSource();
}

// If the context still exists, it is destroyed last. After a release, the other deletions run
// without a context and have no effect: GL has already deleted the objects with the context.
void ZoGLDrawSurface::ResetGLSource() {
    fontAtlas.reset();
    fontStyleAtlas.reset();
    fboManager.reset();
    osdText.reset();
    osdBlit.reset();
    osdBitmap.reset();
    osdFrame.reset();
    osdRect.reset();
    eglManager.reset();
    fontLoaded = false;
    surfaceCreated = false;
}

int ZoGLDrawSurface::Init(unsigned int flags) {
    if (const int code = osdText ? ZO_SUCCESS : OSDTextInit(flags); code != ZO_SUCCESS) {
        return code;
    }
    if (const int code = osdBlit ? ZO_SUCCESS : OSDBlitInit(flags); code != ZO_SUCCESS) {
        return code;
    }
    if (const int code = osdBitmap ? ZO_SUCCESS : OSDBitmapInit(flags); code != ZO_SUCCESS) {
        return code;
    }
    if (const int code = osdFrame ? ZO_SUCCESS : OSDFrameInit(flags); code != ZO_SUCCESS) {
        return code;
    }
    if (const int code = OSDRectInit(flags); code != ZO_SUCCESS) {
        return code;
    }
    return (flags & ZO_COMPONENT_FBO) != 0 ? EnsurePool() : ZO_SUCCESS;
}

int ZoGLDrawSurface::ZoRefreshOnSrceen() const {
    if (!eglManager) {
        __android_log_print(LogError, surfaceTag, "eglManager no init\n");
        return ZO_NO_EGL_MANAGER;
    }
    eglManager->SwapBuffers();
    return ZO_SUCCESS;
}

unsigned int ZoGLDrawSurface::ZoGetWindowWidth() const {
    return windowWidth;
}

unsigned int ZoGLDrawSurface::ZoGetWindowHeight() const {
    return windowHeight;
}

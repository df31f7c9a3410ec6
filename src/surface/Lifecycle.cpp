// Binding to a window, letting go of it, and what hangs on both.

#include "gl/EGLManager.h"
#include "gl/FBOManager.h"
#include "osd/OSDBitmap.h"
#include "osd/OSDBlit.h"
#include "osd/OSDFrame.h"
#include "osd/OSDRect.h"
#include "surface/Results.h"
#include "text/FontAtlas.h"
#include "text/FontStyleAtlas.h"
#include "text/OSDText.h"

#include <new>

namespace {

constexpr unsigned int defaultWindowWidth = 1920;
constexpr unsigned int defaultWindowHeight = 1080;

} // namespace

// cppcheck-suppress uninitMemberVar; InitFBO fills the table of buffers
ZoGLDrawSurface::ZoGLDrawSurface()
    : windowWidth(defaultWindowWidth), windowHeight(defaultWindowHeight), fontLoaded(false),
      surfaceCreated(false) {
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
    int code = ZO_SUCCESS;
    if (surfaceCreated) {
        __android_log_print(LogWarning, surfaceTag, "ReCreate GL window\n");
        code = eglManager->ReCreateWindowSurface(window);
    } else {
        __android_log_print(LogWarning, surfaceTag, "Create GL window\n");
        code = eglManager->CreateWindowSurface(window);
    }
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

// The context goes last where it still exists; after a release the deletions of the others run
// without one, which GL ignores: their objects went with the context.
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
    int code = osdText ? ZO_SUCCESS : OSDTextInit(flags);
    if (code == ZO_SUCCESS && !osdBlit) {
        code = OSDBlitInit(flags);
    }
    if (code == ZO_SUCCESS && !osdBitmap) {
        code = OSDBitmapInit(flags);
    }
    if (code == ZO_SUCCESS && !osdFrame) {
        code = OSDFrameInit(flags);
    }
    if (code == ZO_SUCCESS && !osdRect) {
        code = OSDRectInit(flags);
    }
    if (code == ZO_SUCCESS && (flags & ZO_COMPONENT_FBO) != 0) {
        code = EnsurePool();
    }
    return code;
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

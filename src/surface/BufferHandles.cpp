// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The off-screen buffers' handles, and the table from which buffers are restored after the GL
// context was lost.

#include "surface/Operations.h"

#include <GLES2/gl2.h>
#include <new>

// Replaces the pool and its buffers with an empty pool.
int ZoGLDrawSurface::CreatePool() {
    FBOManager* pool = new (std::nothrow)
        FBOManager(static_cast<int>(windowWidth), static_cast<int>(windowHeight));
    if (pool == nullptr) {
        return RefuseMemory();
    }
    fboManager.reset(pool);
    return ZO_SUCCESS;
}

int ZoGLDrawSurface::ZoCreateGLFBO(unsigned int* handle, unsigned int width, unsigned int height,
                                   int format) {
    if (handle == nullptr) {
        __android_log_print(LogError, surfaceTag, "param is invalid\n");
        return ZO_INVALID_PARAM;
    }
    if (!surfaceCreated) {
        __android_log_print(LogError, surfaceTag, "no window is bound, FBO is not created\n");
        return ZO_FAILURE;
    }
    if (const int code = EnsurePool(); code != ZO_SUCCESS) {
        return code;
    }
    const int glFormat = static_cast<int>(ConvertFormatToGLES(format));
    // A pool made while unbound lacks the recorded buffers, and would reissue their handles.
    unsigned int newHandle = fboManager->NewHandle(fboInfo);
    const int code = fboManager->GLCreateFBO(&newHandle, static_cast<int>(width),
                                             static_cast<int>(height), glFormat, true);
    if (code != ZO_SUCCESS) {
        __android_log_print(LogError, surfaceTag, "Create FBO fail %d\n", code);
        return ToError(code);
    }
    *handle = newHandle;
    SaveFboInfo(newHandle, static_cast<int>(width), static_cast<int>(height), glFormat);
    return ZO_SUCCESS;
}

int ZoGLDrawSurface::ZoDestoryGLFBO(unsigned int handle) {
    if (!fboManager) {
        __android_log_print(LogError, surfaceTag, "FBO manager is nullptr\n");
        return ZO_NO_FBO_MANAGER;
    }
    fboManager->GLDestoryFBO(handle);
    RemoveFBO(handle);
    return ZO_SUCCESS;
}

int ZoGLDrawSurface::ResetFboSource() {
    if (!surfaceCreated) {
        __android_log_print(LogError, surfaceTag, "no window is bound, FBOs are not restored\n");
        return ZO_FAILURE;
    }
    if (const int code = CreatePool(); code != ZO_SUCCESS) {
        return code;
    }
    for (TagFboInfo& entry : fboInfo) {
        if (entry.handle == ZO_NO_HANDLE) {
            continue;
        }
        const int code =
            fboManager->GLCreateFBO(&entry.handle, entry.width, entry.height, entry.format, true);
        if (code != ZO_SUCCESS) {
            __android_log_print(LogError, surfaceTag, "Reset FBO source fail %d, fbo %u\n", code,
                                entry.handle);
            return ToError(code);
        }
    }
    return ZO_SUCCESS;
}

void ZoGLDrawSurface::FBOManagerInit(unsigned int flags) {
    if ((flags & ZO_COMPONENT_FBO) != 0) {
        CreatePool();
    }
}

void ZoGLDrawSurface::SaveFboInfo(unsigned int handle, int width, int height, int format) {
    TagFboInfo* entry = FirstEntry(fboInfo, ZO_NO_HANDLE);
    if (entry == nullptr) {
        __android_log_print(LogError, surfaceTag, "num of the FBO more than max num %d \n",
                            fboInfoCount);
        return;
    }
    *entry = {handle, width, height, format};
}

void ZoGLDrawSurface::RemoveFBO(unsigned int handle) {
    TagFboInfo* entry = FindEntry(fboInfo, handle);
    if (entry == nullptr) {
        __android_log_print(LogError, surfaceTag, "FBO is not exist fboHandleIndex %u\n", handle);
        return;
    }
    InitFBO(entry);
}

void ZoGLDrawSurface::InitFBO(TagFboInfo* entry) const {
    *entry = {ZO_NO_HANDLE, 0, 0, GL_RGBA};
}

// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "gl/FBOManager.h"

#include "gl/RenderTarget.h"
#include "gl/Texture.h"
#include "platform/Log.h"

namespace {

constexpr char tag[] = "FBOManager";

const char* StatusMessage(GLenum status) {
    switch (status) {
    case GL_FRAMEBUFFER_COMPLETE:
        return "Framebuffer complete.\n";
    case GL_FRAMEBUFFER_INCOMPLETE_ATTACHMENT:
        return "Unable to set up render Target: RFRAMEBUFFER_INCOMPLETE_ATTACHMENT\n";
    case GL_FRAMEBUFFER_INCOMPLETE_MISSING_ATTACHMENT:
        return "Unable to set up render Target: GL_FRAMEBUFFER_INCOMPLETE_MISSING_ATTACHMENT\n";
    case GL_FRAMEBUFFER_INCOMPLETE_DIMENSIONS:
        return "Unable to set up render Target: GL_FRAMEBUFFER_INCOMPLETE_DIMENSIONS\n";
    case GL_FRAMEBUFFER_UNSUPPORTED:
        return "Unable to set up render Target: GL_FRAMEBUFFER_UNSUPPORTED\n";
    default:
        return "Framebuffer incomplete: Unknown error.\n";
    }
}

GLuint CreateTexture(int width, int height, int format) {
    const GLuint texture = GenerateTexture(GL_TEXTURE0);
    glBindTexture(GL_TEXTURE_2D, texture);
    AllocateTexture(static_cast<GLenum>(format), width, height, nullptr);
    FilterLinear();
    ClampToEdge();
    return texture;
}

GLuint CreateFramebuffer(GLuint texture) {
    GLuint framebuffer = 0;
    glGenFramebuffers(1, &framebuffer);
    if (framebuffer == 0) { // do not bind it: 0 is the window, which has another status
        __android_log_print(LogError, tag, "%s", StatusMessage(0));
        return 0;
    }
    glBindFramebuffer(GL_FRAMEBUFFER, framebuffer);
    glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, texture, 0);
    __android_log_print(LogError, tag, "%s",
                        StatusMessage(glCheckFramebufferStatus(GL_FRAMEBUFFER)));
    return framebuffer;
}

void DeleteObjects(const tagFrameBuffObject& slot) {
    if (slot.texture != 0) {
        glDeleteTextures(1, &slot.texture);
    }
    if (slot.framebuffer != 0) {
        glDeleteFramebuffers(1, &slot.framebuffer);
    }
}

} // namespace

FBOManager::FBOManager(int width, int height) {
    for (tagFrameBuffObject& slot : slots) {
        InitFBO(&slot);
    }
    slots[0] = {ZO_WINDOW_HANDLE, 0, 0, width, height};
}

FBOManager::~FBOManager() {
    for (const tagFrameBuffObject& slot : slots) {
        DeleteObjects(slot);
    }
}

int FBOManager::GLCreateFBO(unsigned int* handle, int width, int height, int format,
                            bool reuseHandle) {
    const unsigned int number = reuseHandle ? *handle : NewHandle({}); // no records
    tagFrameBuffObject* slot = FirstEntry(slots, ZO_NO_HANDLE);
    if (slot == nullptr || number == ZO_NO_HANDLE) {
        __android_log_print(LogError, tag, "num of the FBO more than max num %d \n", slotCount);
        return ZO_NO_FREE_FBO;
    }
    *handle = number;
    const GLuint texture = CreateTexture(width, height, format);
    const GLuint framebuffer = CreateFramebuffer(texture);
    glBindTexture(GL_TEXTURE_2D, 0);
    UnbindTarget();
    if (framebuffer == 0) {
        // Framebuffer 0 is the window. A target of size 0 keeps drawing from changing it.
        *slot = {number, texture, 0, 0, 0};
        return ZO_SUCCESS;
    }
    *slot = {number, texture, framebuffer, width, height};
    ClearFBOTex(slot, &transparentBlack);
    return ZO_SUCCESS;
}

unsigned int FBOManager::NewHandle(const TagFboInfo (&records)[slotCount]) const {
    const tagFrameBuffObject* slot = FirstEntry(slots, ZO_NO_HANDLE);
    if (slot == nullptr) {
        return ZO_NO_HANDLE;
    }
    const auto isUsed = [&](unsigned int handle) {
        return FindEntry(slots, handle) != nullptr || FindEntry(records, handle) != nullptr;
    };
    unsigned int handle = ZO_WINDOW_HANDLE | static_cast<unsigned int>(slot - slots);
    for (unsigned int number = 1; isUsed(handle); ++number) {
        if (number == slotCount) {
            return ZO_NO_HANDLE;
        }
        handle = ZO_WINDOW_HANDLE | number;
    }
    return handle;
}

void FBOManager::GLDestoryFBO(unsigned int handle) {
    tagFrameBuffObject* slot = FindEntry(slots, handle);
    if (slot == nullptr || slot == &slots[0]) {
        __android_log_print(LogError, tag, "FBO is not exist fboHandleIndex %u\n", handle);
        return;
    }
    DeleteObjects(*slot);
    InitFBO(slot);
}

void FBOManager::ClearFBOTex(const tagFrameBuffObject* fbo, const tagColorRGBA* color) const {
    if (fbo == nullptr || color == nullptr) {
        __android_log_print(LogError, tag, "FBO or color is nullptr\n");
        return;
    }
    BindTarget(fbo->framebuffer, fbo->width, fbo->height);
    ClearTarget(*color, GL_COLOR_BUFFER_BIT);
    UnbindTarget();
}

void FBOManager::NativeFBOOut(const tagFrameBuffObject* in, tagFrameBuffObject* out) const {
    *out = *in;
}

void FBOManager::InitFBO(tagFrameBuffObject* fbo) const {
    *fbo = {ZO_NO_HANDLE, 0, 0, 0, 0};
}

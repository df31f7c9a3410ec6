#include "gl/FBOManager.h"

#include "gl/RenderTarget.h"
#include "gl/Texture.h"
#include "platform/Log.h"

#include <iterator>

namespace {

constexpr char tag[] = "FBOManager";
constexpr int windowSlot = 0;
constexpr int firstBufferSlot = 1;

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
    if (framebuffer == 0) { // the window's, whose status says nothing of this buffer
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

// The first of the slots from `slot` up to `end` with that handle, or `end`. A client can pass
// ZO_NO_HANDLE, which marks free slots: it never matches.
template <typename Slot>
Slot* FindSlot(unsigned int handle, Slot* slot, Slot* end) {
    if (handle == ZO_NO_HANDLE) {
        return end;
    }
    while (slot != end && slot->handle != handle) {
        ++slot;
    }
    return slot;
}

} // namespace

FBOManager::FBOManager(int width, int height) {
    for (tagFrameBuffObject& slot : slots) {
        InitFBO(&slot);
    }
    slots[windowSlot] = {ZO_WINDOW_HANDLE, 0, 0, width, height};
}

FBOManager::~FBOManager() {
    for (int i = firstBufferSlot; i < slotCount; ++i) {
        DeleteObjects(slots[i]);
    }
}

int FBOManager::GLCreateFBO(unsigned int* handle, int width, int height, int format,
                            bool reuseHandle) {
    const int free = FreeSlot();
    const bool hasNoNumber = reuseHandle && *handle == ZO_NO_HANDLE;
    if (free == slotCount || hasNoNumber) {
        __android_log_print(LogError, tag, "num of the FBO more than max num %d \n", slotCount);
        return ZO_NO_FREE_FBO;
    }
    tagFrameBuffObject& slot = slots[free];
    slot.texture = CreateTexture(width, height, format);
    slot.framebuffer = CreateFramebuffer(slot.texture);
    glBindTexture(GL_TEXTURE_2D, 0);
    UnbindTarget();

    if (!reuseHandle) {
        *handle = NewHandle({});
    }
    slot.handle = *handle;
    if (slot.framebuffer == 0) {
        // Drawing would go to the window: with a target of size 0 it has no effect.
        slot.width = 0;
        slot.height = 0;
        return ZO_SUCCESS;
    }
    slot.width = width;
    slot.height = height;
    ClearFBOTex(&slot, &transparentBlack);
    return ZO_SUCCESS;
}

int FBOManager::FreeSlot() const {
    int slot = firstBufferSlot;
    while (slot < slotCount && slots[slot].handle != ZO_NO_HANDLE) {
        ++slot;
    }
    return slot;
}

unsigned int FBOManager::NewHandle(const TagFboInfo (&records)[slotCount]) const {
    const auto isUsed = [&](unsigned int handle) {
        return FindSlot(handle, std::begin(slots), std::end(slots)) != std::end(slots) ||
               FindSlot(handle, std::begin(records), std::end(records)) != std::end(records);
    };
    unsigned int handle = ZO_WINDOW_HANDLE | static_cast<unsigned int>(FreeSlot());
    for (int i = firstBufferSlot; isUsed(handle); ++i) {
        if (i == slotCount) {
            return ZO_NO_HANDLE;
        }
        handle = ZO_WINDOW_HANDLE | static_cast<unsigned int>(i);
    }
    return handle;
}

bool FBOManager::GetFBOInst(unsigned int handle, tagFrameBuffObject* out) const {
    const tagFrameBuffObject* slot = FindSlot(handle, std::begin(slots), std::end(slots));
    if (slot == std::end(slots)) {
        return false;
    }
    *out = *slot;
    return true;
}

void FBOManager::GLDestoryFBO(unsigned int handle) {
    tagFrameBuffObject* slot = FindSlot(handle, slots + firstBufferSlot, std::end(slots));
    if (slot == std::end(slots)) {
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

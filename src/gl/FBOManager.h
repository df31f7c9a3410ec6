// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// The pool of render targets: the window's framebuffer and up to 15 off-screen buffers.
#ifndef ZOGLES_GL_FBOMANAGER_H
#define ZOGLES_GL_FBOMANAGER_H

#include "zogles/ZoGLDrawSurface.h"

#include <GLES2/gl2.h>
#include <cstddef>

/// One render target. Copies refer to the same GL objects, which the pool owns.
struct tagFrameBuffObject {
    unsigned int handle; ///< ZO_NO_HANDLE marks a free slot
    GLuint texture;      ///< the pixels; 0 for the window
    GLuint framebuffer;  ///< 0 for the window
    int width;           ///< pixels
    int height;          ///< pixels
};

/// The first entry with that handle, or null. Pass ZO_NO_HANDLE to find the first free entry. Out
/// of line because FindEntry() rarely needs it.
template <typename Entry, size_t Count>
__attribute__((noinline)) Entry* FirstEntry(Entry (&entries)[Count], unsigned int handle) {
    for (Entry& entry : entries) {
        if (entry.handle == handle) {
            return &entry;
        }
    }
    return nullptr;
}

/// The entry with that handle, or null. ZO_NO_HANDLE, which a client can pass, never matches.
template <typename Entry, size_t Count>
Entry* FindEntry(Entry (&entries)[Count], unsigned int handle) {
    if (handle == ZO_NO_HANDLE) {
        return nullptr;
    }
    // Most buffers are in the slot that their number names.
    Entry* likely = &entries[handle % Count];
    return likely->handle == handle ? likely : FirstEntry(entries, handle);
}

/// A fixed table of render targets, looked up by handle. Allocates nothing.
///
/// Slot 0 is the window under ZO_WINDOW_HANDLE; slots 1 to 15 hold the off-screen buffers, each a
/// texture attached to a framebuffer object, both owned by the pool. A restored buffer keeps its
/// handle in any slot. New handles differ from all handles in use.
class ZOGLES_API FBOManager {
public:
    static constexpr int slotCount = 16;

    /// @param width,height the window's size in pixels. Makes no GL call.
    FBOManager(int width, int height);
    ~FBOManager();

    FBOManager(const FBOManager&) = delete;
    FBOManager& operator=(const FBOManager&) = delete;

    /// Creates a buffer in the lowest free slot, transparent black. The framebuffer's status is
    /// logged and otherwise ignored.
    /// @param handle receives the new handle; with `reuseHandle`, contains the handle to use, where
    ///     ZO_NO_HANDLE is treated like a full pool
    /// @param format GL pixel format of the texture
    /// @pre with `reuseHandle`, the handle names no target yet
    /// @return ZO_SUCCESS, or ZO_NO_FREE_FBO, with `*handle` unchanged
    int GLCreateFBO(unsigned int* handle, int width, int height, int format, bool reuseHandle);

    /// Chooses the handle of the next buffer: the number of its slot or, if a buffer or a record
    /// uses it, the lowest unused number.
    /// @param records buffers to restore
    /// @return ZO_NO_HANDLE if no number or no slot is left
    unsigned int NewHandle(const TagFboInfo (&records)[slotCount]) const;

    /// Copies the target with that handle, the window included.
    /// @return false if there is none; `out` is unchanged then
    ZOGLES_INLINE bool GetFBOInst(unsigned int handle, tagFrameBuffObject* out) const {
        const tagFrameBuffObject* target = FindEntry(slots, handle);
        if (target == nullptr) {
            return false;
        }
        *out = *target;
        return true;
    }

    /// Destroys an off-screen buffer; any other handle is logged.
    void GLDestoryFBO(unsigned int handle);

    /// Fills a whole target with a colour. Null pointers are logged.
    void ClearFBOTex(const tagFrameBuffObject* fbo, const tagColorRGBA* color) const;

    /// Copies a target's record.
    void NativeFBOOut(const tagFrameBuffObject* in, tagFrameBuffObject* out) const;

    /// Marks a slot as free.
    void InitFBO(tagFrameBuffObject* fbo) const;

private:
    tagFrameBuffObject slots[slotCount];
};

#endif

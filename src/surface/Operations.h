// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// Helpers that the surface's operations share: results, records, targets and components.
#ifndef ZOGLES_SURFACE_OPERATIONS_H
#define ZOGLES_SURFACE_OPERATIONS_H

#include "gl/FBOManager.h"
#include "platform/Log.h"
#include "platform/MemsetS.h"
#include "surface/Conversions.h"

#include <memory>
#include <new>
#include <utility>

/// The tag of every line that the surface logs.
constexpr char surfaceTag[] = "ZoGLDrawSurface";

/// Converts a component's nonzero code to the public code.
inline int ToError(int code) {
    const auto isWithin = [code](int first, int last) { return code >= first && code <= last; };
    if (isWithin(ZO_NO_DISPLAY, ZO_NO_WINDOW_SURFACE) || code == ZO_RESERVED_10 ||
        isWithin(ZO_RESERVED_13, ZO_NO_FREE_FBO) || code == ZO_PROGRAM_FAILED ||
        isWithin(ZO_FREETYPE_FAILED, ZO_FONT_ATLAS_EMPTY) ||
        isWithin(ZO_FAILURE, ZO_INVALID_PARAM)) {
        return code;
    }
    return code == ZO_RESERVED_12 ? ZO_RESERVED_11 : ZO_FAILURE;
}

/// Logs a null argument.
/// @return ZO_INVALID_PARAM
inline int RefuseNull() {
    __android_log_print(LogError, surfaceTag, "param is nullptr\n");
    return ZO_INVALID_PARAM;
}

/// Logs that an allocation failed.
/// @return ZO_FAILURE
inline int RefuseMemory() {
    LogOutOfMemory(surfaceTag);
    return ZO_FAILURE;
}

/// Logs that `memset_s` failed. Cold, so that it takes no registers from the drawing operations.
/// @return false
__attribute__((cold)) inline bool RefuseFill(int rc) {
    __android_log_print(LogError, surfaceTag, "memset_s_func failed, rc = %d", rc);
    return false;
}

/// Zeroes a record. Logs a failure.
template <typename Record>
bool ZeroRecord(Record* record) {
    const int rc = memset_s(record, sizeof(Record), 0, sizeof(Record));
    return rc == 0 || RefuseFill(rc);
}

/// Zeroes records in turn until one fails.
template <typename... Records>
bool ZeroRecords(Records*... records) {
    return (ZeroRecord(records) && ...);
}

inline Size SizeOf(const tagFrameBuffObject& target) {
    return {static_cast<unsigned int>(target.width), static_cast<unsigned int>(target.height)};
}

/// Looks up and copies the target of an operation. Logs a failure.
/// @return ZO_SUCCESS, ZO_INVALID_PARAM for an unknown handle, or ZO_FAILURE
inline int ZoGLDrawSurface::FindTarget(unsigned int handle, tagFrameBuffObject* target) {
    if (const int code = EnsurePool(); code != ZO_SUCCESS) {
        return code;
    }
    if (!ZeroRecord(target)) {
        return ZO_FAILURE;
    }
    if (fboManager->GetFBOInst(handle, target)) {
        return ZO_SUCCESS;
    }
    __android_log_print(LogError, surfaceTag, "There is not the fbo\n");
    return ZO_INVALID_PARAM;
}

/// Replaces a component with a new one, built from `args`, and initialises it. If this fails, the
/// component is destroyed, so that the next attempt starts from scratch.
/// @param failureFormat format of the log line on failure, with the component's code as argument
/// @return ZO_SUCCESS, or the public code for the component's code
template <typename Component, typename... Args>
int InstallComponent(std::unique_ptr<Component>& member, const char* failureFormat,
                     Args&&... args) {
    member.reset(new (std::nothrow) Component(std::forward<Args>(args)...));
    const int code = member ? member->Init() : RefuseMemory();
    if (code == ZO_SUCCESS) {
        return ZO_SUCCESS;
    }
    __android_log_print(LogError, surfaceTag, failureFormat, code);
    member.reset();
    return ToError(code);
}

#endif

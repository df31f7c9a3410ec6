/// @file
/// How the surface puts a component in place.
#ifndef ZOGLES_SURFACE_COMPONENTS_H
#define ZOGLES_SURFACE_COMPONENTS_H

#include "surface/Results.h"

#include <memory>
#include <new>
#include <utility>

/// Puts a new component in the place of `member`'s, built from `args`, and initialises it. One that
/// fails is dropped again, so that `member` is empty and the next attempt starts afresh.
/// @param failureFormat the line to log on failure; takes the component's code
/// @return ZO_SUCCESS, or the component's code as the client gets it
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

/// @file
/// How the surface turns what its components report into what a client gets.
#ifndef ZOGLES_SURFACE_RESULTS_H
#define ZOGLES_SURFACE_RESULTS_H

#include "platform/Log.h"
#include "surface/Records.h"

/// The public code for a component's nonzero code.
inline int ToError(int code) {
    switch (code) {
    case ZO_NO_DISPLAY:
    case ZO_DISPLAY_INIT_FAILED:
    case ZO_NO_CONFIG:
    case ZO_NO_CONTEXT:
    case ZO_NO_WINDOW_SURFACE:
    case ZO_RESERVED_10:
    case ZO_RESERVED_13:
    case ZO_RESERVED_14:
    case ZO_NO_FREE_FBO:
    case ZO_PROGRAM_FAILED:
    case ZO_FREETYPE_FAILED:
    case ZO_FONT_FACE_FAILED:
    case ZO_FONT_ATLAS_EMPTY:
    case ZO_FAILURE:
    case ZO_INVALID_PARAM:
        return code;
    case ZO_RESERVED_12:
        return ZO_RESERVED_11;
    default:
        return ZO_FAILURE;
    }
}

/// Says that a pointer which must not be null is.
/// @return ZO_INVALID_PARAM
inline int RefuseNull() {
    __android_log_print(LogError, surfaceTag, "param is nullptr\n");
    return ZO_INVALID_PARAM;
}

/// Says, under the tag of whoever needed it, that memory was refused.
/// @return ZO_FAILURE
inline int RefuseMemory(const char* tag = surfaceTag) {
    __android_log_print(LogError, tag, "out of memory\n");
    return ZO_FAILURE;
}

#endif

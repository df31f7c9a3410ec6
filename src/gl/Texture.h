// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// The library's textures: no mipmaps, linear filter, edge pixels repeated.
#ifndef ZOGLES_GL_TEXTURE_H
#define ZOGLES_GL_TEXTURE_H

#include <GLES2/gl2.h>
#include <algorithm>

/// Selects a texture unit and generates a texture name to bind there.
/// @return the name, or 0 if the driver is out of names
inline GLuint GenerateTexture(GLenum unit) {
    GLuint texture = 0;
    glActiveTexture(unit);
    glGenTextures(1, &texture);
    return texture;
}

/// Allocates the bound texture's storage, one byte per channel.
/// @param pixels rows starting at t = 0, or null for storage with undefined content
inline void AllocateTexture(GLenum format, GLsizei width, GLsizei height, const void* pixels) {
    // Drivers reject a size above their limit, but Mesa's software driver crashes at 2^28 and
    // above. No driver's limit is near 2^20, so a clamped size is still rejected.
    constexpr GLsizei beyondAllLimits = 1 << 20;
    glTexImage2D(GL_TEXTURE_2D, 0, static_cast<GLint>(format), std::min(width, beyondAllLimits),
                 std::min(height, beyondAllLimits), 0, format, GL_UNSIGNED_BYTE, pixels);
}

inline void FilterLinear() {
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
}

inline void ClampToEdge() {
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
}

#endif

/// @file
/// The textures that the library makes: no mipmaps, linear filter, edge pixels repeated.
#ifndef ZOGLES_GL_TEXTURE_H
#define ZOGLES_GL_TEXTURE_H

#include <GLES2/gl2.h>
#include <algorithm>

/// Selects a texture unit and generates a texture name to bind there.
/// @return the name, 0 when the driver has none left
inline GLuint GenerateTexture(GLenum unit) {
    GLuint texture = 0;
    glActiveTexture(unit);
    glGenTextures(1, &texture);
    return texture;
}

/// Gives the bound texture its storage, one byte a channel.
/// @param pixels in rows from t = 0 upwards, or null for storage without defined content
inline void AllocateTexture(GLenum format, GLsizei width, GLsizei height, const void* pixels) {
    // Drivers refuse a size past their limit, but Mesa's software driver crashes over one of 2^28
    // and more. No driver's limit is near 2^20, so what is cut here is refused all the same.
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

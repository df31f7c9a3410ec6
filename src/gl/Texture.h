/// @file
/// The textures that the library makes: no mipmaps, linear filter, edge pixels repeated.
#ifndef ZOGLES_GL_TEXTURE_H
#define ZOGLES_GL_TEXTURE_H

#include <GLES2/gl2.h>

/// Selects a texture unit and generates a texture name to bind there.
/// @return the name, 0 when the driver has none left
inline GLuint GenerateTexture(GLenum unit) {
    GLuint texture = 0;
    glActiveTexture(unit);
    glGenTextures(1, &texture);
    return texture;
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

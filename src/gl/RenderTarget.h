// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// Binds, clears and unbinds render targets.
#ifndef ZOGLES_GL_RENDERTARGET_H
#define ZOGLES_GL_RENDERTARGET_H

#include "surface/Records.h"

#include <GLES2/gl2.h>

/// Makes a framebuffer (0 is the window) the target and maps vertex space to its full size.
/// @param width,height pixels
inline void BindTarget(GLuint framebuffer, int width, int height) {
    glBindFramebuffer(GL_FRAMEBUFFER, framebuffer);
    glViewport(0, 0, width, height);
}

/// Every operation ends with the window's framebuffer bound.
inline void UnbindTarget() {
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
}

/// Fills the bound target with a colour, alpha included.
inline void ClearTarget(const tagColorRGBA& color, GLbitfield buffers) {
    glClearColor(color.r, color.g, color.b, color.a);
    glClear(buffers);
}

/// Enables blending with one pair of factors for colour and alpha.
inline void EnableBlending() {
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
}

constexpr tagColorRGBA transparentBlack = {0.0f, 0.0f, 0.0f, 0.0f};

#endif

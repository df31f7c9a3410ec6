// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// The textured quad that blit, presentation and bitmap share.
#ifndef ZOGLES_OSD_TEXTUREDQUAD_H
#define ZOGLES_OSD_TEXTUREDQUAD_H

#include "gl/RenderTarget.h"
#include "gl/RendererObjects.h"
#include "gl/Vertices.h"

constexpr char texturedFragmentSource[] = "precision mediump float;\n"
                                          "varying vec2 texpos;\n"
                                          "uniform sampler2D tex;\n"
                                          "void main() {\n"
                                          "    gl_FragColor = texture2D(tex, texpos);\n"
                                          "}\n";

/// Samples a texture through unit 0.
inline void BindSource(GLuint texture, GLint texLocation) {
    glActiveTexture(GL_TEXTURE0);
    glBindTexture(GL_TEXTURE_2D, texture);
    glUniform1i(texLocation, 0);
}

/// Loads a quad into the bound vertex buffer and draws its two triangles.
inline void DrawQuad(const Vertex (&quad)[4]) {
    static constexpr GLushort indices[] = {0, 1, 2, 3, 2, 1};
    LoadVertices(quad, 4);
    glDrawElements(GL_TRIANGLES, 6, GL_UNSIGNED_SHORT, indices);
}

/// Draws the region `texRect` of a buffer (texture space) at `posRect` (vertex space), without
/// flipping it.
inline void DrawRegion(const tagRectInfo& texRect, const tagRectInfo& posRect) {
    const Corners corners =
        SpanCorners(Vertex{posRect.x, posRect.y, texRect.x, texRect.y},
                    Vertex{posRect.width, -posRect.height, texRect.width, -texRect.height});
    DrawQuad({corners.bottomLeft, corners.bottomRight, corners.topLeft, corners.topRight});
}

/// Makes the window the target and clears it to transparent black: the first step of presentations
/// and bitmaps.
/// @param width,height the window's size in pixels
inline void ClearWindow(int width, int height) {
    BindTarget(0, width, height);
    ClearTarget(transparentBlack, GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}

#endif

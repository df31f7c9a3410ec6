// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// Vertices, and their upload into a renderer's buffer, which is refilled for every draw.
#ifndef ZOGLES_GL_VERTICES_H
#define ZOGLES_GL_VERTICES_H

#include <GLES2/gl2.h>
#include <cstddef>

/// One vertex: a position, and two floats whose meaning depends on the shader (z and w, or the
/// texture coordinates s and t). Arithmetic applies to each of the four floats separately, as GCC
/// and Clang define it for vector types.
using Vertex = float __attribute__((vector_size(4 * sizeof(float))));

/// The corners of a rectangle, by their position on the screen.
struct Corners {
    Vertex topLeft;
    Vertex topRight;
    Vertex bottomLeft;
    Vertex bottomRight;
};

/// Spans a rectangle. For finite coordinates the result is exact: a product with 1 and a sum with 0
/// change at most the sign of a zero.
/// @param diagonal from the top-left to the bottom-right corner
inline Corners SpanCorners(Vertex topLeft, Vertex diagonal) {
    const Vertex across = {1.0f, 0.0f, 1.0f, 0.0f};
    const Vertex down = {0.0f, 1.0f, 0.0f, 1.0f};
    return {topLeft, topLeft + diagonal * across, topLeft + diagonal * down, topLeft + diagonal};
}

/// Feeds the attribute at `location` from `buffer`. If `glGenBuffers` returned 0, GL would read
/// vertices at address 0: the attribute stays disabled then, and nothing is drawn because all
/// vertices coincide.
inline void BindVertices(GLint location, GLuint buffer) {
    if (buffer != 0) {
        glEnableVertexAttribArray(static_cast<GLuint>(location));
    }
    glBindBuffer(GL_ARRAY_BUFFER, buffer);
    glVertexAttribPointer(static_cast<GLuint>(location), 4, GL_FLOAT, GL_FALSE, 0, nullptr);
}

/// Replaces the contents of the bound buffer.
inline void LoadVertices(const Vertex* vertices, size_t count) {
    glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(count * sizeof(Vertex)), vertices,
                 GL_DYNAMIC_DRAW);
}

/// Undoes `BindVertices`.
inline void UnbindVertices(GLint location) {
    glBindBuffer(GL_ARRAY_BUFFER, 0);
    glDisableVertexAttribArray(static_cast<GLuint>(location));
}

#endif

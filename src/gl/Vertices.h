/// @file
/// The one way in which vertices reach GL: a renderer's own buffer, filled anew for every draw.
#ifndef ZOGLES_GL_VERTICES_H
#define ZOGLES_GL_VERTICES_H

#include <GLES2/gl2.h>
#include <cstddef>

/// One vertex: a position, and two floats whose meaning is the shader's (z and w, or the texture
/// coordinates s and t).
struct Vertex {
    float x;
    float y;
    float s;
    float t;
};
static_assert(sizeof(Vertex) == 4 * sizeof(float));

/// Feeds the attribute at `location` from `buffer`. Where the driver had no name left for a buffer,
/// which is 0 then, GL would read vertices at address 0: the attribute stays off, so that all
/// vertices fall on one point and nothing is drawn.
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

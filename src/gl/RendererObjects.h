/// @file
/// The GL objects that every renderer has: a program, built by a helper of its own, and a buffer.
#ifndef ZOGLES_GL_RENDEREROBJECTS_H
#define ZOGLES_GL_RENDEREROBJECTS_H

#include "gl/ShaderProgram.h"

#include <GLES2/gl2.h>
#include <memory>

/// Builds a renderer's program with a new helper, or logs under the renderer's tag.
/// @return ZO_SUCCESS or ZO_PROGRAM_FAILED, with `program` 0 then
int BuildProgram(const char* tag, const char* vertexSource, const char* fragmentSource,
                 std::unique_ptr<ShaderProgram>& helper, GLuint& program);

/// Deletes buffer and program, those that exist. Harmless after the context is gone. The helper is
/// kept: it is destroyed with the renderer's members, after the glyph map.
void ReleaseObjects(const std::unique_ptr<ShaderProgram>& helper, GLuint& program,
                    GLuint& vertexBuffer);

#endif

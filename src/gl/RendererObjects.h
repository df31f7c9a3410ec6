/// @file
/// The GL objects of a renderer: a program, built by its helper, and a vertex buffer.
#ifndef ZOGLES_GL_RENDEREROBJECTS_H
#define ZOGLES_GL_RENDEREROBJECTS_H

#include "gl/ShaderProgram.h"

#include <GLES2/gl2.h>
#include <initializer_list>
#include <memory>

/// What a renderer's program is built from.
struct ProgramSource {
    const char* tag; ///< the renderer's, for the log
    const char* vertex;
    const char* fragment;
};

/// The renderer's members for its objects.
struct RendererObjects {
    std::unique_ptr<ShaderProgram>& helper;
    GLuint& program;
    GLuint& vertexBuffer;
};

/// A variable of the program, and the member that receives its location.
struct Location {
    const char* name;
    GLint& value;
};

/// Passes on a position and its texture coordinates. Shared by the textured quads and the text.
constexpr char texturedVertexSource[] = "attribute vec4 coord;\n"
                                        "varying vec2 texpos;\n"
                                        "void main() {\n"
                                        "    gl_Position = vec4(coord.xy, 0, 1);\n"
                                        "    texpos = coord.zw;\n"
                                        "}\n";

/// Replaces a renderer's objects by new ones and looks up the attribute, then the uniforms.
/// @return ZO_SUCCESS, or ZO_PROGRAM_FAILED, which is logged: program and buffer are 0 then
int BuildRenderer(const ProgramSource& source, const RendererObjects& objects,
                  const Location& attribute, std::initializer_list<Location> uniforms);

/// Deletes buffer and program, those that exist. Harmless after the context is gone. The helper
/// stays: it is destroyed with the renderer's other members, in their order.
void ReleaseRenderer(const RendererObjects& objects);

#endif

// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// The GL objects of a renderer: a program, built by its helper, and a vertex buffer.
#ifndef ZOGLES_GL_RENDEREROBJECTS_H
#define ZOGLES_GL_RENDEREROBJECTS_H

#include "gl/ShaderProgram.h"

#include <GLES2/gl2.h>
#include <initializer_list>
#include <memory>

/// The shader sources of a renderer.
struct ProgramSource {
    const char* tag; ///< log tag of the renderer
    const char* vertex;
    const char* fragment;
};

/// References to a renderer's members.
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

/// Passes a position and its texture coordinates through. Shared by textured quads and text.
constexpr char texturedVertexSource[] = "attribute vec4 coord;\n"
                                        "varying vec2 texpos;\n"
                                        "void main() {\n"
                                        "    gl_Position = vec4(coord.xy, 0, 1);\n"
                                        "    texpos = coord.zw;\n"
                                        "}\n";

/// Replaces a renderer's objects with new ones and looks up the attribute, then the uniforms.
/// @return ZO_SUCCESS, or ZO_PROGRAM_FAILED, which is logged and leaves program and buffer 0
int BuildRenderer(const ProgramSource& source, const RendererObjects& objects,
                  const Location& attribute, std::initializer_list<Location> uniforms);

/// Deletes the buffer and the program if they exist. Safe without a context. Keeps the helper: it
/// is destroyed with the renderer's other members, in their order.
void ReleaseRenderer(const RendererObjects& objects);

#endif

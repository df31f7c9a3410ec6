// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "osd/OSDRect.h"

#include "gl/RenderTarget.h"
#include "gl/RendererObjects.h"
#include "gl/Vertices.h"

namespace {

constexpr ProgramSource rectProgram = {"OSDRect",
                                       "attribute vec4 vPosition;\n"
                                       "void main() {\n"
                                       "    gl_Position = vPosition;\n"
                                       "}\n",
                                       "precision mediump float;\n"
                                       "uniform vec4 color;\n"
                                       "void main() {\n"
                                       "    gl_FragColor = color;\n"
                                       "}\n"};

} // namespace

OSDRect::OSDRect() : program(0), vertexBuffer(0), positionLocation(0), colorLocation(0) {}

OSDRect::~OSDRect() {
    ReleaseRenderer({shaderProgram, program, vertexBuffer});
}

int OSDRect::Init() {
    return BuildRenderer(rectProgram, {shaderProgram, program, vertexBuffer},
                         {"vPosition", positionLocation}, {{"color", colorLocation}});
}

void OSDRect::DrawRect(const tagFrameBuffObject* target, const tagRectInfo* rect,
                       const tagColorRGBA* color) const {
    BindTarget(target->framebuffer, target->width, target->height);
    glUseProgram(program);
    glUniform4fv(colorLocation, 1, &color->r);
    BindVertices(positionLocation, vertexBuffer);
    const Corners corners = SpanCorners(Vertex{rect->x, rect->y, 0.0f, 1.0f},
                                        Vertex{rect->width, -rect->height, 0.0f, 0.0f});
    const Vertex vertices[] = {corners.topLeft,     corners.topRight,   corners.bottomLeft,
                               corners.bottomRight, corners.bottomLeft, corners.topRight};
    LoadVertices(vertices, 6);
    glDrawArrays(GL_TRIANGLES, 0, 6);
    UnbindVertices(positionLocation);
    UnbindTarget();
}

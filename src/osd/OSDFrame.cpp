// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "osd/OSDFrame.h"

#include "osd/TexturedQuad.h"

OSDFrame::OSDFrame() : program(0), vertexBuffer(0), texLocation(0), coordLocation(0) {}

OSDFrame::~OSDFrame() {
    ReleaseRenderer({shaderProgram, program, vertexBuffer});
}

int OSDFrame::Init() {
    return BuildRenderer({"OSDFrame", texturedVertexSource, texturedFragmentSource},
                         {shaderProgram, program, vertexBuffer}, {"coord", coordLocation},
                         {{"tex", texLocation}});
}

void OSDFrame::DisplayFBO(unsigned int texture, const tagRectInfo* texRect,
                          const tagRectInfo* posRect, int width, int height) const {
    ClearWindow(width, height);
    glUseProgram(program);
    EnableBlending();
    BindSource(texture, texLocation);
    BindVertices(coordLocation, vertexBuffer);
    DrawRegion(*texRect, *posRect);
    glDisable(GL_BLEND);
    UnbindVertices(coordLocation);
    glBindTexture(GL_TEXTURE_2D, 0);
}

// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "osd/OSDBlit.h"

#include "osd/TexturedQuad.h"

OSDBlit::OSDBlit() : program(0), vertexBuffer(0), texLocation(0), coordLocation(0) {}

OSDBlit::~OSDBlit() {
    ReleaseRenderer({shaderProgram, program, vertexBuffer});
}

int OSDBlit::Init() {
    return BuildRenderer({"OSDBlit", texturedVertexSource, texturedFragmentSource},
                         {shaderProgram, program, vertexBuffer}, {"coord", coordLocation},
                         {{"tex", texLocation}});
}

void OSDBlit::Blit(const tagBlitInfo* info) const {
    BindTarget(info->dst.framebuffer, info->dst.width, info->dst.height);
    glUseProgram(program);
    BindSource(info->src.texture, texLocation);
    BlitByDrawing(&info->srcRect, &info->dstRect);
    glBindTexture(GL_TEXTURE_2D, 0);
    UnbindTarget();
}

void OSDBlit::BlitByDrawing(const tagRectInfo* texRect, const tagRectInfo* posRect) const {
    BindVertices(coordLocation, vertexBuffer);
    DrawRegion(*texRect, *posRect);
    UnbindVertices(coordLocation);
}

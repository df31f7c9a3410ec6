// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "osd/OSDBitmap.h"

#include "gl/Texture.h"
#include "osd/TexturedQuad.h"

OSDBitmap::OSDBitmap()
    : texture(0), program(0), vertexBuffer(0), texLocation(0), coordLocation(0) {}

OSDBitmap::~OSDBitmap() {
    ReleaseRenderer({shaderProgram, program, vertexBuffer});
}

int OSDBitmap::Init() {
    return BuildRenderer({"OSDBitmap", texturedVertexSource, texturedFragmentSource},
                         {shaderProgram, program, vertexBuffer}, {"coord", coordLocation},
                         {{"tex", texLocation}});
}

void OSDBitmap::CreateTexture(const tagBitmapInfo* info) {
    texture = GenerateTexture(GL_TEXTURE0);
    glBindTexture(GL_TEXTURE_2D, texture);
    AllocateTexture(info->format, info->width, info->height, info->data);
    // The glyph atlases set the alignment to 1. Rows of 4-byte pixels are the same under 1 and 4,
    // so restoring the default after the upload is enough.
    glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
    FilterLinear();
    ClampToEdge();
    glBindTexture(GL_TEXTURE_2D, 0);
}

void OSDBitmap::DeleteTexture() {
    if (texture != 0) {
        glDeleteTextures(1, &texture);
        texture = 0;
    }
}

void OSDBitmap::RenderBimap(const tagRectInfo* rect) const {
    // Client rows run top-down, so t = 0 is the top.
    const Corners corners = SpanCorners(Vertex{rect->x, rect->y, 0.0f, 0.0f},
                                        Vertex{rect->width, -rect->height, 1.0f, 1.0f});
    BindVertices(coordLocation, vertexBuffer);
    DrawQuad({corners.topLeft, corners.topRight, corners.bottomLeft, corners.bottomRight});
    UnbindVertices(coordLocation);
}

void OSDBitmap::DrawBitmap(const tagBitmapInfo* info, int width, int height) {
    CreateTexture(info);
    ClearWindow(width, height);
    glUseProgram(program);
    EnableBlending();
    BindSource(texture, texLocation);
    RenderBimap(&info->rect);
    glDisable(GL_BLEND);
    glBindTexture(GL_TEXTURE_2D, 0);
    DeleteTexture();
}

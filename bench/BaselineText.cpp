// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Text by hand, with six vertices per glyph, and the FreeType calls of fonts and styled text.

#include "Baseline.h"

#include "text/Pen.h"

#include FT_OUTLINE_H

namespace {

constexpr FT_Pos boldStrength = 64;
constexpr FT_Matrix slant = {0x10000, 0x3333, 0, 0x10000};

} // namespace

void Baseline::LoadFont(const char* path, unsigned int size) {
    atlas.LoadFontByPath(path, size);
    FT_Done_Face(face);
    FT_New_Face(freetype, path, 0, &face);
    const float width = static_cast<float>(atlas.GetFontTextureWidth());
    const float height = static_cast<float>(atlas.GetFontTextureHeight());
    glyphs.assign(0x10000, {});
    for (const auto& [code, glyph] : atlas.GetGlyphs()) {
        if (code < glyphs.size()) {
            const Box texture = {glyph.texX, glyph.texX + glyph.bitmapWidth / width, glyph.texY,
                                 glyph.texY + glyph.bitmapHeight / height};
            glyphs[code] = {IsOverhanging(glyph) ? 0.0f : glyph.bitmapLeft,
                            glyph.bitmapTop,
                            glyph.bitmapWidth,
                            glyph.bitmapHeight,
                            glyph.advanceX,
                            texture};
        }
    }
}

void Baseline::RenderFont(const char* path, unsigned int size) const {
    FT_Face font = nullptr;
    FT_New_Face(freetype, path, 0, &font);
    FT_Set_Pixel_Sizes(font, 0, size);
    for (int pass = 0; pass < 2; ++pass) {
        FT_UInt index = 0;
        for (FT_ULong code = FT_Get_First_Char(font, &index); index != 0;
             code = FT_Get_Next_Char(font, code, &index)) {
            FT_Load_Char(font, code, FT_LOAD_RENDER);
        }
    }
    FT_Done_Face(font);
}

void Baseline::RenderStyled(const tagZoTextInfo& text) const {
    FT_Set_Pixel_Sizes(face, 0, text.fontSize);
    FT_Matrix matrix = slant;
    FT_Set_Transform(face, text.italic != 0 ? &matrix : nullptr, nullptr);
    for (unsigned int i = 0; i < 2 * text.length; ++i) { // the library renders in two passes
        const FT_ULong unit = text.text[i % text.length];
        if (text.bold != 0) {
            FT_Load_Char(face, unit, FT_LOAD_DEFAULT);
            FT_Outline_Embolden(&face->glyph->outline, boldStrength);
            FT_Render_Glyph(face->glyph, FT_RENDER_MODE_NORMAL);
        } else {
            FT_Load_Char(face, unit, FT_LOAD_RENDER);
        }
    }
}

void Baseline::DrawText(const Target& target, const tagZoTextInfo& text, const Color& color,
                        unsigned int x, unsigned int y) {
    glBindFramebuffer(GL_FRAMEBUFFER, target.framebuffer);
    glViewport(0, 0, target.width, target.height);
    glUseProgram(textProgram);
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glUniform4fv(textColor, 1, color.data());
    glActiveTexture(GL_TEXTURE1);
    glBindTexture(GL_TEXTURE_2D, atlas.GetFontTexture());
    glUniform1i(textTexture, 1);
    glEnableVertexAttribArray(0);
    glBindBuffer(GL_ARRAY_BUFFER, textBuffer);
    glVertexAttribPointer(0, 4, GL_FLOAT, GL_FALSE, 0, nullptr);

    const float pixelX = 2.0f / static_cast<float>(target.width);
    const float pixelY = 2.0f / static_cast<float>(target.height);
    float pen = 2.0f * static_cast<float>(x) / static_cast<float>(target.width) - 1.0f;
    const float line = 1.0f - 2.0f * static_cast<float>(y) / static_cast<float>(target.height);
    Vertex* vertex = vertices.data();
    for (unsigned int i = 0; i < text.length; ++i, vertex += 6) {
        const Glyph& glyph = glyphs[text.text[i]];
        const Box& box = glyph.texture;
        const float left = pen + glyph.left * pixelX;
        const float right = left + glyph.width * pixelX;
        const float top = line + glyph.top * pixelY;
        const float bottom = top - glyph.height * pixelY;
        vertex[0] = {left, top, box.left, box.top};
        vertex[1] = {right, top, box.right, box.top};
        vertex[2] = {left, bottom, box.left, box.bottom};
        vertex[3] = {right, top, box.right, box.top};
        vertex[4] = {left, bottom, box.left, box.bottom};
        vertex[5] = {right, bottom, box.right, box.bottom};
        pen += glyph.advance * pixelX;
    }
    glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(sizeof(Vertex) * 6 * text.length),
                 vertices.data(), GL_DYNAMIC_DRAW);
    glDrawArrays(GL_TRIANGLES, 0, static_cast<GLsizei>(text.length * 6));
    glBindBuffer(GL_ARRAY_BUFFER, 0);
    glDisableVertexAttribArray(0);
    glDisable(GL_BLEND);
    glBindTexture(GL_TEXTURE_2D, 0);
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
}

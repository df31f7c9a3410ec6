// Text by hand: the same FreeType calls, the same atlases, and six vertices a glyph.

#include "Floor.h"

#include "text/GlyphPacker.h"

#include <algorithm>
#include FT_OUTLINE_H

namespace {

constexpr FT_Pos boldStrength = 64;
constexpr FT_Matrix slant = {0x10000, 0x3333, 0, 0x10000};
constexpr unsigned int largestAskedSize = 1024; // above it, the driver is asked for its limit

template <typename Visit>
void WalkFont(FT_Face face, Visit visit) {
    FT_UInt index = 0;
    for (FT_ULong code = FT_Get_First_Char(face, &index); index != 0;
         code = FT_Get_Next_Char(face, code, &index)) {
        if (FT_Load_Char(face, code, FT_LOAD_RENDER) == 0) {
            visit(face->glyph, code);
        }
    }
}

template <typename Visit>
void WalkText(FT_Face face, const char16_t* text, unsigned int length, bool isBold, Visit visit) {
    for (unsigned int i = 0; i < length; ++i) {
        if (isBold) {
            FT_Load_Char(face, text[i], FT_LOAD_DEFAULT);
            FT_Outline_Embolden(&face->glyph->outline, boldStrength);
            FT_Render_Glyph(face->glyph, FT_RENDER_MODE_NORMAL);
        } else {
            FT_Load_Char(face, text[i], FT_LOAD_RENDER);
        }
        visit(face->glyph, text[i]);
    }
}

unsigned int CutToDriver(unsigned int side) {
    if (side <= largestAskedSize) {
        return side;
    }
    GLint limit = 0;
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &limit);
    return std::min(side, static_cast<unsigned int>(limit));
}

} // namespace

void Floor::OpenFace(const char* path, Face* font) {
    FT_Init_FreeType(&font->library);
    FT_New_Face(font->library, path, 0, &font->face);
}

void Floor::CloseFace(Face* font) {
    if (font->library != nullptr) {
        FT_Done_Face(font->face);
        FT_Done_FreeType(font->library);
    }
    *font = {};
}

void Floor::SetUp(const Face& font, const Style& style) {
    FT_Set_Pixel_Sizes(font.face, 0, style.size);
    FT_Matrix matrix = slant;
    FT_Set_Transform(font.face, style.isItalic ? &matrix : nullptr, nullptr);
}

void Floor::StoreGlyph(FT_GlyphSlot slot, unsigned int x, unsigned int y, char16_t unit,
                       Atlas* atlas) {
    const float advance = static_cast<float>(slot->advance.x >> 6);
    const float width = static_cast<float>(slot->bitmap.width);
    const float height = static_cast<float>(slot->bitmap.rows);
    const float left = static_cast<float>(slot->bitmap_left);
    const float s0 = static_cast<float>(x) / static_cast<float>(atlas->width);
    const float t0 = static_cast<float>(y) / static_cast<float>(atlas->height);
    // A glyph that hangs out on both sides is drawn from the pen on.
    const bool isOverhanging = left < 0.0f && advance > 0.0f && advance < width;
    atlas->glyphs[unit] = {isOverhanging ? 0.0f : left,
                           static_cast<float>(slot->bitmap_top),
                           width,
                           height,
                           advance,
                           s0,
                           t0,
                           s0 + width / static_cast<float>(atlas->width),
                           t0 + height / static_cast<float>(atlas->height)};
}

template <typename Walk>
void Floor::BuildAtlas(GLenum unit, Atlas* atlas, Walk walk) {
    GlyphPacker sizing;
    walk([&sizing](FT_GlyphSlot slot, FT_ULong) {
        sizing.Place(slot->bitmap.width, slot->bitmap.rows);
    });
    atlas->width = sizing.Width();
    atlas->height = CutToDriver(sizing.Height());
    glActiveTexture(unit);
    glGenTextures(1, &atlas->texture);
    glBindTexture(GL_TEXTURE_2D, atlas->texture);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_ALPHA, static_cast<GLsizei>(atlas->width),
                 static_cast<GLsizei>(atlas->height), 0, GL_ALPHA, GL_UNSIGNED_BYTE, nullptr);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    GlyphPacker packer;
    walk([&packer, atlas](FT_GlyphSlot slot, FT_ULong code) {
        const FT_Bitmap& bitmap = slot->bitmap;
        const GlyphPacker::Position cell = packer.Place(bitmap.width, bitmap.rows);
        if (cell.y + bitmap.rows > atlas->height) {
            return;
        }
        glTexSubImage2D(GL_TEXTURE_2D, 0, static_cast<GLint>(cell.x), static_cast<GLint>(cell.y),
                        static_cast<GLsizei>(bitmap.width), static_cast<GLsizei>(bitmap.rows),
                        GL_ALPHA, GL_UNSIGNED_BYTE, bitmap.buffer);
        if (code <= 0xFFFF) {
            StoreGlyph(slot, cell.x, cell.y, static_cast<char16_t>(code), atlas);
        }
    });
    glBindTexture(GL_TEXTURE_2D, 0);
}

void Floor::LoadFont(const char* path, unsigned int size) {
    if (standard.texture != 0) {
        glDeleteTextures(1, &standard.texture);
    }
    Face font;
    OpenFace(path, &font);
    FT_Set_Pixel_Sizes(font.face, 0, size);
    BuildAtlas(GL_TEXTURE1, &standard, [&font](auto visit) { WalkFont(font.face, visit); });
    CloseFace(&font);
    CloseFace(&styledFont);
    OpenFace(path, &styledFont);
}

void Floor::RenderFont(const char* path, unsigned int size) {
    Face font;
    OpenFace(path, &font);
    FT_Set_Pixel_Sizes(font.face, 0, size);
    WalkFont(font.face, [](FT_GlyphSlot, FT_ULong) {});
    WalkFont(font.face, [](FT_GlyphSlot, FT_ULong) {});
    CloseFace(&font);
}

void Floor::RenderStyled(const char16_t* text, unsigned int length, const Style& style) {
    SetUp(styledFont, style);
    WalkText(styledFont.face, text, length, style.isBold, [](FT_GlyphSlot, FT_ULong) {});
    WalkText(styledFont.face, text, length, style.isBold, [](FT_GlyphSlot, FT_ULong) {});
}

void Floor::DrawLine(const Target& target, const char16_t* text, unsigned int length,
                     const Color& color, unsigned int x, unsigned int y) {
    DrawUnits(target, standard, GL_TEXTURE1, text, length, color, x, y);
}

void Floor::DrawStyled(const Target& target, const char16_t* text, unsigned int length,
                       const Style& style, const Color& color, unsigned int x, unsigned int y) {
    if (styled.texture != 0) {
        glDeleteTextures(1, &styled.texture);
    }
    SetUp(styledFont, style);
    BuildAtlas(GL_TEXTURE2, &styled,
               [&](auto visit) { WalkText(styledFont.face, text, length, style.isBold, visit); });
    DrawUnits(target, styled, GL_TEXTURE2, text, length, color, x, y);
}

void Floor::DrawUnits(const Target& target, const Atlas& atlas, GLenum textureUnit,
                      const char16_t* text, unsigned int length, const Color& color, unsigned int x,
                      unsigned int y) {
    glBindFramebuffer(GL_FRAMEBUFFER, target.framebuffer);
    glViewport(0, 0, target.width, target.height);
    glUseProgram(textProgram);
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glUniform4fv(textColor, 1, &color.r);
    glActiveTexture(textureUnit);
    glBindTexture(GL_TEXTURE_2D, atlas.texture);
    glUniform1i(textTexture, static_cast<GLint>(textureUnit - GL_TEXTURE0));
    glEnableVertexAttribArray(0);
    glBindBuffer(GL_ARRAY_BUFFER, textBuffer);
    glVertexAttribPointer(0, 4, GL_FLOAT, GL_FALSE, 0, nullptr);

    const float pixelX = 2.0f / static_cast<float>(target.width);
    const float pixelY = 2.0f / static_cast<float>(target.height);
    float pen = 2.0f * static_cast<float>(x) / static_cast<float>(target.width) - 1.0f;
    const float baseline = 1.0f - 2.0f * static_cast<float>(y) / static_cast<float>(target.height);
    const Glyph* glyphs = atlas.glyphs.data();
    Vertex* vertex = vertices.data();
    for (unsigned int i = 0; i < length; ++i, vertex += 6) {
        const Glyph& glyph = glyphs[text[i]];
        const float left = pen + glyph.left * pixelX;
        const float right = left + glyph.width * pixelX;
        const float top = baseline + glyph.top * pixelY;
        const float bottom = top - glyph.height * pixelY;
        vertex[0] = {left, top, glyph.s0, glyph.t0};
        vertex[1] = {right, top, glyph.s1, glyph.t0};
        vertex[2] = {left, bottom, glyph.s0, glyph.t1};
        vertex[3] = {right, top, glyph.s1, glyph.t0};
        vertex[4] = {left, bottom, glyph.s0, glyph.t1};
        vertex[5] = {right, bottom, glyph.s1, glyph.t1};
        pen += glyph.advance * pixelX;
    }
    glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(sizeof(Vertex) * 6 * length),
                 vertices.data(), GL_DYNAMIC_DRAW);
    glDrawArrays(GL_TRIANGLES, 0, static_cast<GLsizei>(length * 6));
    glBindBuffer(GL_ARRAY_BUFFER, 0);
    glDisableVertexAttribArray(0);
    glDisable(GL_BLEND);
    glBindTexture(GL_TEXTURE_2D, 0);
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
}

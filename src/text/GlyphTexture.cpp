// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "text/GlyphTexture.h"

#include "gl/Texture.h"
#include "platform/Log.h"
#include "text/GlyphBitmap.h"

#include <algorithm>
#include <climits>
#include <cstdint>

namespace {

// Pen advances are 26.6 fixed point, in 32 bits.
float WholePixels(FT_Pos advance) {
    return static_cast<float>(static_cast<std::uint32_t>(advance) >> 6);
}

} // namespace

void TextureLimit::Cut(unsigned int& width, unsigned int& height) {
    if (!Fits(std::max(width, height))) {
        width = std::min(width, Largest());
        height = std::min(height, Largest());
    }
}

unsigned int TextureLimit::Largest() {
    if (largest == 0) {
        GLint side = 0;
        glGetIntegerv(GL_MAX_TEXTURE_SIZE, &side);
        largest = static_cast<unsigned int>(side > 0 ? side : INT_MAX);
    }
    return largest;
}

GLuint CreateGlyphTexture(const AtlasKind& kind, unsigned int width, unsigned int height) {
    const GLuint texture = GenerateTexture(kind.unit);
    if (texture == 0) {
        __android_log_print(LogError, kind.tag, "Create texture fail\n");
        return 0;
    }
    glBindTexture(GL_TEXTURE_2D, texture);
    AllocateTexture(GL_ALPHA, static_cast<GLsizei>(width), static_cast<GLsizei>(height), nullptr);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    ClampToEdge();
    FilterLinear();
    return texture;
}

bool UploadGlyph(FT_GlyphSlot glyph, unsigned int x, unsigned int y) {
    const unsigned int width = glyph->bitmap.width;
    const unsigned int rows = glyph->bitmap.rows;
    std::vector<unsigned char> packed;
    const bool isEmpty = width == 0 || rows == 0;
    const void* coverage = isEmpty ? glyph->bitmap.buffer : TightCoverage(glyph, packed);
    if (!isEmpty && coverage == nullptr) {
        return false;
    }
    glTexSubImage2D(GL_TEXTURE_2D, 0, static_cast<GLint>(x), static_cast<GLint>(y),
                    static_cast<GLsizei>(width), static_cast<GLsizei>(rows), GL_ALPHA,
                    GL_UNSIGNED_BYTE, coverage);
    return true;
}

void DropAtlas(GLuint& texture, unsigned int& width, unsigned int& height, GlyphMap& glyphs) {
    if (texture != 0) {
        glDeleteTextures(1, &texture);
        glyphs.clear();
        texture = 0;
        width = 0;
        height = 0;
    }
}

tagGlyphInfo DescribeGlyph(FT_GlyphSlot glyph, int x, int y, unsigned int width,
                           unsigned int height) {
    return {WholePixels(glyph->advance.x),
            WholePixels(glyph->advance.y),
            static_cast<float>(glyph->bitmap.width),
            static_cast<float>(glyph->bitmap.rows),
            static_cast<float>(glyph->bitmap_left),
            static_cast<float>(glyph->bitmap_top),
            static_cast<float>(x) / static_cast<float>(width),
            static_cast<float>(y) / static_cast<float>(height)};
}

int CheckAtlasSize(const AtlasKind& kind, unsigned int width, unsigned int height) {
    if (width == 0 || height == 0) {
        __android_log_print(LogError, kind.tag, "Calculate texture width %ud, height %ud\n", width,
                            height);
        return ZO_FONT_ATLAS_EMPTY;
    }
    return ZO_SUCCESS;
}

void ReportLeftOut(const AtlasKind& kind, unsigned int count) {
    if (count != 0) {
        __android_log_print(LogError, kind.tag, "%u characters are left out of the texture\n",
                            count);
    }
}

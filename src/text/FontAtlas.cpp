// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "text/FontAtlas.h"

#include "text/GlyphTexture.h"

namespace {

// The last code point of Unicode. A hostile character map can go on to 0xFFFFFFFF, and loading four
// billion characters would take hours.
constexpr FT_ULong lastCharacter = 0x10FFFF;

// Renders every character that the face maps, in ascending order, and passes each to `visit`.
constexpr auto visitFace = [](const auto& visit, FT_Face face) {
    FT_UInt index = 0;
    for (FT_ULong code = FT_Get_First_Char(face, &index); index != 0 && code <= lastCharacter;
         code = FT_Get_Next_Char(face, code, &index)) {
        if (FT_Load_Char(face, code, FT_LOAD_RENDER) != 0) {
            __android_log_print(LogError, standardAtlas.tag, "Loading character %lu failed!\n",
                                code);
            continue;
        }
        visit(face->glyph, code);
    }
};

} // namespace

FontAtlas::FontAtlas() : texture(0), width(0), height(0) {}

FontAtlas::~FontAtlas() {
    DeleteTexture();
}

int FontAtlas::LoadFontByPath(const char* path, unsigned int size) {
    DeleteTexture();
    width = 0;
    height = 0;
    FT_Library library = nullptr;
    FT_Face face = nullptr;
    int code = OpenFace(standardAtlas.tag, path, library, face);
    if (code == ZO_SUCCESS) {
        code = LoadFont(face, size);
    }
    CloseFace(library, face);
    return code;
}

int FontAtlas::LoadFont(FT_Face face, unsigned int size) {
    DeleteTexture();
    SetPixelSize(standardAtlas.tag, face, size);
    return BuildAtlas(standardAtlas, *this, &FontAtlas::CreateAtlasTex, face);
}

int FontAtlas::CalculateTexSize(FT_Face face) {
    return SizeAtlas(standardAtlas, width, height, visitFace, face);
}

int FontAtlas::CreateAtlasTex() {
    texture = CreateGlyphTexture(standardAtlas, width, height);
    return texture == 0 ? ZO_FAILURE : ZO_SUCCESS;
}

void FontAtlas::FontToTexture(FT_Face face) {
    FillAtlas(standardAtlas, *this, visitFace, face);
    __android_log_print(LogWarning, standardAtlas.tag,
                        "Generated a %d x %d (%d kb) texture atlas\n", width, height,
                        (width * height) >> 10);
}

void FontAtlas::FontCharInfoToMap(FT_GlyphSlot glyph, int x, int y, unsigned long charCode) {
    glyphs[charCode] = DescribeGlyph(glyph, x, y, width, height);
}

void FontAtlas::DeleteTexture() {
    DropAtlas(texture, width, height, glyphs);
}

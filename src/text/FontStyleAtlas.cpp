// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "text/FontStyleAtlas.h"

#include "text/GlyphTexture.h"

namespace {

// Moves each point of a glyph to the right by a fifth of its height.
constexpr FT_Matrix slant = {0x10000, 0x3333, 0, 0x10000};

// Renders every unit of the text that can be loaded, in order, and passes each to `visit`.
// Emboldens here, so that sizing and filling get the same bitmaps.
constexpr auto visitText = [](const auto& visit, FT_Face face, const tagTextInfo& info) {
    if (face == nullptr) {
        return;
    }
    for (unsigned int i = 0; i < info.length && info.text[i] != 0; ++i) {
        const FT_ULong code = info.text[i];
        const FT_Error error =
            info.bold != 0 ? LoadBoldChar(face, code) : FT_Load_Char(face, code, FT_LOAD_RENDER);
        if (error == 0) {
            visit(face->glyph, code);
        }
    }
};

} // namespace

FontStyleAtlas::FontStyleAtlas()
    : face(nullptr), library(nullptr), texture(0), width(0), height(0) {}

// Deletes the texture directly: `DeleteTexture` would clear the map before the face is closed.
FontStyleAtlas::~FontStyleAtlas() {
    if (texture != 0) {
        glDeleteTextures(1, &texture);
    }
    CloseFace(library, face);
}

int FontStyleAtlas::LoadFontByPath(const char* path) {
    CloseFace(library, face);
    return OpenFace(styledAtlas.tag, path, library, face);
}

int FontStyleAtlas::GetFontTexture(const tagTextInfo* info, unsigned int* textureOut) {
    DeleteTexture();
    width = 0;
    height = 0;
    SetFontStyleAtlas(info);
    const int code = BuildAtlas(styledAtlas, *this, &FontStyleAtlas::CreateStyleTex, info);
    if (code == ZO_SUCCESS) {
        *textureOut = texture;
    }
    return code;
}

void FontStyleAtlas::SetFontStyleAtlas(const tagTextInfo* info) const {
    if (face == nullptr) {
        return;
    }
    SetPixelSize(styledAtlas.tag, face, info->fontSize);
    FT_Matrix matrix = slant;
    FT_Set_Transform(face, info->italic != 0 ? &matrix : nullptr, nullptr);
}

int FontStyleAtlas::CalculateTexSize(const tagTextInfo* info) {
    return SizeAtlas(styledAtlas, width, height, visitText, face, *info);
}

int FontStyleAtlas::CreateStyleTex() {
    texture = CreateGlyphTexture(styledAtlas, width, height);
    return texture == 0 ? ZO_FAILURE : ZO_SUCCESS;
}

void FontStyleAtlas::FontToTexture(const tagTextInfo* info) {
    FillAtlas(styledAtlas, *this, visitText, face, *info);
}

void FontStyleAtlas::FontCharInfoToMap(FT_GlyphSlot glyph, int x, int y, unsigned long charCode) {
    glyphs[charCode] = DescribeGlyph(glyph, x, y, width, height);
}

void FontStyleAtlas::DeleteTexture() {
    DropAtlas(texture, width, height, glyphs);
}

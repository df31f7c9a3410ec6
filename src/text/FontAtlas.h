// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// The standard atlas: a whole font at one size.
#ifndef ZOGLES_TEXT_FONTATLAS_H
#define ZOGLES_TEXT_FONTATLAS_H

#include "text/Glyph.h"

#include <ft2build.h>
#include FT_FREETYPE_H

/// One texture with every character that a font maps, at one pixel size, and the metrics of each.
/// Built when a font is loaded, then only read. Keeps no FreeType object.
///
/// Loading first empties the atlas, so the atlas is empty after a failure. Loading needs the
/// surface's GL context; it leaves texture unit 1 active with no texture bound and an unpack
/// alignment of 1.
class ZOGLES_API FontAtlas {
public:
    FontAtlas();
    ~FontAtlas();

    FontAtlas(const FontAtlas&) = delete;
    FontAtlas& operator=(const FontAtlas&) = delete;

    /// Builds the atlas from a font file.
    /// @param size glyph height in pixels; 0 means 40
    /// @return ZO_SUCCESS, a font code (30 to 32), or ZO_FAILURE
    int LoadFontByPath(const char* path, unsigned int size);

    /// Builds the atlas from an open face.
    /// @return ZO_SUCCESS, ZO_FONT_ATLAS_EMPTY or ZO_FAILURE
    int LoadFont(FT_Face face, unsigned int size);

    /// Finds the texture's size for the face's characters at its current size.
    /// @return ZO_SUCCESS or ZO_FONT_ATLAS_EMPTY
    int CalculateTexSize(FT_Face face);

    /// Creates the texture and leaves it bound on unit 1.
    /// @return ZO_SUCCESS or ZO_FAILURE
    int CreateAtlasTex();

    /// Renders every character into the bound texture and records it.
    void FontToTexture(FT_Face face);

    /// Records one glyph whose cell starts at (x, y) of the texture.
    void FontCharInfoToMap(FT_GlyphSlot glyph, int x, int y, unsigned long charCode);

    /// Deletes the texture and clears the records, if there is a texture.
    void DeleteTexture();

    /// The texture's name, or 0. The atlas owns the texture.
    ZOGLES_INLINE unsigned int GetFontTexture() const { return texture; }

    /// The records, by character code.
    ZOGLES_INLINE const GlyphMap& GetGlyphs() const { return glyphs; }

    /// Texture size in pixels.
    ZOGLES_INLINE unsigned int GetFontTextureWidth() const { return width; }
    ZOGLES_INLINE unsigned int GetFontTextureHeight() const { return height; }

private:
    unsigned int texture;
    unsigned int width;
    unsigned int height;
    GlyphMap glyphs;
};

#endif

// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// The styled atlas: the characters of one text, at its size and style.
#ifndef ZOGLES_TEXT_FONTSTYLEATLAS_H
#define ZOGLES_TEXT_FONTSTYLEATLAS_H

#include "surface/Records.h"
#include "text/Glyph.h"

#include <ft2build.h>
#include FT_FREETYPE_H

/// Keeps a font's face open and renders, for each request, the units of its text at its size and
/// style into a new texture. Nothing is cached: each request drops the result of the previous one.
///
/// A request reads the text up to its first zero unit and never past its `length`. It needs the
/// surface's GL context, and leaves texture unit 2 active with no texture bound and an unpack
/// alignment of 1.
class ZOGLES_API FontStyleAtlas {
public:
    FontStyleAtlas();
    ~FontStyleAtlas();

    FontStyleAtlas(const FontStyleAtlas&) = delete;
    FontStyleAtlas& operator=(const FontStyleAtlas&) = delete;

    /// Closes the open font file and opens another. Keeps the texture of the last request.
    /// @return ZO_SUCCESS; or ZO_FREETYPE_FAILED or ZO_FONT_FACE_FAILED, with no face open
    int LoadFontByPath(const char* path);

    /// Builds texture and records for one request.
    /// @param texture receives the texture's name, valid until the next request; unchanged on
    ///     failure. The atlas owns the texture
    /// @return ZO_SUCCESS; ZO_FONT_ATLAS_EMPTY, also while no face is open; or ZO_FAILURE
    int GetFontTexture(const tagTextInfo* info, unsigned int* texture);

    /// Applies the request's size and slant to the face.
    void SetFontStyleAtlas(const tagTextInfo* info) const;

    /// Finds the texture's size for the request's text.
    /// @return ZO_SUCCESS or ZO_FONT_ATLAS_EMPTY
    int CalculateTexSize(const tagTextInfo* info);

    /// Creates the texture and leaves it bound on unit 2.
    /// @return ZO_SUCCESS or ZO_FAILURE
    int CreateStyleTex();

    /// Renders every unit of the text into the bound texture and records it. For a repeated unit,
    /// the last occurrence is recorded.
    void FontToTexture(const tagTextInfo* info);

    /// Records one glyph whose cell starts at (x, y) of the texture.
    void FontCharInfoToMap(FT_GlyphSlot glyph, int x, int y, unsigned long charCode);

    /// Deletes the texture and clears the records, if there is a texture.
    void DeleteTexture();

    /// The records, by UTF-16 unit.
    ZOGLES_INLINE const GlyphMap& GetGlyphs() const { return glyphs; }

    /// Texture size in pixels.
    ZOGLES_INLINE unsigned int GetFontTextureWidth() const { return width; }
    ZOGLES_INLINE unsigned int GetFontTextureHeight() const { return height; }

private:
    FT_Face face;
    FT_Library library;
    unsigned int texture;
    unsigned int width;
    unsigned int height;
    GlyphMap glyphs;
};

#endif

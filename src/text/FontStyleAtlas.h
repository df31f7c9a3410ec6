/// @file
/// The styled atlas: the characters of one text, at its size and style.
#ifndef ZOGLES_TEXT_FONTSTYLEATLAS_H
#define ZOGLES_TEXT_FONTSTYLEATLAS_H

#include "surface/Records.h"
#include "text/Glyph.h"

#include <ft2build.h>
#include FT_FREETYPE_H

/// Keeps a font's face open and renders, for each request, just the units of its text at its size,
/// bold or italic as it asks, into a new texture. Nothing is cached: each request drops what the
/// one before it made.
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

    /// Opens a font file instead of the open one. The texture of the last request stays.
    /// @return ZO_SUCCESS, ZO_FREETYPE_FAILED or ZO_FONT_FACE_FAILED, with no face open then
    int LoadFontByPath(const char* path);

    /// Builds texture and records for one request.
    /// @param texture receives the texture's name, which stays the atlas's and valid until the next
    ///     request; untouched on failure
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

    /// Renders every unit of the text into the bound texture and records it. Of a repeated unit,
    /// the last occurrence is recorded.
    void FontToTexture(const tagTextInfo* info);

    /// Records one glyph whose cell starts at (x, y) of the texture.
    void FontCharInfoToMap(FT_GlyphSlot glyph, int x, int y, unsigned long charCode);

    /// Drops texture and records, if there is a texture.
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

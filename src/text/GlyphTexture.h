/// @file
/// The texture of an atlas and how glyphs get into it: what both atlases share.
#ifndef ZOGLES_TEXT_GLYPHTEXTURE_H
#define ZOGLES_TEXT_GLYPHTEXTURE_H

#include "text/FontFace.h"
#include "text/Glyph.h"
#include "text/GlyphPacker.h"

#include <GLES2/gl2.h>

/// The texture unit of each kind of atlas; unit 0 is left to buffers and bitmaps.
constexpr GLenum standardAtlasUnit = GL_TEXTURE1;
constexpr GLenum styledAtlasUnit = GL_TEXTURE2;

/// Whether the driver can make a texture of that size. Asks the driver only about sizes that go
/// beyond the rows of an ordinary atlas; a limit that it does not tell is taken as none.
bool FitsTexture(unsigned int width, unsigned int height);

/// Cuts a texture size down to what the driver can make.
void CutToLargestTexture(unsigned int& width, unsigned int& height);

/// Creates a texture of one coverage byte a texel, without defined content, and leaves it bound on
/// the unit. Logs under `tag` when there is none to be had.
/// @return its name, or 0
GLuint CreateGlyphTexture(const char* tag, GLenum unit, unsigned int width, unsigned int height);

/// Writes the slot's bitmap into the bound texture, as 8-bit coverage in rows without padding
/// whatever FreeType delivered.
/// @return false when the bitmap could not be converted; nothing is written then
bool UploadGlyph(FT_GlyphSlot glyph, unsigned int x, unsigned int y);

/// Drops texture and records, if there is a texture, and makes the size 0.
void DropAtlas(GLuint& texture, unsigned int& width, unsigned int& height, GlyphMap& glyphs);

/// The record of the slot's glyph in an atlas of `width` by `height` pixels, its cell at (x, y).
tagGlyphInfo DescribeGlyph(FT_GlyphSlot glyph, int x, int y, unsigned int width,
                           unsigned int height);

/// Logs under `tag` how many characters found no room, if any.
void ReportLeftOut(const char* tag, unsigned int count);

/// Sizes an atlas, or logs under `tag` that it would be empty.
/// @param walk called with a function that it calls with each loaded slot and its code
/// @return ZO_SUCCESS or ZO_FONT_ATLAS_EMPTY
template <typename Walk>
int SizeAtlas(const char* tag, Walk walk, unsigned int& width, unsigned int& height);

/// Renders an atlas into the bound texture of `width` by `height`. What finds no room is left out
/// and reported under `tag`.
/// @param walk as in `SizeAtlas`, loading the same glyphs in the same order
/// @param store called with the slot, x, y and code of each glyph that is in the texture
template <typename Walk, typename Store>
void FillAtlas(const char* tag, Walk walk, unsigned int width, unsigned int height, Store store);

void LogEmptyAtlas(const char* tag, unsigned int width, unsigned int height);

template <typename Walk>
int SizeAtlas(const char* tag, Walk walk, unsigned int& width, unsigned int& height) {
    GlyphPacker packer;
    walk([&packer](FT_GlyphSlot glyph, FT_ULong) {
        if (FitsTexture(glyph->bitmap.width, glyph->bitmap.rows)) {
            packer.Place(glyph->bitmap.width, glyph->bitmap.rows);
        }
    });
    width = packer.Width();
    height = packer.Height();
    if (width == 0 || height == 0) {
        LogEmptyAtlas(tag, width, height);
        return ZO_FONT_ATLAS_EMPTY;
    }
    CutToLargestTexture(width, height);
    return ZO_SUCCESS;
}

template <typename Walk, typename Store>
void FillAtlas(const char* tag, Walk walk, unsigned int width, unsigned int height, Store store) {
    GlyphPacker packer;
    unsigned int leftOut = 0;
    walk([&](FT_GlyphSlot glyph, FT_ULong code) {
        const unsigned int w = glyph->bitmap.width;
        const unsigned int h = glyph->bitmap.rows;
        if (!FitsTexture(w, h)) {
            ++leftOut;
            return;
        }
        const GlyphPacker::Position cell = packer.Place(w, h);
        if (cell.x + w > width || cell.y + h > height || !UploadGlyph(glyph, cell.x, cell.y)) {
            ++leftOut;
            return;
        }
        store(glyph, static_cast<int>(cell.x), static_cast<int>(cell.y), code);
    });
    ReportLeftOut(tag, leftOut);
}

#endif

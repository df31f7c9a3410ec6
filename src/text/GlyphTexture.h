/// @file
/// The texture of an atlas and how glyphs get into it: what both atlases share.
#ifndef ZOGLES_TEXT_GLYPHTEXTURE_H
#define ZOGLES_TEXT_GLYPHTEXTURE_H

#include "text/FontFace.h"
#include "text/Glyph.h"
#include "text/GlyphPacker.h"

#include <GLES2/gl2.h>

/// What tells one kind of atlas from the other.
struct AtlasKind {
    const char* tag; ///< for the log
    GLenum unit;     ///< its texture unit; unit 0 is left to buffers and bitmaps

    /// Up to this many pixels a side the driver is not asked whether it can make the texture.
    unsigned int trustedSide;
};

/// Every driver makes textures of 64 pixels a side; a font is loaded seldom enough to ask for more.
constexpr AtlasKind standardAtlas = {"FontAtlas", GL_TEXTURE1, 64};

/// One is built for each draw, so the driver is asked only about what goes beyond the rows of an
/// ordinary atlas.
constexpr AtlasKind styledAtlas = {"FontStyleAtlas", GL_TEXTURE2, 1024};

/// How large the driver can make a texture, asked for when first needed. A limit that it does not
/// tell is taken as none.
class TextureLimit {
public:
    explicit TextureLimit(const AtlasKind& kind) : trusted(kind.trustedSide) {}

    bool Fits(unsigned int width, unsigned int height);

    /// Cuts a texture size down to what the driver can make.
    void Cut(unsigned int& width, unsigned int& height);

private:
    unsigned int Largest();

    unsigned int trusted;
    unsigned int largest = 0; ///< 0 until it is asked for
};

/// Creates a texture of one coverage byte a texel, without defined content, and leaves it bound on
/// the kind's unit. Logs when the driver has no name for it. Exhausted driver memory is not detected,
/// because asking for GL errors would take a client's pending ones.
/// @return its name, or 0
GLuint CreateGlyphTexture(const AtlasKind& kind, unsigned int width, unsigned int height);

/// Writes the slot's bitmap into the bound texture, as 8-bit coverage in rows without padding
/// whatever FreeType delivered.
/// @return false when there are no pixels or they could not be converted; nothing is written then
bool UploadGlyph(FT_GlyphSlot glyph, unsigned int x, unsigned int y);

/// Drops texture and records, if there is a texture, and makes the size 0.
void DropAtlas(GLuint& texture, unsigned int& width, unsigned int& height, GlyphMap& glyphs);

/// The record of the slot's glyph in an atlas of `width` by `height` pixels, its cell at (x, y).
tagGlyphInfo DescribeGlyph(FT_GlyphSlot glyph, int x, int y, unsigned int width,
                           unsigned int height);

/// Logs how many characters found no room, if any.
void ReportLeftOut(const AtlasKind& kind, unsigned int count);

/// Sizes an atlas, or logs that it would be empty.
/// @param walk called with a function that it calls with each loaded slot and its code
/// @return ZO_SUCCESS or ZO_FONT_ATLAS_EMPTY
template <typename Walk>
int SizeAtlas(const AtlasKind& kind, Walk walk, unsigned int& width, unsigned int& height);

/// Renders an atlas into the bound texture of `width` by `height`. What finds no room is left out
/// and reported.
/// @param walk as in `SizeAtlas`, loading the same glyphs in the same order
/// @param store called with the slot, x, y and code of each glyph that is in the texture
template <typename Walk, typename Store>
void FillAtlas(const AtlasKind& kind, Walk walk, unsigned int width, unsigned int height,
               Store store);

void LogEmptyAtlas(const AtlasKind& kind, unsigned int width, unsigned int height);

template <typename Walk>
int SizeAtlas(const AtlasKind& kind, Walk walk, unsigned int& width, unsigned int& height) {
    GlyphPacker packer;
    TextureLimit limit(kind);
    walk([&](FT_GlyphSlot glyph, FT_ULong) {
        if (limit.Fits(glyph->bitmap.width, glyph->bitmap.rows)) {
            packer.Place(glyph->bitmap.width, glyph->bitmap.rows);
        }
    });
    width = packer.Width();
    height = packer.Height();
    if (width == 0 || height == 0) {
        LogEmptyAtlas(kind, width, height);
        return ZO_FONT_ATLAS_EMPTY;
    }
    limit.Cut(width, height);
    return ZO_SUCCESS;
}

template <typename Walk, typename Store>
void FillAtlas(const AtlasKind& kind, Walk walk, unsigned int width, unsigned int height,
               Store store) {
    GlyphPacker packer;
    unsigned int leftOut = 0;
    walk([&](FT_GlyphSlot glyph, FT_ULong code) {
        const unsigned int w = glyph->bitmap.width;
        const unsigned int h = glyph->bitmap.rows;
        // The texture is as large as the driver can make it, or as all that fits it: what is larger
        // was passed over in sizing.
        if (w > width || h > height) {
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
    ReportLeftOut(kind, leftOut);
}

#endif

/// @file
/// The texture of an atlas and how glyphs get into it: what both atlases share.
#ifndef ZOGLES_TEXT_GLYPHTEXTURE_H
#define ZOGLES_TEXT_GLYPHTEXTURE_H

#include "platform/Log.h"
#include "text/FontFace.h"
#include "text/Glyph.h"
#include "text/GlyphPacker.h"

#include <GLES2/gl2.h>
#include <algorithm>
#include <new>

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

    /// @param side the larger one of a texture or a glyph, in pixels
    bool Fits(unsigned int side) { return side <= trusted || side <= Largest(); }

    /// Cuts a texture size down to what the driver can make.
    void Cut(unsigned int& width, unsigned int& height);

private:
    unsigned int Largest();

    unsigned int trusted;
    unsigned int largest = 0; ///< 0 until it is asked for
};

/// Creates a texture of one coverage byte per texel, without defined content, and leaves it bound
/// on the kind's unit. Logs when the driver has no name for it. Exhausted driver memory is not
/// detected: asking for GL errors would take a client's pending ones.
/// @return its name, or 0
GLuint CreateGlyphTexture(const AtlasKind& kind, unsigned int width, unsigned int height);

/// Writes the slot's bitmap into the bound texture.
/// @return false when there are no pixels or they cannot be converted; nothing is written then
bool UploadGlyph(FT_GlyphSlot glyph, unsigned int x, unsigned int y);

/// Deletes texture and records, if there is a texture, and makes the size 0.
void DropAtlas(GLuint& texture, unsigned int& width, unsigned int& height, GlyphMap& glyphs);

/// The record of the slot's glyph in an atlas of `width` by `height` pixels, its cell at (x, y).
tagGlyphInfo DescribeGlyph(FT_GlyphSlot glyph, int x, int y, unsigned int width,
                           unsigned int height);

/// Logs a size without area.
/// @return ZO_SUCCESS or ZO_FONT_ATLAS_EMPTY
int CheckAtlasSize(const AtlasKind& kind, unsigned int width, unsigned int height);

/// Logs how many characters did not fit, if any.
void ReportLeftOut(const AtlasKind& kind, unsigned int count);

/// Sizes an atlas, or logs that it would be empty.
/// @param visitGlyphs function of a function and the source: calls the function with each loaded
///     slot and its code
/// @return ZO_SUCCESS or ZO_FONT_ATLAS_EMPTY
template <typename VisitGlyphs, typename... Source>
int SizeAtlas(const AtlasKind& kind, unsigned int& width, unsigned int& height,
              VisitGlyphs visitGlyphs, const Source&... source) {
    GlyphPacker packer;
    TextureLimit limit(kind);
    const auto place = [&](FT_GlyphSlot glyph, FT_ULong) {
        if (limit.Fits(std::max(glyph->bitmap.width, glyph->bitmap.rows))) {
            packer.Place(glyph->bitmap.width, glyph->bitmap.rows);
        }
    };
    visitGlyphs(place, source...);
    width = packer.Width();
    height = packer.Height();
    const int code = CheckAtlasSize(kind, width, height);
    if (code == ZO_SUCCESS) {
        limit.Cut(width, height);
    }
    return code;
}

/// Renders an atlas into the bound texture and records each glyph with `FontCharInfoToMap`. Glyphs
/// that do not fit are left out and reported.
/// @param visitGlyphs as in `SizeAtlas`, loading the same glyphs in the same order
template <typename Atlas, typename VisitGlyphs, typename... Source>
void FillAtlas(const AtlasKind& kind, Atlas& atlas, VisitGlyphs visitGlyphs,
               const Source&... source) {
    const unsigned int width = atlas.GetFontTextureWidth();
    const unsigned int height = atlas.GetFontTextureHeight();
    GlyphPacker packer;
    unsigned int leftOut = 0;
    const auto upload = [&](FT_GlyphSlot glyph, FT_ULong code) {
        const unsigned int w = glyph->bitmap.width;
        const unsigned int h = glyph->bitmap.rows;
        // A glyph larger than the texture was skipped in sizing.
        const bool isSized = w <= width && h <= height;
        const GlyphPacker::Position cell = isSized ? packer.Place(w, h) : GlyphPacker::Position();
        if (isSized && cell.x + w <= width && cell.y + h <= height &&
            UploadGlyph(glyph, cell.x, cell.y)) {
            atlas.FontCharInfoToMap(glyph, static_cast<int>(cell.x), static_cast<int>(cell.y),
                                    code);
        } else {
            ++leftOut;
        }
    };
    visitGlyphs(upload, source...);
    ReportLeftOut(kind, leftOut);
}

/// Sizes, creates and fills an atlas, and unbinds its texture. Refused memory empties the atlas.
/// @param create the atlas's operation that creates the texture
/// @param source what the atlas is made of: a face or a text request
/// @return ZO_SUCCESS, ZO_FONT_ATLAS_EMPTY or ZO_FAILURE
template <typename Atlas, typename Source>
int BuildAtlas(const AtlasKind& kind, Atlas& atlas, int (Atlas::*create)(), Source source) {
    if (const int code = atlas.CalculateTexSize(source); code != ZO_SUCCESS) {
        return code;
    }
    if (const int code = (atlas.*create)(); code != ZO_SUCCESS) {
        return code;
    }
    int code = ZO_SUCCESS;
    try {
        atlas.FontToTexture(source);
    } catch (const std::bad_alloc&) {
        LogOutOfMemory(kind.tag);
        atlas.DeleteTexture();
        code = ZO_FAILURE;
    }
    glBindTexture(GL_TEXTURE_2D, 0);
    return code;
}

#endif

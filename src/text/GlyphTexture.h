// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// Code that both atlases share: creates the texture and fills it with glyphs.
#ifndef ZOGLES_TEXT_GLYPHTEXTURE_H
#define ZOGLES_TEXT_GLYPHTEXTURE_H

#include "platform/Log.h"
#include "text/FontFace.h"
#include "text/Glyph.h"
#include "text/GlyphPacker.h"

#include <GLES2/gl2.h>
#include <algorithm>
#include <new>

/// The differences between the two atlases.
struct AtlasKind {
    const char* tag; ///< log tag
    GLenum unit;     ///< texture unit; buffers and bitmaps use unit 0

    /// The driver's limit is not queried for textures of up to this many pixels per side.
    unsigned int trustedSide;
};

/// Every driver supports 64 pixels per side. A font is loaded rarely, so the query costs little.
constexpr AtlasKind standardAtlas = {"FontAtlas", GL_TEXTURE1, 64};

/// Built for each draw, so the limit is queried only for unusually large atlases.
constexpr AtlasKind styledAtlas = {"FontStyleAtlas", GL_TEXTURE2, 1024};

/// The driver's limit for texture sizes, queried on first use. If the driver reports no limit, any
/// size fits.
class TextureLimit {
public:
    explicit TextureLimit(const AtlasKind& kind) : trusted(kind.trustedSide) {}

    /// @param side the longer side of a texture or a glyph, in pixels
    bool Fits(unsigned int side) { return side <= trusted || side <= Largest(); }

    /// Reduces a texture size to the limit.
    void Cut(unsigned int& width, unsigned int& height);

private:
    unsigned int Largest();

    unsigned int trusted;
    unsigned int largest = 0; ///< 0 until queried
};

/// Creates a texture with one coverage byte per texel and undefined content, and leaves it bound on
/// the kind's unit. Logs if the driver is out of names. Exhausted driver memory is not detected:
/// querying GL errors would consume the client's pending ones.
/// @return its name, or 0
GLuint CreateGlyphTexture(const AtlasKind& kind, unsigned int width, unsigned int height);

/// Writes the slot's bitmap into the bound texture.
/// @return false, with nothing written, if there are no pixels or they cannot be converted
bool UploadGlyph(FT_GlyphSlot glyph, unsigned int x, unsigned int y);

/// If there is a texture, deletes it, clears the records and sets the size to 0.
void DropAtlas(GLuint& texture, unsigned int& width, unsigned int& height, GlyphMap& glyphs);

/// The record of the slot's glyph in an atlas of `width` by `height` pixels, with its cell at (x, y).
tagGlyphInfo DescribeGlyph(FT_GlyphSlot glyph, int x, int y, unsigned int width,
                           unsigned int height);

/// Logs an empty size.
/// @return ZO_SUCCESS or ZO_FONT_ATLAS_EMPTY
int CheckAtlasSize(const AtlasKind& kind, unsigned int width, unsigned int height);

/// Logs how many characters did not fit, if any.
void ReportLeftOut(const AtlasKind& kind, unsigned int count);

/// Sizes an atlas, or logs that it would be empty.
/// @param visitGlyphs called with a function and the source; calls the function with each loaded
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

/// Sizes, creates and fills an atlas, and unbinds its texture. If memory is exhausted, the atlas is
/// emptied.
/// @param create the atlas's operation that creates the texture
/// @param source a face or a text request
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

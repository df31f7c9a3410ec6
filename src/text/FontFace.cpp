// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "text/FontFace.h"

#include "platform/Log.h"
#include "zogles/ZoGLDrawSurface.h"

#include FT_BITMAP_H
#include FT_OUTLINE_H

namespace {

constexpr FT_Pos boldStrength = 64; // one pixel, in FreeType's 26.6 units

void EmboldenBitmap(FT_GlyphSlot glyph) {
    if (FT_GlyphSlot_Own_Bitmap(glyph) == 0 &&
        FT_Bitmap_Embolden(glyph->library, &glyph->bitmap, boldStrength, boldStrength) == 0) {
        // The bitmap grows upwards, as in FreeType's FT_GlyphSlot_Embolden.
        glyph->bitmap_top += static_cast<FT_Int>(boldStrength >> 6);
    }
}

} // namespace

int OpenFace(const char* tag, const char* path, FT_Library& library, FT_Face& face) {
    if (FT_Init_FreeType(&library) != 0) {
        library = nullptr;
        __android_log_print(LogError, tag, "Failed to initialize freetype library");
        return ZO_FREETYPE_FAILED;
    }
    if (FT_New_Face(library, path, 0, &face) != 0) {
        face = nullptr;
        __android_log_print(LogError, tag, "Error loading font face");
        return ZO_FONT_FACE_FAILED;
    }
    return ZO_SUCCESS;
}

void CloseFace(FT_Library& library, FT_Face& face) {
    if (face != nullptr) {
        FT_Done_Face(face);
        face = nullptr;
    }
    if (library != nullptr) {
        FT_Done_FreeType(library);
        library = nullptr;
    }
}

void SetPixelSize(const char* tag, FT_Face face, unsigned int size) {
    if (FT_Set_Pixel_Sizes(face, 0, size == 0 ? defaultFontSize : size) != 0) {
        __android_log_print(LogError, tag, "set pixel size fail");
    }
}

FT_Error LoadBoldChar(FT_Face face, FT_ULong code) {
    const FT_Error error = FT_Load_Char(face, code, FT_LOAD_DEFAULT);
    if (error != 0) {
        return error;
    }
    // A glyph that cannot be emboldened, such as an outline without area, is shown unchanged.
    FT_GlyphSlot glyph = face->glyph;
    if (glyph->format == FT_GLYPH_FORMAT_OUTLINE) {
        FT_Outline_Embolden(&glyph->outline, boldStrength);
        return FT_Render_Glyph(glyph, FT_RENDER_MODE_NORMAL);
    }
    if (glyph->format == FT_GLYPH_FORMAT_BITMAP && glyph->internal != nullptr) {
        EmboldenBitmap(glyph);
    }
    return 0;
}

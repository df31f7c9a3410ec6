// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "support/Interpose.h"

#include FT_BITMAP_H
#include FT_OUTLINE_H

namespace {

constexpr FT_Error injectedError = FT_Err_Out_Of_Memory;

} // namespace

PASS_ON_OR(injectedError, FT_Error, FT_Set_Pixel_Sizes,
           (FT_Face face, FT_UInt width, FT_UInt height), (face, width, height))
PASS_ON_OR(injectedError, FT_Error, FT_Outline_Embolden, (FT_Outline * outline, FT_Pos strength),
           (outline, strength))
PASS_ON_OR(injectedError, FT_Error, FT_Render_Glyph, (FT_GlyphSlot glyph, FT_Render_Mode mode),
           (glyph, mode))
PASS_ON_OR(injectedError, FT_Error, FT_GlyphSlot_Own_Bitmap, (FT_GlyphSlot glyph), (glyph))
PASS_ON_OR(injectedError, FT_Error, FT_Bitmap_Embolden,
           (FT_Library library, FT_Bitmap* bitmap, FT_Pos xStrength, FT_Pos yStrength),
           (library, bitmap, xStrength, yStrength))
PASS_ON_OR(injectedError, FT_Error, FT_Bitmap_Convert,
           (FT_Library library, const FT_Bitmap* source, FT_Bitmap* target, FT_Int alignment),
           (library, source, target, alignment))

PASS_ON(void, FT_Set_Transform, (FT_Face face, FT_Matrix* matrix, FT_Vector* delta),
        (face, matrix, delta))

extern "C" FT_Error FT_Load_Char(FT_Face face, FT_ULong code, FT_Int32 flags) {
    INTERPOSE(FT_Load_Char, (face, code, flags));
    return isFailing ? injectedError : harness::Current().loadChar(face, code, flags);
}

// A failing step over the characters looks like the end of the font.
extern "C" FT_ULong FT_Get_First_Char(FT_Face face, FT_UInt* index) {
    INTERPOSE(FT_Get_First_Char, (face, index));
    return isFailing ? *index = 0 : harness::Current().firstChar(face, index);
}

extern "C" FT_ULong FT_Get_Next_Char(FT_Face face, FT_ULong code, FT_UInt* index) {
    INTERPOSE(FT_Get_Next_Char, (face, code, index));
    return isFailing ? *index = 0 : harness::Current().nextChar(face, code, index);
}

extern "C" FT_Error FT_Init_FreeType(FT_Library* library) {
    INTERPOSE(FT_Init_FreeType, (library));
    const FT_Error error = isFailing ? injectedError : real(library);
    if (error == 0) {
        harness::AddLive("FreeType library", *library);
    } else { // the library must not use the output of a failed call
        *library = reinterpret_cast<FT_Library>(library);
    }
    return error;
}

END_LIFE(FT_Error, FT_Done_FreeType, "FreeType library", library, injectedError,
         (FT_Library library), (library))

extern "C" FT_Error FT_New_Face(FT_Library library, const char* path, FT_Long index,
                                FT_Face* face) {
    INTERPOSE(FT_New_Face, (library, path, index, face));
    const std::string& instead = harness::Current().fontFile;
    const char* opened = instead.empty() ? path : instead.c_str();
    const FT_Error error = isFailing ? injectedError : real(library, opened, index, face);
    if (error == 0) {
        harness::AddLive("FreeType face", *face);
    } else {
        *face = reinterpret_cast<FT_Face>(face);
    }
    return error;
}

END_LIFE(FT_Error, FT_Done_Face, "FreeType face", face, injectedError, (FT_Face face), (face))

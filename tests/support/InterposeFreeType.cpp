#include "support/Interpose.h"

#include FT_BITMAP_H
#include FT_OUTLINE_H

namespace {

constexpr FT_Error injectedError = FT_Err_Out_Of_Memory;

} // namespace

// A function that returns an error and does nothing if a fault is set.
#define FAIL_OR_PASS_ON(name, parameters, arguments)                                               \
    extern "C" FT_Error name parameters {                                                          \
        INTERPOSE(name, arguments);                                                                \
        return isFailing ? injectedError : real arguments;                                         \
    }
FAIL_OR_PASS_ON(FT_Set_Pixel_Sizes, (FT_Face face, FT_UInt width, FT_UInt height),
                (face, width, height))
FAIL_OR_PASS_ON(FT_Outline_Embolden, (FT_Outline * outline, FT_Pos strength), (outline, strength))
FAIL_OR_PASS_ON(FT_Render_Glyph, (FT_GlyphSlot glyph, FT_Render_Mode mode), (glyph, mode))
FAIL_OR_PASS_ON(FT_GlyphSlot_Own_Bitmap, (FT_GlyphSlot glyph), (glyph))
FAIL_OR_PASS_ON(FT_Bitmap_Embolden,
                (FT_Library library, FT_Bitmap* bitmap, FT_Pos xStrength, FT_Pos yStrength),
                (library, bitmap, xStrength, yStrength))
FAIL_OR_PASS_ON(FT_Bitmap_Convert,
                (FT_Library library, const FT_Bitmap* source, FT_Bitmap* target, FT_Int alignment),
                (library, source, target, alignment))

PASS_ON(void, FT_Set_Transform, (FT_Face face, FT_Matrix* matrix, FT_Vector* delta),
        (face, matrix, delta))

extern "C" FT_Error FT_Load_Char(FT_Face face, FT_ULong code, FT_Int32 flags) {
    INTERPOSE(FT_Load_Char, (face, code, flags));
    if (isFailing) {
        return injectedError;
    }
    return harness::Current().loadChar ? harness::Current().loadChar(face, code, flags)
                                       : real(face, code, flags);
}

// A failing step over the characters looks like the end of the font.
extern "C" FT_ULong FT_Get_First_Char(FT_Face face, FT_UInt* index) {
    INTERPOSE(FT_Get_First_Char, (face, index));
    if (isFailing) {
        return *index = 0;
    }
    return harness::Current().firstChar ? harness::Current().firstChar(face, index)
                                        : real(face, index);
}

extern "C" FT_ULong FT_Get_Next_Char(FT_Face face, FT_ULong code, FT_UInt* index) {
    INTERPOSE(FT_Get_Next_Char, (face, code, index));
    if (isFailing) {
        return *index = 0;
    }
    return harness::Current().nextChar ? harness::Current().nextChar(face, code, index)
                                       : real(face, code, index);
}

extern "C" FT_Error FT_Init_FreeType(FT_Library* library) {
    INTERPOSE(FT_Init_FreeType, (library));
    const FT_Error error = isFailing ? injectedError : real(library);
    if (error == 0) {
        harness::AddLive("FreeType library", reinterpret_cast<size_t>(*library));
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
        harness::AddLive("FreeType face", reinterpret_cast<size_t>(*face));
    }
    return error;
}

END_LIFE(FT_Error, FT_Done_Face, "FreeType face", face, injectedError, (FT_Face face), (face))

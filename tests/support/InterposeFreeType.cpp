#include "support/Interpose.h"

#include FT_BITMAP_H
#include FT_OUTLINE_H

namespace {

constexpr FT_Error injectedError = FT_Err_Out_Of_Memory;

} // namespace

#define PASS_ON_FT(name, parameters, arguments)                                                    \
    extern "C" FT_Error name parameters {                                                          \
        INTERPOSE(name, arguments);                                                                \
        return isFailing ? injectedError : real arguments;                                         \
    }
PASS_ON_FT(FT_Set_Pixel_Sizes, (FT_Face face, FT_UInt width, FT_UInt height), (face, width, height))
PASS_ON_FT(FT_Render_Glyph, (FT_GlyphSlot slot, FT_Render_Mode mode), (slot, mode))
PASS_ON_FT(FT_Outline_Embolden, (FT_Outline * outline, FT_Pos strength), (outline, strength))
PASS_ON_FT(FT_Bitmap_Convert,
           (FT_Library library, const FT_Bitmap* source, FT_Bitmap* target, FT_Int alignment),
           (library, source, target, alignment))
PASS_ON_FT(FT_Bitmap_Embolden, (FT_Library library, FT_Bitmap* bitmap, FT_Pos x, FT_Pos y),
           (library, bitmap, x, y))
PASS_ON_FT(FT_GlyphSlot_Own_Bitmap, (FT_GlyphSlot slot), (slot))
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

extern "C" FT_ULong FT_Get_First_Char(FT_Face face, FT_UInt* index) {
    INTERPOSE(FT_Get_First_Char, (face, index));
    return harness::Current().firstChar ? harness::Current().firstChar(face, index)
                                        : real(face, index);
}

extern "C" FT_ULong FT_Get_Next_Char(FT_Face face, FT_ULong code, FT_UInt* index) {
    INTERPOSE(FT_Get_Next_Char, (face, code, index));
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

extern "C" FT_Error FT_Done_FreeType(FT_Library library) {
    INTERPOSE(FT_Done_FreeType, (library));
    harness::RemoveLive("FreeType library", reinterpret_cast<size_t>(library));
    return real(library);
}

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

extern "C" FT_Error FT_Done_Face(FT_Face face) {
    INTERPOSE(FT_Done_Face, (face));
    harness::RemoveLive("FreeType face", reinterpret_cast<size_t>(face));
    return real(face);
}

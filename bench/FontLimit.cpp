// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Limits fonts to their first characters, so that one font file gives atlases of every size.

#include "Driver.h"

#include <dlfcn.h>
#include <ft2build.h>
#include FT_FREETYPE_H

namespace {

// Globals, because the interposed functions have fixed parameters.
unsigned int limit = 0;
unsigned int enumerated = 0;

template <typename Function>
Function* Real(Function*, const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace

void LimitFont(unsigned int characters) {
    limit = characters;
}

FT_ULong FT_Get_First_Char(FT_Face face, FT_UInt* index) {
    static const auto real = Real(&FT_Get_First_Char, "FT_Get_First_Char");
    enumerated = 1;
    return real(face, index);
}

FT_ULong FT_Get_Next_Char(FT_Face face, FT_ULong code, FT_UInt* index) {
    static const auto real = Real(&FT_Get_Next_Char, "FT_Get_Next_Char");
    if (limit != 0 && enumerated >= limit) {
        *index = 0;
        return 0;
    }
    ++enumerated;
    return real(face, code, index);
}

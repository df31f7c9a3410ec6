// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "support/FakeFont.h"

#include "support/Harness.h"

#include <algorithm>
#include <memory>

void UseCharacters(const std::vector<unsigned long>& codes) {
    const auto visit = [codes](std::ptrdiff_t place, FT_UInt* index) {
        *index = place < static_cast<std::ptrdiff_t>(codes.size()) ? 1 : 0;
        return *index == 0 ? FT_ULong() : codes[static_cast<size_t>(place)];
    };
    harness::Current().loadChar = FT_Load_Char;
    harness::Current().firstChar = [=](FT_Face, FT_UInt* index) { return visit(0, index); };
    harness::Current().nextChar = [=](FT_Face, FT_ULong code, FT_UInt* index) {
        return visit(std::find(codes.begin(), codes.end(), code) - codes.begin() + 1, index);
    };
}

void UseFakeFont(std::vector<FakeGlyph> glyphs) {
    std::vector<FT_ULong> codes;
    for (FakeGlyph& glyph : glyphs) {
        codes.push_back(glyph.code);
        const size_t area = size_t{glyph.width} * glyph.rows;
        glyph.coverage.resize(std::max(area, glyph.coverage.size()), 255);
    }
    UseCharacters(codes);
    const auto font = std::make_shared<std::vector<FakeGlyph>>(std::move(glyphs));
    harness::Current().loadChar = [=](FT_Face face, FT_ULong code, FT_Int32) -> FT_Error {
        const auto glyph =
            std::find_if(font->begin(), font->end(),
                         [code](const FakeGlyph& candidate) { return candidate.code == code; });
        if (glyph == font->end() || glyph->isFailing) {
            return FT_Err_Invalid_Character_Code;
        }
        face->glyph->format = FT_GLYPH_FORMAT_BITMAP;
        face->glyph->advance = {FT_Pos{glyph->advance} * 64, FT_Pos{glyph->rise} * 64};
        face->glyph->bitmap_left = glyph->left;
        face->glyph->bitmap_top = glyph->top;
        const int pitch = glyph->pitch == 0 ? static_cast<int>(glyph->width) : glyph->pitch;
        face->glyph->bitmap = {glyph->rows,  glyph->width,       pitch, glyph->coverage.data(),
                               glyph->grays, FT_PIXEL_MODE_GRAY, 0,     nullptr};
        return 0;
    };
}

#include "FakeFont.h"

#include "support/Harness.h"

#include <algorithm>
#include <memory>

void UseFakeFont(std::vector<FakeGlyph> glyphs) {
    const auto font = std::make_shared<std::vector<FakeGlyph>>(std::move(glyphs));
    for (FakeGlyph& glyph : *font) {
        glyph.coverage.resize(std::max(glyph.coverage.size(), size_t{glyph.width} * glyph.rows),
                              255);
    }
    const auto find = [font](FT_ULong code) {
        return std::find_if(font->begin(), font->end(),
                            [code](const FakeGlyph& glyph) { return glyph.code == code; });
    };
    const auto visit = [font](auto glyph, FT_UInt* index) {
        *index = glyph == font->end() ? 0 : 1;
        return *index == 0 ? FT_ULong() : glyph->code;
    };
    harness::State& state = harness::Current();
    state.firstChar = [=](FT_Face, FT_UInt* index) { return visit(font->begin(), index); };
    state.nextChar = [=](FT_Face, FT_ULong code, FT_UInt* index) {
        return visit(find(code) + 1, index);
    };
    state.loadChar = [=](FT_Face face, FT_ULong code, FT_Int32) -> FT_Error {
        const auto glyph = find(code);
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

void UseFirst(int characters) {
    const auto count = std::make_shared<int>(0);
    harness::Current().loadChar = nullptr;
    harness::Current().firstChar = [=](FT_Face face, FT_UInt* index) {
        *count = 1;
        return FT_Get_First_Char(face, index);
    };
    harness::Current().nextChar = [=](FT_Face face, FT_ULong code, FT_UInt* index) {
        *index = 0;
        return ++*count > characters ? 0 : FT_Get_Next_Char(face, code, index);
    };
}

#include "ReferenceFont.h"

#include <cmath>
#include <stdexcept>

#include FT_OUTLINE_H

namespace {

float Channel(unsigned char value) {
    const float byte = static_cast<float>(value);
    return value <= 1 ? byte : byte / 255.0f;
}

void BlendPixel(Pixel& pixel, const tagZoColorRGBA& color, unsigned char coverage) {
    const float alpha = Channel(color.a) * static_cast<float>(coverage) / 255.0f;
    const float source[] = {Channel(color.r), Channel(color.g), Channel(color.b), alpha};
    for (size_t i = 0; i < pixel.size(); ++i) {
        const float under = static_cast<float>(pixel[i]) / 255.0f;
        pixel[i] = static_cast<unsigned char>(
            std::lround(255.0f * (source[i] * alpha + under * (1.0f - alpha))));
    }
}

} // namespace

ReferenceFont::ReferenceFont(const char* path) {
    const harness::Outside outside;
    if (FT_Init_FreeType(&library) != 0 || FT_New_Face(library, path, 0, &face) != 0) {
        throw std::runtime_error(path);
    }
}

ReferenceFont::~ReferenceFont() {
    const harness::Outside outside;
    FT_Done_Face(face);
    FT_Done_FreeType(library);
}

bool ReferenceFont::Load(char16_t unit, const Style& style) {
    const harness::Outside outside;
    FT_Matrix slant = {0x10000, 0x3333, 0, 0x10000};
    FT_Set_Pixel_Sizes(face, 0, style.size == 0 ? 40 : style.size);
    FT_Set_Transform(face, style.isItalic ? &slant : nullptr, nullptr);
    FT_Load_Char(face, unit, FT_LOAD_DEFAULT);
    if (style.isBold) {
        FT_Outline_Embolden(&face->glyph->outline, 64);
    }
    FT_Render_Glyph(face->glyph, FT_RENDER_MODE_NORMAL);
    return FT_Get_Char_Index(face, unit) != 0 && Width() != 0 && face->glyph->bitmap.rows != 0;
}

void ReferenceFont::Blend(Image& image, std::u16string_view text, const Style& style, int x,
                          int y) {
    for (const char16_t unit : text) {
        if (!Load(unit, style)) {
            continue;
        }
        const FT_Bitmap& bitmap = face->glyph->bitmap;
        const int left = IsOverhanging() ? x : x + face->glyph->bitmap_left;
        for (int i = 0; i < Width() * static_cast<int>(bitmap.rows); ++i) {
            const int column = left + i % Width();
            const int row = y - face->glyph->bitmap_top + i / Width();
            if (column >= 0 && column < image.width && row >= 0 && row < image.height) {
                BlendPixel(image.pixels[image.IndexOf(column, row)], style.color,
                           bitmap.buffer[i / Width() * bitmap.pitch + i % Width()]);
            }
        }
        x += Advance();
    }
}

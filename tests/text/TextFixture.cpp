// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "TextFixture.h"

#include <algorithm>
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

// Composes text on the CPU from FreeType's bitmaps, without the library's atlases.
class ReferenceFont {
public:
    explicit ReferenceFont(const char* path) {
        if (FT_Init_FreeType(&library) != 0 || FT_New_Face(library, path, 0, &face) != 0) {
            throw std::runtime_error(path);
        }
    }
    ~ReferenceFont() {
        FT_Done_Face(face);
        FT_Done_FreeType(library);
    }
    ReferenceFont(const ReferenceFont&) = delete;
    ReferenceFont& operator=(const ReferenceFont&) = delete;

    // Blends a text over an image, glyph by glyph, with the pen starting at (x, y).
    void Blend(Image& image, std::u16string_view text, const Style& style, int x, int y) {
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

private:
    // Renders a glyph. False if the font has none or its bitmap is empty.
    bool Load(char16_t unit, const Style& style) {
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

    int Advance() const { return static_cast<int>(face->glyph->advance.x >> 6); }
    int Width() const { return static_cast<int>(face->glyph->bitmap.width); }
    bool IsOverhanging() const {
        return face->glyph->bitmap_left < 0 && Advance() > 0 && Advance() < Width();
    }

    const harness::Outside outside;
    FT_Library library = nullptr;
    FT_Face face = nullptr;
};

} // namespace

void TextFixture::SetUp() {
    SurfaceFixture::SetUp();
    Bind();
    buffer = CreateBuffer(width, height);
}

void TextFixture::Load(const char* path, unsigned int size) {
    ASSERT_EQ(surface->ZoLoadFont(path, size), ZO_SUCCESS);
    harness::TakeLog();
}

int TextFixture::Draw(std::u16string_view text, const Style& style, unsigned int x,
                      unsigned int y) {
    tagZoTextInfo info = {};
    info.text = text.data();
    info.length = static_cast<unsigned int>(text.size());
    info.color = style.color;
    info.fontSize = style.size;
    info.bold = style.isBold ? 1 : 0;
    info.italic = style.isItalic ? 1 : 0;
    const tagZoRectInfo rect = {x, y, 1, 1};
    return surface->ZoDrawText(buffer, &info, &rect);
}

Image TextFixture::Drawn(std::u16string_view text, const Style& style) {
    Fill(buffer, {});
    EXPECT_EQ(Draw(text, style), ZO_SUCCESS);
    return Read(buffer);
}

::testing::AssertionResult TextFixture::Shows(std::u16string_view text, const Style& style,
                                              const char* path, int x, int y,
                                              const Pixel& background) {
    const Image shown = Read(buffer);
    Image expected = shown;
    std::fill(expected.pixels.begin(), expected.pixels.end(), background);
    ReferenceFont(path).Blend(expected, text, style, x, y);
    // Drivers round when they sample and again when they blend.
    constexpr int tolerance = 2;
    return Matches(
        shown, [&](int column, int row) { return expected.At(column, row); }, tolerance);
}

/// @file
/// Text composed on the CPU from FreeType's bitmaps, without the library's atlases.
#ifndef ZOGLES_TESTS_TEXT_REFERENCEFONT_H
#define ZOGLES_TESTS_TEXT_REFERENCEFONT_H

#include "support/Harness.h"
#include "support/Image.h"
#include "zogles/ZoGLDrawSurface.h"

#include <string_view>

struct Style {
    unsigned int size = 40;
    bool isBold = false;
    bool isItalic = false;
    tagZoColorRGBA color = {255, 255, 255, 255};
};

class ReferenceFont {
public:
    explicit ReferenceFont(const char* path);
    ~ReferenceFont();
    ReferenceFont(const ReferenceFont&) = delete;
    ReferenceFont& operator=(const ReferenceFont&) = delete;

    /// Blends a text over an image, glyph by glyph, with the pen starting at (x, y).
    void Blend(Image& image, std::u16string_view text, const Style& style, int x, int y);

private:
    /// Renders a glyph. False if the font has none or its bitmap is empty.
    bool Load(char16_t unit, const Style& style);

    int Advance() const { return static_cast<int>(face->glyph->advance.x >> 6); }
    int Width() const { return static_cast<int>(face->glyph->bitmap.width); }
    bool IsOverhanging() const {
        return face->glyph->bitmap_left < 0 && Advance() > 0 && Advance() < Width();
    }

    FT_Library library = nullptr;
    FT_Face face = nullptr;
};

#endif

/// @file
/// Made-up glyphs in the place of a font's.
#ifndef ZOGLES_TESTS_TEXT_FAKEFONT_H
#define ZOGLES_TESTS_TEXT_FAKEFONT_H

#include <vector>

/// A glyph as FreeType would deliver it.
struct FakeGlyph {
    unsigned long code;
    unsigned int width;
    unsigned int rows;
    int left = 0;
    int top = 0;
    int advance = 0;                          ///< pixels
    int pitch = 0;                            ///< 0 means the width
    std::vector<unsigned char> coverage = {}; ///< empty means 255 all over
    bool isFailing = false;
    int rise = 0;               ///< vertical advance, pixels
    unsigned short grays = 256; ///< how many levels the coverage has
};

/// From now on every face maps these characters, in this order, and no others.
void UseFakeFont(std::vector<FakeGlyph> glyphs);

/// From now on every face maps its first few characters only, which load faster than all.
void UseFirst(int characters);

#endif

// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// Fonts of few characters, and made-up glyphs.
#ifndef ZOGLES_TESTS_SUPPORT_FAKEFONT_H
#define ZOGLES_TESTS_SUPPORT_FAKEFONT_H

#include <vector>

/// A glyph as FreeType loads it.
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
    unsigned short grays = 256; ///< levels of the coverage
};

/// From now on every face maps only these characters, in this order.
void UseCharacters(const std::vector<unsigned long>& codes);

/// The same, with these glyphs in place of the font's.
void UseFakeFont(std::vector<FakeGlyph> glyphs);

#endif

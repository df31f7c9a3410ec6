// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// The pixels of a glyph.
#ifndef ZOGLES_TEXT_GLYPHBITMAP_H
#define ZOGLES_TEXT_GLYPHBITMAP_H

#include <ft2build.h>
#include FT_FREETYPE_H
#include <vector>

/// Returns the slot's bitmap as 8-bit coverage in rows without padding.
/// @param packed holds the pixels if they had to be repacked
/// @return the pixels, or null if there are none or they cannot be converted
/// @throws std::bad_alloc
const unsigned char* TightCoverage(FT_GlyphSlot glyph, std::vector<unsigned char>& packed);

#endif

// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "text/GlyphBitmap.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include FT_BITMAP_H

namespace {

// Whether FreeType has to convert the bitmap to 8-bit coverage first.
bool IsOtherMode(const FT_Bitmap& bitmap) {
    return bitmap.pixel_mode == FT_PIXEL_MODE_MONO || bitmap.pixel_mode == FT_PIXEL_MODE_GRAY2 ||
           bitmap.pixel_mode == FT_PIXEL_MODE_GRAY4 || bitmap.pixel_mode == FT_PIXEL_MODE_BGRA;
}

bool HasFewerGrays(const FT_Bitmap& bitmap) {
    return bitmap.num_grays > 1 && bitmap.num_grays < 256;
}

// A pitch below the width is invalid; the rows then have no padding.
bool IsTightCoverage(const FT_Bitmap& bitmap) {
    const int width = static_cast<int>(bitmap.width);
    return !IsOtherMode(bitmap) && !HasFewerGrays(bitmap) &&
           (bitmap.pitch == width || std::abs(bitmap.pitch) < width);
}

// Copies 8-bit rows, top row first (a negative pitch means that the buffer starts with the bottom
// row), and scales fewer than 256 grays to the full range.
std::vector<unsigned char> PackRows(const FT_Bitmap& bitmap) {
    const size_t width = bitmap.width;
    const size_t rows = bitmap.rows;
    const size_t stride = static_cast<size_t>(bitmap.pitch < 0 ? -bitmap.pitch : bitmap.pitch);
    std::vector<unsigned char> packed(width * rows);
    for (size_t row = 0; row < rows; ++row) {
        const size_t stored = bitmap.pitch < 0 ? rows - 1 - row : row;
        memcpy(&packed[row * width], bitmap.buffer + stored * stride, width);
    }
    if (HasFewerGrays(bitmap)) {
        const unsigned int whitest = bitmap.num_grays - 1U;
        for (unsigned char& value : packed) {
            value =
                static_cast<unsigned char>(std::min<unsigned int>(value, whitest) * 255 / whitest);
        }
    }
    return packed;
}

// Owns a bitmap that FreeType allocates.
struct ConvertedBitmap {
    explicit ConvertedBitmap(FT_Library owner) : library(owner) { FT_Bitmap_Init(&bitmap); }
    ~ConvertedBitmap() { FT_Bitmap_Done(library, &bitmap); }
    ConvertedBitmap(const ConvertedBitmap&) = delete;
    ConvertedBitmap& operator=(const ConvertedBitmap&) = delete;

    FT_Library library;
    FT_Bitmap bitmap;
};

} // namespace

const unsigned char* TightCoverage(FT_GlyphSlot glyph, std::vector<unsigned char>& packed) {
    const FT_Bitmap& bitmap = glyph->bitmap;
    // A bitmap font can have a size without pixels.
    if (bitmap.buffer == nullptr || IsTightCoverage(bitmap)) {
        return bitmap.buffer;
    }
    if (!IsOtherMode(bitmap)) {
        packed = PackRows(bitmap);
        return packed.data();
    }
    ConvertedBitmap coverage(glyph->library);
    if (FT_Bitmap_Convert(glyph->library, &bitmap, &coverage.bitmap, 1) != 0) {
        return nullptr;
    }
    packed = PackRows(coverage.bitmap);
    return packed.data();
}

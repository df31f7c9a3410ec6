#include "text/GlyphTexture.h"

#include "gl/Texture.h"
#include "platform/Log.h"

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

#include FT_BITMAP_H

namespace {

void Upload(unsigned int x, unsigned int y, const FT_Bitmap& bitmap, const void* coverage) {
    glTexSubImage2D(GL_TEXTURE_2D, 0, static_cast<GLint>(x), static_cast<GLint>(y),
                    static_cast<GLsizei>(bitmap.width), static_cast<GLsizei>(bitmap.rows), GL_ALPHA,
                    GL_UNSIGNED_BYTE, coverage);
}

// Whether FreeType has to turn the bitmap into 8-bit coverage first.
bool IsOtherMode(const FT_Bitmap& bitmap) {
    return bitmap.pixel_mode == FT_PIXEL_MODE_MONO || bitmap.pixel_mode == FT_PIXEL_MODE_GRAY2 ||
           bitmap.pixel_mode == FT_PIXEL_MODE_GRAY4 || bitmap.pixel_mode == FT_PIXEL_MODE_BGRA;
}

bool HasFewerGrays(const FT_Bitmap& bitmap) {
    return bitmap.num_grays > 1 && bitmap.num_grays < 256;
}

// Rows cannot lie closer together than they are wide: such a bitmap states no pitch, and so has no
// padding.
bool IsTightCoverage(const FT_Bitmap& bitmap) {
    const int width = static_cast<int>(bitmap.width);
    return !IsOtherMode(bitmap) && !HasFewerGrays(bitmap) &&
           (bitmap.pitch == width || std::abs(bitmap.pitch) < width);
}

// Copies 8-bit rows, top row first (a negative pitch means that the buffer starts with the bottom
// row), and stretches fewer grays than 256 to the whole range.
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

// A bitmap that FreeType allocates, freed however its use ends.
struct ConvertedBitmap {
    explicit ConvertedBitmap(FT_Library owner) : library(owner) { FT_Bitmap_Init(&bitmap); }
    ~ConvertedBitmap() { FT_Bitmap_Done(library, &bitmap); }
    ConvertedBitmap(const ConvertedBitmap&) = delete;
    ConvertedBitmap& operator=(const ConvertedBitmap&) = delete;

    FT_Library library;
    FT_Bitmap bitmap;
};

// Pen advances are 26.6 fixed point; 32 bits of them count.
float WholePixels(FT_Pos advance) {
    return static_cast<float>(static_cast<std::uint32_t>(advance) >> 6);
}

} // namespace

bool TextureLimit::Fits(unsigned int width, unsigned int height) {
    const unsigned int side = std::max(width, height);
    return side <= trusted || side <= Largest();
}

void TextureLimit::Cut(unsigned int& width, unsigned int& height) {
    if (!Fits(width, height)) {
        width = std::min(width, Largest());
        height = std::min(height, Largest());
    }
}

unsigned int TextureLimit::Largest() {
    if (largest == 0) {
        GLint side = 0;
        glGetIntegerv(GL_MAX_TEXTURE_SIZE, &side);
        largest = static_cast<unsigned int>(side > 0 ? side : INT_MAX);
    }
    return largest;
}

GLuint CreateGlyphTexture(const AtlasKind& kind, unsigned int width, unsigned int height) {
    const GLuint texture = GenerateTexture(kind.unit);
    if (texture == 0) {
        __android_log_print(LogError, kind.tag, "Create texture fail\n");
        return 0;
    }
    glBindTexture(GL_TEXTURE_2D, texture);
    AllocateTexture(GL_ALPHA, static_cast<GLsizei>(width), static_cast<GLsizei>(height), nullptr);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    ClampToEdge();
    FilterLinear();
    return texture;
}

bool UploadGlyph(FT_GlyphSlot glyph, unsigned int x, unsigned int y) {
    const FT_Bitmap& bitmap = glyph->bitmap;
    const bool isEmpty = bitmap.width == 0 || bitmap.rows == 0;
    if (!isEmpty && bitmap.buffer == nullptr) { // a bitmap font can state a size and no pixels
        return false;
    }
    if (isEmpty || IsTightCoverage(bitmap)) {
        Upload(x, y, bitmap, bitmap.buffer);
        return true;
    }
    if (!IsOtherMode(bitmap)) {
        Upload(x, y, bitmap, PackRows(bitmap).data());
        return true;
    }
    ConvertedBitmap coverage(glyph->library);
    if (FT_Bitmap_Convert(glyph->library, &bitmap, &coverage.bitmap, 1) != 0) {
        return false;
    }
    Upload(x, y, bitmap, PackRows(coverage.bitmap).data());
    return true;
}

void DropAtlas(GLuint& texture, unsigned int& width, unsigned int& height, GlyphMap& glyphs) {
    if (texture != 0) {
        glDeleteTextures(1, &texture);
        glyphs.clear();
        texture = 0;
        width = 0;
        height = 0;
    }
}

tagGlyphInfo DescribeGlyph(FT_GlyphSlot glyph, int x, int y, unsigned int width,
                           unsigned int height) {
    return {WholePixels(glyph->advance.x),
            WholePixels(glyph->advance.y),
            static_cast<float>(glyph->bitmap.width),
            static_cast<float>(glyph->bitmap.rows),
            static_cast<float>(glyph->bitmap_left),
            static_cast<float>(glyph->bitmap_top),
            static_cast<float>(x) / static_cast<float>(width),
            static_cast<float>(y) / static_cast<float>(height)};
}

void ReportLeftOut(const AtlasKind& kind, unsigned int count) {
    if (count != 0) {
        __android_log_print(LogError, kind.tag, "%u characters are left out of the texture\n",
                            count);
    }
}

void LogEmptyAtlas(const AtlasKind& kind, unsigned int width, unsigned int height) {
    __android_log_print(LogError, kind.tag, "Calculate texture width %ud, height %ud\n", width,
                        height);
}

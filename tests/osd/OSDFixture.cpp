// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "OSDFixture.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace {

double Mix(double a, double b, double weight) {
    return a + (b - a) * weight;
}

Pixel SampleLinear(const Image& image, double u, double v) {
    const double left = std::floor(u - 0.5);
    const double top = std::floor(v - 0.5);
    const auto at = [&](double x, double y) {
        return image.At(static_cast<int>(std::clamp(x, 0.0, image.width - 1.0)),
                        static_cast<int>(std::clamp(y, 0.0, image.height - 1.0)));
    };
    Pixel result = {};
    for (size_t i = 0; i < result.size(); ++i) {
        const double upper = Mix(at(left, top)[i], at(left + 1, top)[i], u - 0.5 - left);
        const double lower = Mix(at(left, top + 1)[i], at(left + 1, top + 1)[i], u - 0.5 - left);
        result[i] = static_cast<unsigned char>(std::lround(Mix(upper, lower, v - 0.5 - top)));
    }
    return result;
}

} // namespace

bool Contains(const tagZoRectInfo& rect, int x, int y) {
    // The sum may exceed 32 bits.
    const auto isWithin = [](std::int64_t value, std::int64_t start, unsigned int size) {
        return value >= start && value < start + size;
    };
    return isWithin(x, rect.x, rect.width) && isWithin(y, rect.y, rect.height);
}

Image Noise(int width, int height, bool isOpaque) {
    Image image{width, height, {}};
    unsigned int state = 1;
    for (int i = 0; i < width * height; ++i) {
        Pixel pixel;
        for (unsigned char& channel : pixel) {
            state = state * 1664525U + 1013904223U;
            channel = static_cast<unsigned char>(state >> 24);
        }
        pixel[3] = isOpaque ? 255 : pixel[3];
        image.pixels.push_back(pixel);
    }
    return image;
}

PixelAt Of(const Image& image) {
    return [&image](int x, int y) { return image.At(x, y); };
}

PixelAt Of(const Pixel& pixel) {
    return [pixel](int, int) { return pixel; };
}

tagZoRectInfo WholeOf(const Image& image) {
    return {0, 0, static_cast<unsigned int>(image.width), static_cast<unsigned int>(image.height)};
}

PixelAt Drawn(const Image& image, const tagZoRectInfo& from, const tagZoRectInfo& to,
              const PixelAt& background) {
    return [=, &image](int x, int y) {
        return Contains(to, x, y)
                   ? SampleLinear(image, from.x + (x + 0.5 - to.x) * from.width / to.width,
                                  from.y + (y + 0.5 - to.y) * from.height / to.height)
                   : background(x, y);
    };
}

PixelAt Blended(const PixelAt& drawn) {
    return [=](int x, int y) {
        Pixel pixel = drawn(x, y);
        const int alpha = pixel[3];
        for (unsigned char& channel : pixel) {
            channel = static_cast<unsigned char>(std::lround(channel * alpha / 255.0));
        }
        return pixel;
    };
}

unsigned int OSDFixture::CreateBuffer(const Image& image) {
    const tagZoRectInfo all = WholeOf(image);
    const unsigned int handle = CreateBuffer(all.width, all.height);
    glBindTexture(GL_TEXTURE_2D, Target(handle).texture);
    for (int y = 0; y < image.height; ++y) { // GL's rows start at the bottom
        glTexSubImage2D(GL_TEXTURE_2D, 0, 0, image.height - 1 - y, image.width, 1, GL_RGBA,
                        GL_UNSIGNED_BYTE, &image.At(0, y));
    }
    glBindTexture(GL_TEXTURE_2D, 0);
    return handle;
}

void OSDFixture::Display(const Image& image, const tagZoRectInfo& to, int format) {
    const tagZoRectInfo all = WholeOf(image);
    const tagZoBitmapInfo info = {
        image.pixels[0].data(), format, ~0U, ~0U, all.width, all.height, to};
    EXPECT_EQ(surface->ZoDisplayBitmap(&info), ZO_SUCCESS);
}

// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// Pixels read back, and their comparison with a formula.
#ifndef ZOGLES_TESTS_SUPPORT_IMAGE_H
#define ZOGLES_TESTS_SUPPORT_IMAGE_H

#include <array>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

/// Red, green, blue, alpha.
using Pixel = std::array<unsigned char, 4>;

/// An image with its origin at the top-left corner.
struct Image {
    int width = 0;
    int height = 0;
    std::vector<Pixel> pixels;

    size_t IndexOf(int x, int y) const {
        return static_cast<size_t>(y) * static_cast<size_t>(width) + static_cast<size_t>(x);
    }
    const Pixel& At(int x, int y) const { return pixels[IndexOf(x, y)]; }
};

/// Reads the bound framebuffer.
Image ReadPixels(int width, int height);

/// Whether every pixel (x, y) equals `expected(x, y)` within `tolerance` per channel. If not, names
/// the first wrong pixel, and saves the image and one with the wrong pixels in red as PNG files in
/// the folder ZOGLES_TEST_ARTIFACTS, or else in the working folder.
::testing::AssertionResult
Matches(const Image& image, const std::function<Pixel(int x, int y)>& expected, int tolerance = 0);

#endif

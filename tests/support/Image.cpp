// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "support/Image.h"

#include <GLES2/gl2.h>
#include <algorithm>
#include <cstdlib>
#include <png.h>

namespace {

std::string ArtifactPath(const std::string& suffix) {
    const char* folder = getenv("ZOGLES_TEST_ARTIFACTS");
    const ::testing::TestInfo* test = ::testing::UnitTest::GetInstance()->current_test_info();
    std::string name = std::string(test->test_suite_name()) + '.' + test->name() + suffix;
    std::replace(name.begin(), name.end(), '/', '_');
    return (folder == nullptr ? std::string(".") : std::string(folder)) + '/' + name;
}

bool IsWithin(const Pixel& a, const Pixel& b, int tolerance) {
    for (size_t i = 0; i < a.size(); ++i) {
        if (std::abs(a[i] - b[i]) > tolerance) {
            return false;
        }
    }
    return true;
}

std::string Describe(const Pixel& p) {
    return '(' + std::to_string(p[0]) + ' ' + std::to_string(p[1]) + ' ' + std::to_string(p[2]) +
           ' ' + std::to_string(p[3]) + ')';
}

void WritePng(const Image& image, const std::string& path) {
    png_image png = {};
    png.version = PNG_IMAGE_VERSION;
    png.width = static_cast<png_uint_32>(image.width);
    png.height = static_cast<png_uint_32>(image.height);
    png.format = PNG_FORMAT_RGBA;
    png_image_write_to_file(&png, path.c_str(), 0, image.pixels.data(), 0, nullptr);
}

} // namespace

Image ReadPixels(int width, int height) {
    Image image{width, height, {}};
    const size_t count = static_cast<size_t>(width) * static_cast<size_t>(height);
    std::vector<Pixel> rows(count);
    glReadPixels(0, 0, width, height, GL_RGBA, GL_UNSIGNED_BYTE, rows.data());
    image.pixels.reserve(count);
    for (int y = height - 1; y >= 0; --y) { // GL's rows start at the bottom
        const auto row = rows.begin() + static_cast<std::ptrdiff_t>(y) * width;
        image.pixels.insert(image.pixels.end(), row, row + width);
    }
    return image;
}

::testing::AssertionResult
Matches(const Image& image, const std::function<Pixel(int x, int y)>& expected, int tolerance) {
    Image difference = image;
    std::string first;
    int wrong = 0;
    for (int y = 0; y < image.height; ++y) {
        for (int x = 0; x < image.width; ++x) {
            const Pixel want = expected(x, y);
            if (IsWithin(image.At(x, y), want, tolerance)) {
                continue;
            }
            if (wrong++ == 0) {
                first = "pixel (" + std::to_string(x) + ", " + std::to_string(y) + ") is " +
                        Describe(image.At(x, y)) + ", not " + Describe(want);
            }
            difference.pixels[image.IndexOf(x, y)] = {255, 0, 0, 255};
        }
    }
    if (wrong == 0) {
        return ::testing::AssertionSuccess();
    }
    WritePng(image, ArtifactPath(".png"));
    WritePng(difference, ArtifactPath(".difference.png"));
    return ::testing::AssertionFailure() << first << "; " << wrong << " of " << image.pixels.size()
                                         << " differ; see " << ArtifactPath(".difference.png");
}

// Compares pictures with the first one. Exit status 1: one of them shows something else.

#include "Frame.h"
#include "Support.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <png.h>

namespace {

// All take their glyphs from FreeType. libzogles blends alpha by the rule for colours, so that its
// glyph edges come out darker, by up to a quarter of the colour, and more where lines overlap. A
// rectangle or a copy that is missing, misplaced or in a wrong colour is far above these limits.
constexpr int farOff = 64;
constexpr double mostMean = 4.0;
constexpr double mostFarOff = 0.005;

std::vector<unsigned char> ReadPicture(const char* path) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    Require(png_image_begin_read_from_file(&image, path) != 0, path);
    Require(image.width == frameWidth && image.height == frameHeight, path);
    image.format = PNG_FORMAT_RGB;
    std::vector<unsigned char> pixels(PNG_IMAGE_SIZE(image));
    Require(png_image_finish_read(&image, nullptr, pixels.data(), 0, nullptr) != 0, path);
    return pixels;
}

} // namespace

int main(int argc, char** argv) {
    Require(argc > 2, "arguments: PICTURE PICTURE...");
    const std::vector<unsigned char> expected = ReadPicture(argv[1]);
    bool areAlike = true;
    for (int file = 2; file < argc; ++file) {
        const std::vector<unsigned char> picture = ReadPicture(argv[file]);
        double sum = 0;
        double pixelsFarOff = 0;
        for (size_t i = 0; i < picture.size(); i += 3) {
            int worst = 0;
            for (size_t channel = i; channel < i + 3; ++channel) {
                const int difference = abs(picture[channel] - expected[channel]);
                sum += difference;
                worst = std::max(worst, difference);
            }
            pixelsFarOff += worst > farOff ? 1 : 0;
        }
        const double mean = sum / static_cast<double>(picture.size());
        const double share = pixelsFarOff * 3 / static_cast<double>(picture.size());
        const bool isAlike = mean <= mostMean && share <= mostFarOff;
        printf("%s: mean difference %.2f of 255, %.2f %% of the pixels off by more than %d%s\n",
               argv[file], mean, share * 100, farOff, isAlike ? "" : ": NOT THE SAME PICTURE");
        areAlike = areAlike && isAlike;
    }
    return areAlike ? 0 : 1;
}

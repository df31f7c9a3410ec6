#include "Picture.h"

#include "../osd/PngFile.h"

#include <GLES2/gl2.h>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <png.h>

namespace {

constexpr int channels = 3;
constexpr unsigned int bottomMargin = 40; // between an overlay and the foot of the desktop

Picture ReadDesktop() {
    png_image file = {};
    file.version = PNG_IMAGE_VERSION;
    Picture desktop;
    if (png_image_begin_read_from_file(&file, EXAMPLES_DESKTOP) != 0) {
        file.format = PNG_FORMAT_RGB;
        desktop.pixels.resize(PNG_IMAGE_SIZE(file));
        if (png_image_finish_read(&file, nullptr, desktop.pixels.data(), 0, nullptr) != 0) {
            desktop.width = static_cast<int>(file.width);
            desktop.height = static_cast<int>(file.height);
        }
    }
    return desktop;
}

// Puts the window over the lower middle of a screen. What compositors do: colours come multiplied
// by alpha already, and the screen shines through the rest.
bool Save(const char* path, unsigned int width, unsigned int height, Picture screen) {
    const auto screenWidth = static_cast<unsigned int>(screen.width);
    const auto screenHeight = static_cast<unsigned int>(screen.height);
    if (screenWidth < width || screenHeight < height) {
        fprintf(stderr, "%s: the desktop behind it is missing or too small\n", path);
        return false;
    }
    const size_t rowBytes = size_t{width} * 4;
    std::vector<unsigned char> window(rowBytes * height);
    glReadPixels(0, 0, static_cast<GLsizei>(width), static_cast<GLsizei>(height), GL_RGBA,
                 GL_UNSIGNED_BYTE, window.data());
    const unsigned int left = (screenWidth - width) / 2;
    const unsigned int top = screenHeight - height - std::min(bottomMargin, screenHeight - height);
    for (unsigned int y = 0; y < height; ++y) {
        const unsigned char* pixel = &window[(height - 1 - y) * rowBytes]; // rows from the bottom
        // cppcheck-suppress redundantInitialization ; for it, the pixels are never read
        unsigned char* channel =
            screen.pixels.data() + (size_t{top + y} * screenWidth + left) * channels;
        for (unsigned int x = 0; x < width; ++x, pixel += 4) {
            for (int i = 0; i < channels; ++i, ++channel) {
                const int sum = pixel[i] + (*channel * (255 - pixel[3]) + 127) / 255;
                *channel = static_cast<unsigned char>(std::min(sum, 255));
            }
        }
    }
    return glGetError() == GL_NO_ERROR && WritePng(path, screen);
}

} // namespace

const char* FindOut(int argc, char* argv[]) {
    if (argc == 1) {
        return nullptr;
    }
    if (argc != 3 || strcmp(argv[1], "--out") != 0) {
        fputs("the only option is --out FILE.png\n", stderr);
        exit(EXIT_FAILURE);
    }
    return argv[2];
}

// A window without transparency shows its colours whatever their alpha, which black behind does.
bool SavePicture(const char* path, unsigned int width, unsigned int height) {
    Picture black{static_cast<int>(width), static_cast<int>(height), {}};
    black.pixels.resize(size_t{width} * height * channels);
    return Save(path, width, height, std::move(black));
}

bool SaveOverlay(const char* path, unsigned int width, unsigned int height) {
    return Save(path, width, height, ReadDesktop());
}

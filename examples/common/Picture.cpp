// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "Picture.h"

#include <GLES2/gl2.h>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <png.h>

namespace {

constexpr unsigned int bottomMargin = 40; // between the window and the bottom of the desktop

void Fail(const std::string& path, const char* why) {
    fprintf(stderr, "%s: %s\n", path.c_str(), why);
    exit(EXIT_FAILURE);
}

} // namespace

// libpng converts any PNG file to this format: red, green, blue and alpha, one byte each.
Picture ReadPng(const std::string& path) {
    png_image file = {};
    file.version = PNG_IMAGE_VERSION;
    Picture picture;
    if (png_image_begin_read_from_file(&file, path.c_str()) != 0) {
        file.format = PNG_FORMAT_RGBA;
        picture = {file.width, file.height, std::vector<unsigned char>(PNG_IMAGE_SIZE(file))};
        png_image_finish_read(&file, nullptr, picture.rgba.data(), 0, nullptr);
    }
    if (PNG_IMAGE_FAILED(file)) {
        Fail(path, file.message);
    }
    return picture;
}

void WritePng(const std::string& path, const Picture& picture) {
    std::vector<unsigned char> rgb;
    for (size_t i = 0; i < picture.rgba.size(); i += 4) {
        rgb.insert(rgb.end(), &picture.rgba[i], &picture.rgba[i] + 3);
    }
    png_image file = {};
    file.version = PNG_IMAGE_VERSION;
    file.width = picture.width;
    file.height = picture.height;
    file.format = PNG_FORMAT_RGB;
    if (png_image_write_to_file(&file, path.c_str(), 0, rgb.data(), 0, nullptr) == 0) {
        Fail(path, file.message);
    }
}

// The library leaves the window's framebuffer bound. GL's rows start at the bottom.
Picture ReadWindow(const ZoGLDrawSurface& surface, unsigned int width, unsigned int height) {
    Picture picture;
    picture.width = width;
    picture.height = height;
    picture.rgba.resize(size_t{width} * height * 4);
    for (unsigned int y = 0; y < height; ++y) {
        glReadPixels(0, static_cast<GLint>(surface.ZoGetWindowHeight() - 1 - y),
                     static_cast<GLsizei>(width), 1, GL_RGBA, GL_UNSIGNED_BYTE,
                     &picture.rgba[size_t{y} * width * 4]);
    }
    return picture;
}

// The window's colours are already multiplied by alpha.
Picture PutOnDesktop(const Picture& window) {
    Picture desktop = ReadPng(EXAMPLES_FOLDER "/common/desktop.png");
    if (desktop.width < window.width || desktop.height < window.height) {
        Fail(EXAMPLES_FOLDER "/common/desktop.png", "smaller than the window");
    }
    const unsigned int left = (desktop.width - window.width) / 2;
    const unsigned int spare = desktop.height - window.height;
    const unsigned int top = spare - std::min(bottomMargin, spare);
    for (unsigned int y = 0; y < window.height; ++y) {
        for (unsigned int x = 0; x < window.width; ++x) {
            const unsigned char* from = window.At(x, y);
            // cppcheck-suppress redundantInitialization ; a false positive: the pixels are read
            unsigned char* to = &desktop.rgba[(size_t{top + y} * desktop.width + left + x) * 4];
            std::transform(from, from + 3, to, to, [from](int color, int behind) {
                const int sum = color + (behind * (255 - from[3]) + 127) / 255;
                return static_cast<unsigned char>(std::min(sum, 255));
            });
        }
    }
    return desktop;
}

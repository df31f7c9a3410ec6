// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// A PNG file, as large as the window allows without changing its shape.
//
//   picture [FILE.png]                    shows it, or a poster, until a key is pressed
//   picture [FILE.png] --out RESULT.png   saves what the window shows, and exits
//
// The window is black around the picture, and wherever the file is transparent.

#include "common/Picture.h"
#include "common/XWindow.h"

#include <cstdint>
#include <cstdlib>

namespace {

constexpr unsigned int width = 640;
constexpr unsigned int height = 360;

// The largest rectangle of the picture's shape in the middle of the window. The comparison of the two
// shapes, width by height, needs no division.
tagZoRectInfo Fit(const Picture& picture) {
    const uint64_t wide = uint64_t{picture.width} * height;
    const uint64_t tall = uint64_t{picture.height} * width;
    tagZoRectInfo fit = {0, 0, width, height};
    if (wide > tall) {
        fit.height = static_cast<unsigned int>(tall / picture.width);
    } else {
        fit.width = static_cast<unsigned int>(wide / picture.height);
    }
    fit.x = (width - fit.width) / 2;
    fit.y = (height - fit.height) / 2;
    return fit;
}

// Each call uploads the pixels, so use it for pictures that rarely change.
void Draw(ZoGLDrawSurface& surface, const Picture& picture) {
    tagZoBitmapInfo bitmap = {};
    bitmap.data = picture.rgba.data();
    bitmap.format = ZO_FORMAT_RGBA8888;
    bitmap.width = picture.width;
    bitmap.height = picture.height;
    bitmap.rect = Fit(picture);
    Check("bitmap", surface.ZoDisplayBitmap(&bitmap));
}

} // namespace

int main(int argc, char* argv[]) {
    const Arguments arguments = ReadArguments(argc, argv);
    const Picture picture =
        ReadPng(arguments.file != nullptr ? arguments.file : EXAMPLES_FOLDER "/poster.png");
    XWindow window(width, height);
    ZoGLDrawSurface surface;
    Check("binding", surface.ZoCreateGLWindowSurface(window.Show()));
    if (arguments.out != nullptr) {
        Draw(surface, picture);
        window.Save(surface, arguments.out);
        return EXIT_SUCCESS;
    }
    while (window.WaitForExpose()) {
        Draw(surface, picture);
        Check("refresh", surface.ZoRefreshOnSrceen());
    }
    return EXIT_SUCCESS;
}

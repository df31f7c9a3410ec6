// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// PNG files, and pictures of what the bound window shows.
#ifndef EXAMPLES_COMMON_PICTURE_H
#define EXAMPLES_COMMON_PICTURE_H

#include <cstddef>
#include <string>
#include <vector>
#include <zogles/ZoGLDrawSurface.h>

struct Picture {
    unsigned int width = 0;
    unsigned int height = 0;
    std::vector<unsigned char> rgba; ///< four bytes per pixel, rows from the top

    const unsigned char* At(unsigned int x, unsigned int y) const {
        return &rgba[(size_t{y} * width + x) * 4];
    }
};

/// Reads a file in the format of `ZoDisplayBitmap`. Ends the program if the file cannot be read.
Picture ReadPng(const std::string& path);

/// Writes the colours without alpha. Ends the program if the file cannot be written.
void WritePng(const std::string& path, const Picture& picture);

/// Reads the window's top-left part. Call it before the refresh, which discards the pixels.
Picture ReadWindow(const ZoGLDrawSurface& surface, unsigned int width, unsigned int height);

/// Puts the picture of a transparent window on a desktop, as a compositor does.
Picture PutOnDesktop(const Picture& window);

#endif

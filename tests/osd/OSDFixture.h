// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// Drawing operations, and formulas for the pixels that they leave.
#ifndef ZOGLES_TESTS_OSD_OSDFIXTURE_H
#define ZOGLES_TESTS_OSD_OSDFIXTURE_H

#include "support/SurfaceFixture.h"

using PixelAt = std::function<Pixel(int x, int y)>;

constexpr Pixel emptyPixel = {0, 0, 0, 0};

bool Contains(const tagZoRectInfo& rect, int x, int y);

/// A picture that never repeats, so that a shifted copy differs everywhere.
Image Noise(int width, int height, bool isOpaque = false);

/// The pixels of an image, or one pixel everywhere.
PixelAt Of(const Image& image);
PixelAt Of(const Pixel& pixel);

tagZoRectInfo WholeOf(const Image& image);

/// `image`'s region `from`, linearly filtered and with its edge pixels repeated, drawn to the
/// rectangle `to` over `background`.
PixelAt Drawn(const Image& image, const tagZoRectInfo& from, const tagZoRectInfo& to,
              const PixelAt& background = Of(emptyPixel));

/// Pixels after blending over transparent black.
PixelAt Blended(const PixelAt& drawn);

class OSDFixture : public SurfaceFixture {
protected:
    using SurfaceFixture::CreateBuffer;
    unsigned int CreateBuffer(const Image& image);

    tagZoRectInfo WholeWindow() const {
        return {0, 0, static_cast<unsigned int>(windowWidth),
                static_cast<unsigned int>(windowHeight)};
    }

    void Draw(unsigned int buffer, const tagZoRectInfo& rect, const tagZoColorRGBA& color) {
        EXPECT_EQ(surface->ZoDrawRect(buffer, &rect, &color), ZO_SUCCESS);
    }

    void Blit(unsigned int source, unsigned int destination, const tagZoRectInfo& from,
              const tagZoRectInfo& to) {
        const tagZoBlitInfo info = {source, destination, from, to};
        EXPECT_EQ(surface->ZoBlit(&info), ZO_SUCCESS);
    }

    void Display(unsigned int buffer, const tagZoRectInfo& from, const tagZoRectInfo& to) {
        EXPECT_EQ(surface->ZoDisplayFBO(buffer, &from, &to), ZO_SUCCESS);
    }

    void Display(const Image& image, const tagZoRectInfo& to, int format = ZO_FORMAT_RGBA8888);
};

#endif

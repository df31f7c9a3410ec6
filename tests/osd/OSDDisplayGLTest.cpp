// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The operations that replace the whole window: presentation of buffers and of client bitmaps.

#include "OSDFixture.h"

namespace {

class OSDDisplayGLTest : public OSDFixture {};

const Image translucent = Noise(61, 47);
const Image opaque = Noise(31, 17, true);
const Image square = {2, 2, {{255, 0, 0, 255}, {0, 255, 0, 255}, {0, 0, 255, 255}, {9, 9, 9, 255}}};

} // namespace

TEST_F(OSDDisplayGLTest, ReplacesTheWholeWindowByBlendedPixels) {
    Bind();
    const unsigned int right = WholeWindow().width;
    const unsigned int bottom = WholeWindow().height;
    const struct {
        const char* name;
        const Image& image;
        tagZoRectInfo from;
        tagZoRectInfo to;
    } presentations[] = {
        {"translucent", translucent, WholeOf(translucent), {20, 30, 61, 47}},
        {"past the window's corner",
         translucent,
         WholeOf(translucent),
         {right - 30, bottom - 20, 61, 47}},
        {"over the whole window", opaque, WholeOf(opaque), WholeWindow()},
        {"stretched", square, WholeOf(square), {10, 20, 64, 64}},
        {"to no pixels", opaque, WholeOf(opaque), {20, 20, 0, 10}},
        {"a part", translucent, {10, 20, 30, 25}, {0, 0, 30, 25}},
        {"past the buffer's corner", translucent, {50, 40, 40, 40}, {90, 70, 40, 40}},
        {"a part at half its size", opaque, {1, 3, 30, 14}, {100, 5, 15, 7}},
    };
    for (const auto& [name, image, from, to] : presentations) {
        SCOPED_TRACE(name);
        // Drivers round blended and filtered pixels differently.
        const auto isShown = [&, blended = Blended(Drawn(image, from, to))] {
            return Matches(Read(ZO_WINDOW_HANDLE), blended, 1);
        };
        const unsigned int buffer = CreateBuffer(image);
        Fill(ZO_WINDOW_HANDLE, {255, 255, 255, 255});
        Display(buffer, from, to);
        EXPECT_TRUE(isShown());
        surface->ZoDestoryGLFBO(buffer);
        if (from.width != WholeOf(image).width) {
            continue; // bitmaps are shown whole
        }
        Fill(ZO_WINDOW_HANDLE, {255, 255, 255, 255});
        glPixelStorei(GL_UNPACK_ALIGNMENT, 1); // as the glyph atlases leave it
        Display(image, to);
        EXPECT_TRUE(isShown());
        GLint alignment = 0;
        glGetIntegerv(GL_UNPACK_ALIGNMENT, &alignment);
        EXPECT_EQ(alignment, 4);
        EXPECT_EQ(surface->osdBitmap->texture, 0U);
    }
    EXPECT_EQ(harness::TakeLog(), Log());
}

// GL samples opaque black where it has no image, as of the window.
TEST_F(OSDDisplayGLTest, SamplesBlackFromTheWindow) {
    Bind();
    const unsigned int buffer = CreateBuffer(translucent);
    const tagZoRectInfo to = {5, 6, 7, 8};
    const auto blackOver = [&](const PixelAt& background) -> PixelAt {
        return [=](int x, int y) {
            return Contains(to, x, y) ? Pixel{0, 0, 0, 255} : background(x, y);
        };
    };
    Blit(ZO_WINDOW_HANDLE, buffer, to, to);
    EXPECT_TRUE(Matches(Read(buffer), blackOver(Of(translucent))));
    Fill(ZO_WINDOW_HANDLE, {10, 20, 30, 40});
    Blit(ZO_WINDOW_HANDLE, ZO_WINDOW_HANDLE, to, to);
    EXPECT_TRUE(Matches(Read(ZO_WINDOW_HANDLE), blackOver(Of(Pixel{10, 20, 30, 40}))));
    Display(ZO_WINDOW_HANDLE, to, to);
    EXPECT_TRUE(Matches(Read(ZO_WINDOW_HANDLE), blackOver(Of(emptyPixel))));
    EXPECT_EQ(harness::TakeLog(), Log());
}

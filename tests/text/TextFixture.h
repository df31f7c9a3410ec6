// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// A bound surface and a buffer to draw texts into.
#ifndef ZOGLES_TESTS_TEXT_TEXTFIXTURE_H
#define ZOGLES_TESTS_TEXT_TEXTFIXTURE_H

#include "support/Calls.h"
#include "support/FakeFont.h"
#include "support/SurfaceFixture.h"

#include <string_view>

constexpr char sansPath[] = ZOGLES_TEST_FONT;
constexpr char monoPath[] = ZOGLES_TEST_MONO_FONT;

struct Style {
    unsigned int size = 40;
    bool isBold = false;
    bool isItalic = false;
    tagZoColorRGBA color = {255, 255, 255, 255};
};

class TextFixture : public SurfaceFixture {
protected:
    /// Powers of two: vertices on whole pixels are exact.
    static constexpr int width = 256;
    static constexpr int height = 128;

    void SetUp() override;

    /// Loads a font and drops the log of it.
    void Load(const char* path = sansPath, unsigned int size = 40);

    int Draw(std::u16string_view text, const Style& style = {}, unsigned int x = 10,
             unsigned int y = 60);

    /// Clears the buffer, draws a text and returns the pixels.
    Image Drawn(std::u16string_view text, const Style& style = {});

    /// Whether the buffer shows a text over a background, as FreeType and the blend formula give it.
    ::testing::AssertionResult Shows(std::u16string_view text, const Style& style,
                                     const char* path = sansPath, int x = 10, int y = 60,
                                     const Pixel& background = {});

    unsigned int buffer = 0; ///< the target of texts
};

#endif

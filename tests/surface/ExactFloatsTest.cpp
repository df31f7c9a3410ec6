// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The same pixels on every machine need the same floats, to the last bit. The inputs are integers and
// fractions of a power of two, so that the test itself rounds nothing.

#include "osd/OSDBitmap.h"
#include "osd/OSDBlit.h"
#include "osd/OSDRect.h"
#include "support/Harness.h"
#include "text/OSDText.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <random>

namespace {

constexpr unsigned int asciiCount = 128;

struct ExactFloatsTest : ::testing::Test {
    ExactFloatsTest() { harness::Reset(); }

    /// FNV-1a over 32-bit words.
    void AddToHash(const void* words, size_t size) {
        for (size_t i = 0; i < size; i += sizeof(std::uint32_t)) {
            std::uint32_t word = 0;
            memcpy(&word, static_cast<const unsigned char*>(words) + i, sizeof(word));
            hash = (hash ^ word) * 0x100000001B3U;
        }
    }
    void AddUploadToHash() {
        std::vector<harness::Vertex>& vertices = harness::Current().vertices;
        ASSERT_FALSE(vertices.empty());
        AddToHash(vertices.data(), vertices.size() * sizeof(harness::Vertex));
        vertices.clear();
    }

    unsigned int Below(unsigned int end) { return static_cast<unsigned int>(random() % end); }

    /// Up to 32 bits, and small numbers as often as large ones.
    unsigned int Number() {
        return static_cast<unsigned int>(std::uint64_t{random()} >> Below(33));
    }
    unsigned char Byte() { return static_cast<unsigned char>(Below(256)); }

    /// Up to 24 bits and a sign.
    float Fraction(float divisor) {
        return static_cast<float>(static_cast<int>(random() >> 7) - (1 << 24)) / divisor;
    }

    std::mt19937 random{1};
    std::uint64_t hash = 0xCBF29CE484222325U;
};

} // namespace

TEST_F(ExactFloatsTest, ConvertsAndUploadsTheSameOnEveryMachine) {
    const ZoGLDrawSurface surface;
    const OSDRect osdRect;
    const OSDBlit osdBlit;
    const OSDBitmap osdBitmap;
    const tagFrameBuffObject target = {};
    for (int i = 0; i < 40000; ++i) {
        const tagZoRectInfo rect = {Number(), Number(), Number(), Number()};
        const unsigned int width = Number(); // 0 leaves the results as they are
        const unsigned int height = Number();
        tagRectInfo rects[] = {{1, 2, 3, 4}, {5, 6, 7, 8}};
        surface.ScreenCoordToVCoord(&rect, &rects[0], width, height);
        surface.ScreenCoordToFboCoord(&rect, &rects[1], width, height);
        AddToHash(rects, sizeof(rects));

        const tagZoColorRGBA bytes = {Byte(), Byte(), Byte(), Byte()};
        tagColorRGBA color = {};
        surface.ConvertGLColor(&bytes, &color);
        AddToHash(&color, sizeof(color));

        if (i % 10 == 0) {
            osdRect.DrawRect(&target, &rects[0], &color);
            AddUploadToHash();
            osdBlit.BlitByDrawing(&rects[1], &rects[0]);
            AddUploadToHash();
            osdBitmap.RenderBimap(&rects[0]);
            AddUploadToHash();
        }
    }
    EXPECT_EQ(hash, 0x7871260A87A7BDD1U);
}

TEST_F(ExactFloatsTest, MeasuresAndPlacesTextTheSameOnEveryMachine) {
    const auto atlas = std::make_shared<FontAtlas>();
    atlas->width = 1023;
    atlas->height = 517;
    for (unsigned int code = 0; code < asciiCount; ++code) {
        // Widths of up to 2^20 give sums that floats must round. Some advances equal the width.
        const float width = Below(16) == 0 ? 0 : std::abs(Fraction(16));
        const float advance = Below(4) == 0 ? width : std::abs(Fraction(16));
        atlas->glyphs[code] = {advance,
                               Fraction(1 << 17),
                               width,
                               std::abs(Fraction(1 << 17)),
                               Fraction(1 << 17),
                               Fraction(1 << 17),
                               std::abs(Fraction(1 << 24)),
                               std::abs(Fraction(1 << 24))};
    }
    OSDText osdText(atlas, std::make_shared<FontStyleAtlas>());
    for (int i = 0; i < 200; ++i) {
        std::u16string text(1 + Below(100), u'\0');
        for (char16_t& unit : text) {
            unit = static_cast<char16_t>(Below(asciiCount + 2)); // the last two are absent
        }
        tagTextInfo info = {};
        info.text = text.data();
        info.length = static_cast<unsigned int>(text.size());
        info.fontSize = 40;
        unsigned int size[2] = {};
        osdText.GetTextSize(&info, &size[0], &size[1]);
        AddToHash(size, sizeof(size));

        const int width = 1 + static_cast<int>(Below(4096));
        const int height = 1 + static_cast<int>(Below(4096));
        const tagFrameBuffObject target = {0, 0, 0, width, height};
        ASSERT_EQ(osdText.GetFontTex(&target, &info), ZO_SUCCESS);
        const float x = Fraction(1 << 24);
        osdText.RenderText(info.text, info.length, x, Fraction(1 << 24));
        AddUploadToHash();
    }
    EXPECT_EQ(hash, 0xAB87C78944253440U);
}

// The same pixels on every machine need the same floats, to the last bit. Inputs are integers and bit
// patterns, so that the test itself computes no float.

#include "osd/OSDBitmap.h"
#include "osd/OSDBlit.h"
#include "osd/OSDRect.h"
#include "support/Harness.h"
#include "text/OSDText.h"

#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <random>

namespace {

constexpr unsigned int asciiCount = 128;

struct ExactFloatsTest : ::testing::Test {
    ExactFloatsTest() { harness::Reset(); }

    /// FNV-1a over 32-bit words, lowest byte first.
    void AddToHash(const void* words, size_t size) {
        const unsigned char* bytes = static_cast<const unsigned char*>(words);
        for (size_t i = 0; i < size; i += sizeof(std::uint32_t)) {
            std::uint32_t word = 0;
            memcpy(&word, bytes + i, sizeof(word));
            for (int shift = 0; shift < 32; shift += 8) {
                hash = (hash ^ (word >> shift & 0xFF)) * 0x100000001B3U;
            }
        }
    }
    template <typename Record>
    void AddToHash(const Record& record) {
        AddToHash(&record, sizeof(record));
    }
    void AddUploadToHash() {
        ASSERT_FALSE(harness::Current().bufferData.empty());
        AddToHash(harness::Current().bufferData.data(), harness::Current().bufferData.size());
        harness::Current().bufferData.clear();
    }

    unsigned int Below(unsigned int end) { return static_cast<unsigned int>(random() % end); }

    /// 0 to 32 bits, each length equally often.
    unsigned int Number() {
        const unsigned int bits = Below(33);
        return bits == 0 ? 0 : static_cast<unsigned int>(random() >> (32 - bits));
    }

    /// Any float from 0.5 to 2 to the power of `exponents` - 1.
    float Positive(unsigned int exponents) {
        const std::uint32_t exponent = 126 + Below(exponents);
        return FromBits(exponent << 23 | Below(1U << 23));
    }
    float Signed(unsigned int exponents) {
        const float value = Positive(exponents);
        return Below(2) == 0 ? value : -value;
    }
    static float FromBits(std::uint32_t bits) {
        float value = 0;
        memcpy(&value, &bits, sizeof(value));
        return value;
    }

    void HashConversionsAndQuads();
    void HashText();

    std::mt19937 random{1};
    std::uint64_t hash = 0xCBF29CE484222325U;
};

void ExactFloatsTest::HashConversionsAndQuads() {
    const ZoGLDrawSurface surface;
    const OSDRect osdRect;
    const OSDBlit osdBlit;
    const OSDBitmap osdBitmap;
    const tagFrameBuffObject target = {};
    for (int i = 0; i < 40000; ++i) {
        const tagZoRectInfo rect = {Number(), Number(), Number(), Number()};
        const unsigned int width = Number(); // may be 0, and then the results keep their values
        const unsigned int height = Number();
        tagRectInfo vertexRect = {1, 2, 3, 4};
        surface.ScreenCoordToVCoord(&rect, &vertexRect, width, height);
        AddToHash(vertexRect);
        tagRectInfo textureRect = {5, 6, 7, 8};
        surface.ScreenCoordToFboCoord(&rect, &textureRect, width, height);
        AddToHash(textureRect);

        tagZoColorRGBA bytes = {};
        for (unsigned char* byte : {&bytes.r, &bytes.g, &bytes.b, &bytes.a}) {
            *byte = static_cast<unsigned char>(Below(256));
        }
        tagColorRGBA color = {};
        surface.ConvertGLColor(&bytes, &color);
        AddToHash(color);

        if (i % 10 == 0) {
            osdRect.DrawRect(&target, &vertexRect, &color);
            AddUploadToHash();
            osdBlit.BlitByDrawing(&textureRect, &vertexRect);
            AddUploadToHash();
            osdBitmap.RenderBimap(&vertexRect);
            AddUploadToHash();
        }
    }
}

void ExactFloatsTest::HashText() {
    const auto atlas = std::make_shared<FontAtlas>();
    atlas->width = 1023;
    atlas->height = 517;
    for (unsigned int code = 0; code < asciiCount; ++code) {
        const bool isEmpty = Below(16) == 0;
        // Widths of up to 2^20 give sums that floats must round.
        atlas->glyphs[code] = {Positive(21), Signed(7),  isEmpty ? 0 : Positive(21),
                               Positive(7),  Signed(7),  Signed(7),
                               Positive(1),  Positive(1)};
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
        AddToHash(size);

        const int width = 1 + static_cast<int>(Below(4096));
        const int height = 1 + static_cast<int>(Below(4096));
        const tagFrameBuffObject target = {0, 0, 0, width, height};
        ASSERT_EQ(osdText.GetFontTex(&target, &info), ZO_SUCCESS);
        const float x = Signed(1);
        const float y = Signed(1);
        osdText.RenderText(info.text, info.length, x, y);
        AddUploadToHash();
    }
}

} // namespace

TEST_F(ExactFloatsTest, ComputesTheSameFloatsOnEveryMachine) {
    HashConversionsAndQuads();
    HashText();
    EXPECT_EQ(hash, 0xE991124865A3108DU);
}

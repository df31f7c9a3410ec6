// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "TextFixture.h"

#include <cmath>
#include <filesystem>
#include <fstream>
#include <numeric>

using Bytes = std::vector<unsigned char>;

namespace {

class GlyphAtlasGLTest : public TextFixture {
protected:
    // White text on black equals the uploaded coverage.
    Bytes Uploaded(const Style& style, int columns, int rows) {
        const Image image = Drawn(u"A", style);
        Bytes coverage;
        for (int i = 0; i < columns * rows; ++i) {
            coverage.push_back(image.At(10 + i % columns, 60 - rows + i / columns)[0]);
        }
        return coverage;
    }

    // Blending rounds.
    void ExpectNear(const Bytes& actual, const Bytes& expected) const {
        for (size_t i = 0; i < expected.size(); ++i) {
            EXPECT_NEAR(actual[i], expected[i], 1) << i;
        }
    }
};

} // namespace

TEST_F(GlyphAtlasGLTest, PlacesAndRecordsWhatFits) {
    constexpr int unknown = -1;
    const std::vector<FakeGlyph> example = {{65, 500, 40}, {66, 500, 45}, {67, 30, 20}};
    const std::vector<FakeGlyph> wide = {{65, 10, 5}, {66, 1023, 7}, {67, 10, 3}};
    const std::vector<FakeGlyph> failing = {
        {65, 10, 8}, {66, 10, 9, 0, 0, 0, 0, {}, true}, {0x1F600, 10, 7}};
    const std::vector<FakeGlyph> tall = {{65, 1000, 600}, {66, 1000, 600}, {67, 1000, 600}};
    const std::vector<FakeGlyph> huge = {{65, 1, 1500}, {66, 1501, 2}, {67, 2, 1501}, {68, 3, 3}};
    const std::string failed = "Loading character 66 failed!\n";
    const std::string oneOut = "1 characters are left out of the texture\n";
    const std::string twoOut = "2 characters are left out of the texture\n";
    const struct {
        std::vector<FakeGlyph> glyphs;
        std::optional<int> limit; ///< largest texture side
        std::string size;
        std::string cells;
        std::vector<std::string> errors;
    } cases[] = {
        {example, {}, "1002 x 65 (63 kb)", " 65:0,0 66:501,0 67:0,45", {}},
        // A row holds 1,023 pixels with its gaps, or one wider glyph.
        {{{65, 500, 5}, {66, 521, 9}}, {}, "1023 x 9 (8 kb)", " 65:0,0 66:501,0", {}},
        {{{65, 500, 5}, {66, 522, 9}}, {}, "523 x 14 (7 kb)", " 65:0,0 66:0,5", {}},
        {{{65, 3000, 7}, {66, 1, 3}}, {}, "3001 x 10 (29 kb)", " 65:0,0 66:0,7", {}},
        {wide, {}, "1024 x 15 (15 kb)", " 65:0,0 66:0,5 67:0,12", {}},
        {failing, {}, "22 x 8 (0 kb)", " 65:0,0 128512:11,0", {failed, failed}},
        {tall, 1500, "1001 x 1500 (1466 kb)", " 65:0,0 66:0,600", {oneOut}},
        {{{65, 200, 100}, {66, 200, 100}}, 256, "256 x 100 (25 kb)", " 65:0,0", {oneOut}},
        {huge, 1500, "6 x 1500 (8 kb)", " 65:0,0 68:2,0", {twoOut}},
        // At the limit, and a pixel above it.
        {{{65, 256, 9}, {66, 257, 8}}, 256, "256 x 9 (2 kb)", " 65:0,0", {oneOut}},
        {{{65, 9, 256}, {66, 8, 257}}, 256, "10 x 256 (2 kb)", " 65:0,0", {oneOut}},
        // Without area, but with an advance.
        {{{65, 3, 4}, {66, 9, 0}, {67, 0, 9}}, {}, "15 x 9 (0 kb)", " 65:0,0 66:4,0 67:14,0", {}},
        // Codes above 0x10FFFF are not Unicode.
        {{{0x10FFFF, 4, 3}, {0x110000, 4, 3}}, {}, "5 x 3 (0 kb)", " 1114111:0,0", {}},
        {tall, unknown, "1001 x 1800 (1759 kb)", " 65:0,0 66:0,600 67:0,1200", {}},
    };
    for (const auto& c : cases) {
        UseFakeFont(c.glyphs);
        harness::Current().maxTextureSize = c.limit;
        for (int i = 1; c.limit == unknown && i <= 50; ++i) {
            harness::FailCall("glGetIntegerv", i);
        }
        glEnable(GL_NONE); // a pending client error
        EXPECT_EQ(surface->ZoLoadFont(sansPath, 40), ZO_SUCCESS);
        ExpectGlError(GL_INVALID_ENUM);
        Log log;
        for (const std::string& error : c.errors) {
            log.push_back({6, "FontAtlas", error});
        }
        log.push_back({5, "FontAtlas", "Generated a " + c.size + " texture atlas\n"});
        EXPECT_EQ(harness::TakeLog(), log);
        const FontAtlas& atlas = *surface->fontAtlas;
        const unsigned int columns = atlas.GetFontTextureWidth();
        const unsigned int rows = atlas.GetFontTextureHeight();
        EXPECT_EQ(c.size.find(std::to_string(columns) + " x " + std::to_string(rows) + ' '), 0U);
        std::ostringstream cells;
        for (const auto& [code, glyph] : atlas.GetGlyphs()) {
            cells << ' ' << code << ':' << std::round(glyph.texX * static_cast<float>(columns))
                  << ',' << std::round(glyph.texY * static_cast<float>(rows));
        }
        EXPECT_EQ(cells.str(), c.cells);
        harness::Current().faults.clear();
    }
}

TEST_F(GlyphAtlasGLTest, RepacksRowsOfAnyPitch) {
    const Bytes expected = {10, 20, 30, 40, 50, 60, 70, 80, 90};
    const FakeGlyph cases[] = {
        {65, 3, 3, 0, 3, 3, 3, expected},
        {65, 3, 3, 0, 3, 3, 5, {10, 20, 30, 1, 2, 40, 50, 60, 3, 4, 70, 80, 90}},
        {65, 3, 3, 0, 3, 3, -3, {70, 80, 90, 40, 50, 60, 10, 20, 30}},
        {65, 3, 3, 0, 3, 3, -4, {70, 80, 90, 1, 40, 50, 60, 2, 10, 20, 30, 3}},
    };
    for (const FakeGlyph& glyph : cases) {
        SCOPED_TRACE(glyph.pitch);
        UseFakeFont({glyph});
        Load();
        ExpectNear(Uploaded({}, 3, 3), expected);
        ExpectNear(Uploaded({41}, 3, 3), expected);
    }
    UseFakeFont({{65, 3, 1, 0, 1, 3, 0, {1, 3, 9}, false, 0, 4}}); // 9 is above the range
    Load();
    ExpectNear(Uploaded({}, 3, 1), {85, 255, 255});
}

// Fonts of 1, 2, 4 and 8 bits per pixel, which FreeType does not convert. Their B has a size, but no
// pixels.
TEST_F(GlyphAtlasGLTest, StretchesStrikesToFullCoverage) {
    const struct {
        int depth;
        const char* rows;
        Bytes coverage;
    } cases[] = {
        {1, "A4\n03", {255, 0, 255, 0, 0, 255, 0, 0, 0, 0, 0, 0, 0, 0, 255, 255}},
        {2, "1B00\n0003", {0, 85, 170, 255, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 255}},
        {4, "0123000F\n80000000", {0, 17, 34, 51, 0, 0, 0, 255, 136, 0, 0, 0, 0, 0, 0, 0}},
        {8, "0001807F000000FF\n02", {0, 1, 128, 127, 0, 0, 0, 255, 2, 0, 0, 0, 0, 0, 0, 0}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.depth);
        const std::string path = ::testing::TempDir() + "zogles_strike.bdf";
        std::filesystem::remove(path);
        std::ofstream(path) << "STARTFONT 2.1\nFONT -t-t-r-r-r--8-80-75-75-c-80-ISO10646-1\n"
                            << "SIZE 8 75 75 " << c.depth << "\nFONTBOUNDINGBOX 8 8 0 0\n"
                            << "STARTPROPERTIES 5\nPIXEL_SIZE 8\nFONT_ASCENT 8\nFONT_DESCENT 0\n"
                            << "CHARSET_REGISTRY \"ISO10646\"\nCHARSET_ENCODING \"1\"\n"
                            << "ENDPROPERTIES\nCHARS 2\nSTARTCHAR A\nENCODING 65\nSWIDTH 1000 0\n"
                            << "DWIDTH 8 0\nBBX 8 2 0 0\nBITMAP\n"
                            << c.rows << "\nENDCHAR\nSTARTCHAR B\nENCODING 66\n"
                            << "SWIDTH 1000 0\nDWIDTH 8 0\nBBX 8 2 0 0\nENDCHAR\nENDFONT\n";
        Load(path.c_str(), 8);
        EXPECT_EQ(surface->fontAtlas->GetGlyphs().size(), 1u);
        const Bytes plain = Uploaded({}, 8, 2);
        ExpectNear(plain, c.coverage);
        // Bold strokes cover at least the same pixels.
        const Bytes bold = Uploaded({8, true}, 8, 2);
        for (size_t i = 0; i < plain.size(); ++i) {
            EXPECT_GE(bold[i] + 1, plain[i]) << i;
        }
        EXPECT_GT(std::accumulate(bold.begin(), bold.end(), 0),
                  std::accumulate(plain.begin(), plain.end(), 255));
        const tagGlyphInfo& glyph = surface->fontStyleAtlas->GetGlyphs().at(u'A');
        EXPECT_EQ(glyph.advanceX, 8.0f);
        EXPECT_EQ(glyph.bitmapTop - glyph.bitmapHeight, 0.0f) << "still on the baseline";
        std::filesystem::remove(path);
    }
}

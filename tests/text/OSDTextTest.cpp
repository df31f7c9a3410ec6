// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "text/OSDText.h"
#include "support/Harness.h"

#include <gtest/gtest.h>

TEST(OSDTextTest, MeasuresByTheStandardAtlasAlone) {
    harness::Reset();
    const auto atlas = std::make_shared<FontAtlas>();
    const OSDText osdText(atlas, std::make_shared<FontStyleAtlas>());
    GlyphMap& glyphs = atlas->glyphs;
    glyphs[u'A'] = {20, 0, 18, 30, 1, 30, 0, 0};
    glyphs[u' '] = {12, 0, 0, 0, 0, 0, 0, 0};
    glyphs[u'-'] = {12, 0, 9, 0, 0, 0, 0, 0};
    glyphs[u'o'] = {10, 0, 12, 5, -2, 5, 0, 0};
    glyphs[u'p'] = {10, 0, 12, 5, 0, 5, 0, 0};
    glyphs[u'q'] = {12, 0, 12, 5, -2, 5, 0, 0};
    glyphs[u'^'] = {0, 0, 12, 5, -6, 5, 0, 0};
    glyphs[0x1F600] = {50, 0, 50, 50, 0, 50, 0, 0};
    const struct {
        const char* name;
        std::u16string text;
        unsigned int width;
        std::vector<unsigned int> absent;
    } cases[] = {
        {"nothing", u"", 0, {}},
        {"advances", u"AAq", 52, {}},
        {"an overhanging glyph counts its bitmap", u"o", 12, {}},
        {"one that starts at the pen its advance", u"p", 10, {}},
        {"a mark without an advance nothing", u"A^", 20, {}},
        {"a space is absent", u"A A", 70, {32}},
        {"so is a bitmap without rows", u"-", 30, {45}},
        {"a zero unit ends nothing", std::u16string(u"A\0A", 3), 70, {0}},
        {"no line breaks", u"A\nA", 70, {10}},
        {"surrogates stand alone", u"\U0001F600", 60, {0xD83D, 0xDE00}},
    };
    for (const auto& c : cases) {
        for (const bool isStyled : {false, true}) {
            SCOPED_TRACE(c.name);
            tagTextInfo info = {};
            info.text = c.text.data();
            info.length = static_cast<unsigned int>(c.text.size());
            info.fontSize = isStyled ? 20 : 40;
            info.bold = info.italic = isStyled ? 1 : 0;
            unsigned int width = 1;
            unsigned int height = 1;
            osdText.GetTextSize(&info, &width, &height);
            EXPECT_EQ(width, c.width);
            EXPECT_EQ(height, 50U);
            std::vector<harness::LogLine> log;
            for (const unsigned int unit : c.absent) {
                log.push_back({6, "OSDText", "Char " + std::to_string(unit) + " is not exit\n"});
                EXPECT_FALSE(osdText.FindCharFromMap(static_cast<char16_t>(unit)));
            }
            EXPECT_EQ(harness::TakeLog(), log);
        }
    }
    EXPECT_TRUE(osdText.FindCharFromMap(u'A'));
    EXPECT_EQ(glyphs.size(), 8U) << "measuring inserts nothing";
}

// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "text/Glyph.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace {

using Codes = std::vector<unsigned long>;

Codes CodesOf(const GlyphMap& map) {
    Codes codes;
    for (const auto& entry : map) {
        codes.push_back(entry.first);
    }
    return codes;
}

} // namespace

TEST(GlyphMapTest, VisitsCodesInAscendingOrder) {
    GlyphMap map;
    EXPECT_TRUE(map.empty() && map.begin() == map.end());
    // Both ends of pages and planes, and pages that start lower than the one before ends.
    const Codes codes = {0, 65, 254, 0x300, 0xFFFF, 0x10041, 0x10100, 0x10FFFF, 0xFFFFFFFF};
    for (const size_t i : std::vector<size_t>{5, 2, 0, 8, 7, 4, 3, 1, 6}) {
        EXPECT_EQ(map[codes[i]].texY, 0.0f);
        map[codes[i]] = {1, 2, 3, 4, 5, 6, 7, static_cast<float>(i + 1)};
    }
    EXPECT_EQ(CodesOf(map), codes);
    const GlyphMap::Units units = map.ReadUnits();
    for (size_t i = 0; i < codes.size(); ++i) {
        if (codes[i] <= 0xFFFF) {
            EXPECT_EQ(units[static_cast<char16_t>(codes[i])].texY, static_cast<float>(i + 1));
        }
        EXPECT_EQ(map.at(codes[i]).texY, static_cast<float>(i + 1));
        EXPECT_EQ(map.find(codes[i])->first, codes[i]);
        EXPECT_EQ(map.count(codes[i]), 1U);
    }
    GlyphMap::const_iterator glyph = map.begin();
    EXPECT_EQ((glyph++)->first, codes[0]);
    EXPECT_EQ(glyph->first, codes[1]);
    for (const unsigned long absent : {1UL, 66UL, 0xFFFEUL, 0x10042UL, 0x20000UL, 0xFFFFFFFEUL}) {
        EXPECT_TRUE(map.count(absent) == 0 && map.find(absent) == map.end()) << absent;
        EXPECT_THROW(map.at(absent), std::out_of_range) << absent;
    }
    EXPECT_EQ(map.size(), codes.size()) << "looking up inserts nothing";
}

TEST(GlyphMapTest, SharesTheTableUntilACopyIsWrittenTo) {
    GlyphMap original;
    original[65].advanceX = 1;
    GlyphMap copy = original;
    // cppcheck-suppress knownConditionTrueFalse; that is what is tested
    EXPECT_EQ(&copy.at(65), &original.at(65));
    copy[65].advanceX = 2;
    copy[0x1F600];
    EXPECT_FALSE(copy.SharesTableWith(original));
    EXPECT_EQ(original.at(65).advanceX, 1.0f);
    const GlyphMap kept = original;
    original.clear();
    EXPECT_TRUE(original.empty() && original.count(65) == 0);
    original[66];
    EXPECT_EQ(CodesOf(original), Codes{66});
    EXPECT_EQ(CodesOf(kept), Codes{65});
    EXPECT_EQ(CodesOf(copy), (Codes{65, 0x1F600}));
}

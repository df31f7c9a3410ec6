// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "TextFixture.h"

namespace {

class TextPixelsGLTest : public TextFixture {};

} // namespace

TEST_F(TextPixelsGLTest, AreFreeTypesBitmapsBlendedByTheFormula) {
    Load();
    const struct {
        const char* name;
        std::u16string_view text;
        Style style;
        unsigned int x, y;
    } cases[] = {
        {"standard", u"Ag j\u00A7W", {}, 10, 60},
        {"half transparent", u"AVW@g", {40, false, false, {255, 0, 30, 128}}, 10, 60},
        {"1 is full intensity", u"fi1", {40, false, false, {1, 0, 1, 1}}, 10, 60},
        {"faint", u"MMM", {40, false, false, {200, 200, 200, 2}}, 10, 60},
        {"above the target", u"gjpq\u00C7", {}, 10, 0},
        {"past the right edge", u"WWWW", {}, 190, 60},
        {"past the bottom edge", u"gggg", {}, 20, 127},
        {"small", u"The quick brown \u0141", {12, false, false, {0, 255, 0, 255}}, 3, 40},
        {"italic", u"fHl/j", {31, false, true, {255, 255, 2, 255}}, 10, 60},
        {"upright after italic", u"fHl/j", {32}, 10, 60},
        {"bold", u"HgM@", {40, true}, 10, 60},
        {"bold, small", u"HgMij@", {12, true}, 10, 60},
        {"bold, large", u"HgM", {96, true}, 10, 90},
        {"bold italic", u"HgM@jf", {27, true, true, {90, 80, 250, 100}}, 10, 60},
        {"plain after bold, size 0 like 40", u"HgM@", {0}, 10, 60},
        {"large", u"Qy", {96, false, true}, 20, 90},
    };
    for (const auto& c : cases) {
        for (const Pixel& background : {Pixel{30, 60, 200, 255}, Pixel{}}) {
            SCOPED_TRACE(c.name + std::string(" over alpha ") + std::to_string(background[3]));
            Fill(buffer, background);
            ASSERT_EQ(Draw(c.text, c.style, c.x, c.y), ZO_SUCCESS);
            EXPECT_TRUE(Shows(c.text, c.style, sansPath, static_cast<int>(c.x),
                              static_cast<int>(c.y), background));
        }
    }
    buffer = ZO_WINDOW_HANDLE;
    Drawn(u"Window");
    EXPECT_TRUE(Shows(u"Window", {}));
}

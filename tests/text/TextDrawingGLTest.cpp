// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "TextFixture.h"

namespace {

class TextDrawingGLTest : public TextFixture {
protected:
    static const std::vector<harness::Vertex>& Vertices() { return harness::Current().vertices; }

    // Whether the vertices from `first` on are zero.
    static bool IsZeroFrom(long first) {
        return std::all_of(Vertices().begin() + first, Vertices().end(),
                           [](const harness::Vertex& v) {
                               return v == harness::Vertex{0, 0, 0, 0};
                           });
    }

    static Calls Create(GLenum unit, GLuint texture, int columns, int rows) {
        return Calls{Call("glActiveTexture", unit), Call("glGenTextures", 1, data),
                     BindTexture(texture),
                     Call("glTexImage2D", GL_TEXTURE_2D, 0, GL_ALPHA, columns, rows, 0, GL_ALPHA,
                          GL_UNSIGNED_BYTE, "null"),
                     Call("glPixelStorei", GL_UNPACK_ALIGNMENT, 1)} +
               SetParameters({GL_TEXTURE_WRAP_S, GL_TEXTURE_WRAP_T, GL_TEXTURE_MIN_FILTER,
                              GL_TEXTURE_MAG_FILTER});
    }

    static Calls Upload(int x, int columns, int rows) {
        return {Call("glTexSubImage2D", GL_TEXTURE_2D, 0, x, 0, columns, rows, GL_ALPHA,
                     GL_UNSIGNED_BYTE, data)};
    }

    static Calls LoadChar(char16_t unit) { return {Call("FT_Load_Char", data, unit, 4)}; }

    static Calls NextChar(char16_t unit) { return {Call("FT_Get_Next_Char", data, unit, data)}; }

    Calls RenderText(size_t units) const {
        const OSDText& text = *surface->osdText;
        return FeedVertices(text.coordLocation, text.vertexBuffer, 96 * units) +
               Calls{Call("glDrawArrays", GL_TRIANGLES, 0, 6 * units)} +
               UnbindVertices(text.coordLocation);
    }

    /// A drawing operation, with the calls of the styled atlas in between.
    Calls DrawText(GLenum unit, GLuint texture, size_t units, const Calls& styled = {}) const {
        const OSDText& text = *surface->osdText;
        return Calls{Zero(sizeof(tagFrameBuffObject)), Zero(sizeof(tagTextInfo)),
                     Zero(sizeof(tagRectInfo))} +
               styled + BindTarget(surface->fboManager->slots[1].framebuffer, width, height) +
               Calls{Call("glUseProgram", text.program)} + EnableBlending() +
               Calls{Call("glUniform4fv", text.colorLocation, 1, 1, 1, 1, 1)} +
               Sample(unit, BindTexture(texture), text.texLocation) + RenderText(units) +
               Calls{Call("glDisable", GL_BLEND), BindTexture(0), BindFramebuffer(0)};
    }
};

Log Errors(const std::vector<std::string>& lines) {
    Log log;
    for (const std::string& line : lines) {
        log.push_back({6, "OSDText", line});
    }
    return log;
}

} // namespace

TEST_F(TextDrawingGLTest, MakesExactlyTheseCalls) {
    UseFakeFont({{'A', 4, 3, 0, 3, 4}, {'B', 5, 7, 0, 7, 5}});
    Load(sansPath, 0);
    const Calls loading = harness::Record([&] { surface->fontAtlas->LoadFontByPath(sansPath, 0); });
    const GLuint atlas = surface->fontAtlas->GetFontTexture();
    const auto walk = [](const Calls& first, const Calls& second) {
        return Calls{Call("FT_Get_First_Char", data, data)} + LoadChar('A') + first +
               NextChar('A') + LoadChar('B') + second + NextChar('B');
    };
    EXPECT_EQ(loading,
              (Calls{Call("glDeleteTextures", 1, data), Call("FT_Init_FreeType", data),
                     Call("FT_New_Face", data, sansPath, 0, data),
                     Call("FT_Set_Pixel_Sizes", data, 0, 40)} +
               walk({}, {}) + Create(GL_TEXTURE1, atlas, 11, 7) +
               walk(Upload(0, 4, 3), Upload(5, 5, 7)) +
               Calls{BindTexture(0), Call("FT_Done_Face", data), Call("FT_Done_FreeType", data)}));
    for (const std::u16string_view text : {u"", u"AB"}) {
        Draw(text);
        EXPECT_EQ(harness::Record([&] { Draw(text); }), DrawText(GL_TEXTURE1, atlas, text.size()));
        ExpectStateAfterDraw(GL_TEXTURE1);
    }
    const Style italic = {40, false, true};
    Draw(u"BA", italic);
    const Calls styled = harness::Record([&] { Draw(u"BA", italic); });
    const GLuint texture = surface->osdText->fontTexture;
    EXPECT_EQ(
        styled,
        DrawText(GL_TEXTURE2, texture, 2,
                 Calls{Call("glDeleteTextures", 1, data), Call("FT_Set_Pixel_Sizes", data, 0, 40),
                       Call("FT_Set_Transform", data, data, "null")} +
                     LoadChar('B') + LoadChar('A') + Create(GL_TEXTURE2, texture, 11, 7) +
                     LoadChar('B') + Upload(0, 5, 7) + LoadChar('A') + Upload(6, 4, 3) +
                     Calls{BindTexture(0)}));
    ExpectStateAfterDraw(GL_TEXTURE2);
    EXPECT_EQ(harness::Record([&] { surface->osdText->RenderText(u"AB", 2, 0, 0); }),
              RenderText(2));
    EXPECT_EQ(harness::TakeLog().size(), 1u) << "the standard atlas's size";
}

TEST_F(TextDrawingGLTest, MovesThePenByBothAdvances) {
    UseFakeFont({{65, 8, 8, 0, 8, 10, 0, {}, false, 4}, {66, 8, 8, 0, 8, -1, 0, {}, false, -1}});
    Load();
    Draw(u"AAB");
    const float top = 1 - 52 / 64.0f;
    for (const size_t i : {0U, 1U, 2U}) { // up by 4 pixels each
        EXPECT_EQ(Vertices()[6 * i][1], top + 4 * static_cast<float>(i) / 64);
    }
    // Negative advances are taken as unsigned, in 26.6 fixed point.
    const tagGlyphInfo& negative = surface->fontAtlas->GetGlyphs().at(66);
    EXPECT_EQ(negative.advanceX, 67108864.0f);
    EXPECT_EQ(negative.advanceY, 67108864.0f);
    FT_GlyphSlotRec fraction = {};
    fraction.advance = {127, 63};
    surface->fontAtlas->FontCharInfoToMap(&fraction, 0, 0, 67);
    EXPECT_EQ(surface->fontAtlas->GetGlyphs().at(67).advanceX, 1.0f);
    EXPECT_EQ(surface->fontAtlas->GetGlyphs().at(67).advanceY, 0.0f);
}

TEST_F(TextDrawingGLTest, SkipsUnitsThatTheFontLacks) {
    Load();
    Draw(u"MMMM"); // fills the stack
    const int uploads = harness::CountOf("glBufferData");
    const int draws = harness::CountOf("glDrawArrays");
    Drawn(u"A\nB ");
    EXPECT_EQ(harness::TakeLog(), Errors({"Char 10 is not exit\n", "Char 32 is not exit\n"}));
    EXPECT_TRUE(Shows(u"AB", {}));
    EXPECT_TRUE(Vertices().size() == 24 && IsZeroFrom(12));
    EXPECT_EQ(harness::CountOf("glBufferData") - uploads, 2) << "one a text, one for clearing";
    EXPECT_EQ(harness::CountOf("glDrawArrays") - draws, 2);

    // The styled atlas ends at the zero unit: later units have no area and do not move the pen.
    Drawn({u"ab\0c", 4}, {41});
    EXPECT_EQ(harness::TakeLog(), Errors({"Char 0 is not exit\n"}));
    EXPECT_TRUE(Shows(u"ab", {41}));
    EXPECT_EQ(Vertices()[12], Vertices()[17]);
    EXPECT_TRUE(Vertices().size() == 24 && IsZeroFrom(18));
    EXPECT_EQ(surface->fontStyleAtlas->GetGlyphs().size(), 2u);

    // A unit that fails to load in both passes is skipped without a log line.
    harness::FailCall("FT_Load_Char", 1);
    harness::FailCall("FT_Load_Char", 3);
    Drawn(u"ab", {41});
    EXPECT_TRUE(Shows(u"b", {41}));
    EXPECT_EQ(harness::TakeLog(), Log());
}

TEST_F(TextDrawingGLTest, StopsAtTheLength) {
    Load();
    const std::u16string_view text = std::u16string_view(u"abcd").substr(0, 3);
    for (const Style& style : {Style{}, Style{41}}) {
        Drawn(text, style);
        EXPECT_TRUE(Shows(u"abc", style));
    }
    EXPECT_EQ(surface->fontStyleAtlas->GetGlyphs().size(), 3u);
    const int draws = harness::CountOf("glDrawArrays");
    for (const std::u16string_view none : {std::u16string_view(), text.substr(0, 0)}) {
        EXPECT_EQ(Draw(none), ZO_SUCCESS);
    }
    EXPECT_EQ(harness::CountOf("glDrawArrays") - draws, 2);
    EXPECT_EQ(harness::TakeLog(), Log());
}

TEST_F(TextDrawingGLTest, AllocatesForLongTextsOnlyAndSurvivesARefusal) {
    UseCharacters({'i'});
    Load();
    const std::u16string fits(64, u'i');
    const std::u16string tooLong(65, u'i');
    Draw(tooLong);
    EXPECT_EQ(harness::CountAllocations([&] { Draw(fits); }), 0);
    EXPECT_TRUE(surface->osdText->glyphs.SharesTableWith(surface->fontAtlas->GetGlyphs()))
        << "copying the table would cost more than drawing the text";
    EXPECT_EQ(harness::CountAllocations([&] { Draw(tooLong); }), 1);
    Draw(u"iii" + std::u16string(62, u' '));
    EXPECT_TRUE(Vertices().size() == size_t{65} * 6 && IsZeroFrom(18));
    harness::TakeLog();
    Fill(buffer, {});
    harness::RefuseAllocation(1);
    EXPECT_EQ(Draw(tooLong), ZO_FAILURE);
    EXPECT_EQ(harness::TakeLog(), Errors({"out of memory\n"}));
    ExpectStateAfterDraw(GL_TEXTURE1);
    EXPECT_TRUE(Shows(u"", {}));
    harness::RefuseAllocation(1);
    surface->osdText->RenderText(tooLong.data(), 65, 0, 0);
    EXPECT_EQ(harness::TakeLog(), Errors({"out of memory\n"}));
    ExpectStateAfterDraw(GL_TEXTURE1);
    EXPECT_EQ(Draw(tooLong), ZO_SUCCESS);
    EXPECT_TRUE(Shows(tooLong, {}));
    for (const size_t units : {size_t{1000}, size_t{20000}}) {
        // The pen goes far past the target's right edge.
        const std::u16string text(units, u'i');
        Drawn(text);
        EXPECT_EQ(Vertices().size(), units * 6);
        EXPECT_TRUE(Shows(text, {}));
    }
}

#include "TextFixture.h"

#include <cstring>
#include <sys/mman.h>
#include <unistd.h>

using harness::Call;
using Calls = std::vector<std::string>;

namespace {

const void* const data = "";
constexpr void* noData = nullptr;

using Corner = std::array<float, 4>;

class TextDrawingGLTest : public TextFixture {
protected:
    std::vector<Corner> Vertices() const {
        const std::vector<unsigned char>& bytes = harness::Current().bufferData;
        std::vector<Corner> vertices(bytes.size() / sizeof(Corner));
        memcpy(vertices.data(), bytes.data(), vertices.size() * sizeof(Corner));
        return vertices;
    }

    // Whether only the first vertices of the upload are used.
    bool IsZeroFrom(size_t first) const {
        const std::vector<Corner> vertices = Vertices();
        return std::count(vertices.begin() + static_cast<long>(first), vertices.end(), Corner()) ==
               static_cast<long>(vertices.size() - first);
    }

    Calls Zeroing() const {
        const auto zero = [](size_t size) { return Call("memset_s", data, size, 0, size); };
        return {zero(sizeof(tagFrameBuffObject)), zero(sizeof(tagTextInfo)),
                zero(sizeof(tagRectInfo))};
    }

    Calls Creating(GLenum unit, GLuint texture, int columns, int rows) const {
        const GLenum target = GL_TEXTURE_2D;
        return {Call("glActiveTexture", unit),
                Call("glGenTextures", 1, data),
                Call("glBindTexture", target, texture),
                Call("glTexImage2D", target, 0, GL_ALPHA, columns, rows, 0, GL_ALPHA,
                     GL_UNSIGNED_BYTE, noData),
                Call("glPixelStorei", GL_UNPACK_ALIGNMENT, 1),
                Call("glTexParameteri", target, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE),
                Call("glTexParameteri", target, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE),
                Call("glTexParameteri", target, GL_TEXTURE_MIN_FILTER, GL_LINEAR),
                Call("glTexParameteri", target, GL_TEXTURE_MAG_FILTER, GL_LINEAR)};
    }

    std::string Uploading(int x, int columns, int rows) const {
        return Call("glTexSubImage2D", GL_TEXTURE_2D, 0, x, 0, columns, rows, GL_ALPHA,
                    GL_UNSIGNED_BYTE, data);
    }

    Calls Drawing(GLenum unit, GLuint texture, size_t units) const {
        const OSDText& text = *surface->osdText;
        const auto framebuffer = surface->fboManager->slots[1].framebuffer;
        return {Call("glBindFramebuffer", GL_FRAMEBUFFER, framebuffer),
                Call("glViewport", 0, 0, width, height),
                Call("glUseProgram", text.program),
                Call("glEnable", GL_BLEND),
                Call("glBlendFunc", GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA),
                Call("glUniform4fv", text.colorLocation, 1, 1.0f, 1.0f, 1.0f, 1.0f),
                Call("glActiveTexture", unit),
                Call("glBindTexture", GL_TEXTURE_2D, texture),
                Call("glUniform1i", text.texLocation, unit - GL_TEXTURE0),
                Call("glEnableVertexAttribArray", text.coordLocation),
                Call("glBindBuffer", GL_ARRAY_BUFFER, text.vertexBuffer),
                Call("glVertexAttribPointer", text.coordLocation, 4, GL_FLOAT, 0, 0, noData),
                Call("glBufferData", GL_ARRAY_BUFFER, 96 * units, data, GL_DYNAMIC_DRAW),
                Call("glDrawArrays", GL_TRIANGLES, 0, 6 * units),
                Call("glBindBuffer", GL_ARRAY_BUFFER, 0),
                Call("glDisableVertexAttribArray", text.coordLocation),
                Call("glDisable", GL_BLEND),
                Call("glBindTexture", GL_TEXTURE_2D, 0),
                Call("glBindFramebuffer", GL_FRAMEBUFFER, 0)};
    }
};

Calls Join(const std::vector<Calls>& parts) {
    Calls all;
    for (const Calls& part : parts) {
        all.insert(all.end(), part.begin(), part.end());
    }
    return all;
}

} // namespace

TEST_F(TextDrawingGLTest, AtlasesAndDrawsMakeTheirCallsInOrderAndNoOthers) {
    UseFakeFont({{65, 4, 3, 0, 3, 4}, {66, 5, 7, 0, 7, 5}});
    Load(sansPath, 0);
    const Calls loading = harness::Record([&] { surface->fontAtlas->LoadFontByPath(sansPath, 0); });
    const GLuint atlas = surface->fontAtlas->GetFontTexture();
    const auto walking = [](const Calls& first, const Calls& second) {
        return Join({{Call("FT_Get_First_Char", data, data), Call("FT_Load_Char", data, 65, 4)},
                     first,
                     {Call("FT_Get_Next_Char", data, 65, data), Call("FT_Load_Char", data, 66, 4)},
                     second,
                     {Call("FT_Get_Next_Char", data, 66, data)}});
    };
    EXPECT_EQ(loading, Join({{Call("glDeleteTextures", 1, data), Call("FT_Init_FreeType", data),
                              Call("FT_New_Face", data, sansPath, 0, data),
                              Call("FT_Set_Pixel_Sizes", data, 0, 40)},
                             walking({}, {}),
                             Creating(GL_TEXTURE1, atlas, 11, 7),
                             walking({Uploading(0, 4, 3)}, {Uploading(5, 5, 7)}),
                             {Call("glBindTexture", GL_TEXTURE_2D, 0), Call("FT_Done_Face", data),
                              Call("FT_Done_FreeType", data)}}));
    for (const std::u16string_view text : {u"", u"AB"}) {
        Draw(text);
        const Calls calls = harness::Record([&] { Draw(text); });
        EXPECT_EQ(calls, Join({Zeroing(), Drawing(GL_TEXTURE1, atlas, text.size())}));
        ExpectStateAfterDraw(GL_TEXTURE1);
    }
    const Style italic = {40, false, true};
    Draw(u"BA", italic);
    const Calls styled = harness::Record([&] { Draw(u"BA", italic); });
    const GLuint texture = surface->osdText->fontTexture;
    const Calls b = {Call("FT_Load_Char", data, 66, 4)};
    const Calls a = {Call("FT_Load_Char", data, 65, 4)};
    EXPECT_EQ(styled,
              Join({Zeroing(),
                    {Call("glDeleteTextures", 1, data), Call("FT_Set_Pixel_Sizes", data, 0, 40),
                     Call("FT_Set_Transform", data, data, noData)},
                    b,
                    a,
                    Creating(GL_TEXTURE2, texture, 11, 7),
                    b,
                    {Uploading(0, 5, 7)},
                    a,
                    {Uploading(6, 4, 3)},
                    {Call("glBindTexture", GL_TEXTURE_2D, 0)},
                    Drawing(GL_TEXTURE2, texture, 2)}));
    ExpectStateAfterDraw(GL_TEXTURE2);
    EXPECT_EQ(harness::TakeLog().size(), 1u) << "the standard atlas's size";
}

TEST_F(TextDrawingGLTest, BuildsVerticesByTheFormulas) {
    UseFakeFont({{65, 7, 16, 2, 3, 4}, {66, 7, 8, -1, 8, 9}});
    Load();
    ASSERT_EQ(Draw(u"AB"), ZO_SUCCESS);
    std::vector<Corner> expected;
    const auto addQuad = [&](float left, float top, float bottom, float s0, float t1) {
        const auto at = [](float x, float y, float s, float t) {
            return Corner{x / 128 - 1, 1 - y / 64, s, t};
        };
        const float right = left + 7;
        const float s1 = s0 + 7.0f / 16;
        for (const Corner& corner :
             {at(left, top, s0, 0), at(right, top, s1, 0), at(left, bottom, s0, t1),
              at(right, top, s1, 0), at(left, bottom, s0, t1), at(right, bottom, s1, t1)}) {
            expected.push_back(corner);
        }
    };
    addQuad(12, 57, 73, 0, 1);
    addQuad(13, 52, 60, 0.5f, 0.5f);
    EXPECT_EQ(Vertices(), expected);
    // The same through the renderer's own operation.
    harness::Current().bufferData.clear();
    const Calls calls = harness::Record(
        [&] { surface->osdText->RenderText(u"AB", 2, 10 / 128.0f - 1, 1 - 60 / 64.0f); });
    EXPECT_EQ(Vertices(), expected);
    EXPECT_EQ(calls.size(), 7U) << "three to bind the vertices, two to draw, two to unbind";

    const struct {
        int left, advance, start;
    } cases[] = {{-2, 10, 10}, {0, 10, 10}, {-2, 12, 8}, {-2, 0, 8}};
    for (const auto& c : cases) {
        UseFakeFont({{65, 12, 5, c.left, 5, c.advance}});
        Load();
        for (const unsigned int size : {40U, 41U}) {
            Draw(u"AA", {size});
            EXPECT_EQ(Vertices()[0][0], static_cast<float>(c.start) / 128 - 1);
            EXPECT_EQ(Vertices()[6][0], static_cast<float>(c.start + c.advance) / 128 - 1);
        }
    }
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

TEST_F(TextDrawingGLTest, SkipsWhatTheFontCannotShow) {
    Load();
    Draw(u"MMMM"); // so that the stack is not zero by chance
    const int uploads = harness::CountOf("glBufferData");
    const int draws = harness::CountOf("glDrawArrays");
    Drawn(u"A\nB ");
    EXPECT_EQ(harness::TakeLog(),
              Errors({{"OSDText", "Char 10 is not exit\n"}, {"OSDText", "Char 32 is not exit\n"}}));
    EXPECT_TRUE(Shows(u"AB", {}));
    EXPECT_TRUE(Vertices().size() == 24 && IsZeroFrom(12));
    EXPECT_EQ(harness::CountOf("glBufferData") - uploads, 2) << "one a text, one for clearing";
    EXPECT_EQ(harness::CountOf("glDrawArrays") - draws, 2);

    // The styled atlas ends at the zero unit: what follows has no area and moves nothing.
    Drawn({u"ab\0c", 4}, {41});
    EXPECT_EQ(harness::TakeLog(), Errors({{"OSDText", "Char 0 is not exit\n"}}));
    EXPECT_TRUE(Shows(u"ab", {41}));
    EXPECT_EQ(Vertices()[12], Vertices()[17]);
    EXPECT_TRUE(Vertices().size() == 24 && IsZeroFrom(18));
    EXPECT_EQ(surface->fontStyleAtlas->GetGlyphs().size(), 2u);

    // So does a unit that fails to load in both passes, which nobody logs.
    harness::FailCall("FT_Load_Char", 1);
    harness::FailCall("FT_Load_Char", 3);
    Drawn(u"ab", {41});
    EXPECT_TRUE(Shows(u"b", {41}));
    EXPECT_EQ(harness::TakeLog(), Log());
}

TEST_F(TextDrawingGLTest, NeverReadsPastTheLength) {
    Load();
    const size_t page = static_cast<size_t>(getpagesize());
    char* pages = static_cast<char*>(
        mmap(nullptr, 2 * page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    mprotect(pages + page, page, PROT_NONE);
    char16_t* end = reinterpret_cast<char16_t*>(pages + page);
    const std::u16string_view text(std::copy_n(u"abc", 3, end - 3) - 3, 3);
    for (const Style& style : {Style{}, Style{41}}) {
        Drawn(text, style);
        EXPECT_TRUE(Shows(u"abc", style));
        const tagZoTextInfo info = Request(text, style);
        unsigned int size[] = {0, 0};
        EXPECT_EQ(surface->ZoGetTextSize(&info, &size[0], &size[1]), ZO_SUCCESS);
        EXPECT_TRUE(size[0] > 50 && size[1] == 50) << size[0] << ' ' << size[1];
    }
    munmap(pages, 2 * page);

    const int draws = harness::CountOf("glDrawArrays");
    for (const std::u16string_view none :
         {std::u16string_view(), std::u16string_view(u"unread").substr(0, 0)}) {
        EXPECT_EQ(Draw(none), ZO_SUCCESS);
        EXPECT_EQ(harness::TakeLog(), Log());
    }
    EXPECT_EQ(harness::CountOf("glDrawArrays") - draws, 2);
}

TEST_F(TextDrawingGLTest, TakesMemoryForLongTextsOnlyAndStandsItsRefusal) {
    UseFirst(100);
    Load();
    const std::u16string fits(64, u'i');
    const std::u16string tooLong(65, u'i');
    Draw(tooLong);
    EXPECT_EQ(harness::CountAllocations([&] { Draw(fits); }), 0);
    EXPECT_TRUE(surface->osdText->glyphs.SharesTableWith(surface->fontAtlas->GetGlyphs()))
        << "a copy that grew with the font would cost more than the text";
    EXPECT_EQ(harness::CountAllocations([&] { Draw(tooLong); }), 1);
    Draw(u"iii" + std::u16string(62, u' '));
    EXPECT_TRUE(Vertices().size() == size_t{65} * 6 && IsZeroFrom(18));
    harness::TakeLog();
    Fill({});
    harness::RefuseAllocation(1);
    EXPECT_EQ(Draw(tooLong), ZO_FAILURE);
    EXPECT_EQ(harness::TakeLog(), Errors({{"OSDText", "out of memory\n"}}));
    ExpectStateAfterDraw(GL_TEXTURE1);
    EXPECT_TRUE(Shows(u"", {}));
    harness::RefuseAllocation(1);
    surface->osdText->RenderText(tooLong.data(), 65, 0, 0);
    EXPECT_EQ(harness::TakeLog(), Errors({{"OSDText", "out of memory\n"}}));
    ExpectStateAfterDraw(GL_TEXTURE1);
    EXPECT_EQ(Draw(tooLong), ZO_SUCCESS);
    EXPECT_TRUE(Shows(tooLong, {}));
    for (const size_t units : {size_t{1000}, size_t{100000}}) {
        // Far more than the target is wide: the pen passes its right edge.
        const std::u16string text(units, u'i');
        Drawn(text);
        EXPECT_EQ(Vertices().size(), units * 6);
        EXPECT_TRUE(Shows(text, {}));
    }
}

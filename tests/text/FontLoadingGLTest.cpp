// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "TextFixture.h"

namespace {

constexpr char missingPath[] = "/nonexistent/font.ttf";

class FontLoadingGLTest : public TextFixture {};

} // namespace

TEST_F(FontLoadingGLTest, KeepsTheSizeIfTheNewOneCannotBeSet) {
    Load();
    Drawn(u"M", {20});
    harness::FailCall("FT_Set_Pixel_Sizes");
    Drawn(u"M", {60});
    EXPECT_TRUE(Shows(u"M", {20}));
}

TEST_F(FontLoadingGLTest, FreesMembersInOrderWithTheLastOwner) {
    UseFakeFont({{65, 4, 3}});
    Load();
    Draw(u"A", {41});
    surface->fontAtlas.reset();
    surface->fontStyleAtlas.reset();
    std::vector<std::string> names;
    for (const std::string& call : harness::Record([&] { surface->osdText.reset(); })) {
        names.push_back(call.substr(0, call.find('(')));
    }
    EXPECT_EQ(names,
              (std::vector<std::string>{"glDeleteBuffers", "glDeleteProgram", "glDeleteTextures",
                                        "FT_Done_Face", "FT_Done_FreeType", "glDeleteTextures"}));
}

TEST_F(FontLoadingGLTest, HasSizeZeroAfterTwoFailedLoads) {
    UseFakeFont({{65, 4, 3}});
    Load();
    harness::FailCall("glGenTextures");
    EXPECT_EQ(surface->ZoLoadFont(sansPath, 40), ZO_FAILURE);
    EXPECT_EQ(surface->ZoLoadFont(missingPath, 40), ZO_FONT_FACE_FAILED);
    EXPECT_EQ(surface->fontAtlas->GetFontTextureWidth(), 0U);
    EXPECT_EQ(surface->fontAtlas->GetFontTextureHeight(), 0U);
}

TEST_F(FontLoadingGLTest, LoadFontReplacesTheAtlas) {
    UseFakeFont({{65, 4, 3}});
    Load();
    const std::string live = harness::DescribeLive();
    EXPECT_EQ(surface->fontAtlas->LoadFont(surface->fontStyleAtlas->face, 20), ZO_SUCCESS);
    EXPECT_EQ(harness::DescribeLive(), live);
}

TEST_F(FontLoadingGLTest, FirstUseLoadsTheDefaultFont) {
    harness::Current().fontFile = monoPath;
    UseCharacters({'A'});
    Drawn(u"A");
    EXPECT_TRUE(Shows(u"A", {}, monoPath));
}

TEST_F(FontLoadingGLTest, SharesAtlasesReloadsThemInPlaceAndDropsThemWithTheWindow) {
    UseCharacters({'A', 'g'});
    Load();
    const std::weak_ptr<FontAtlas> standard = surface->fontAtlas;
    const std::weak_ptr<FontStyleAtlas> styled = surface->fontStyleAtlas;
    EXPECT_TRUE(standard.use_count() == 1 && styled.use_count() == 1);
    Drawn(u"Ag", {30});
    EXPECT_TRUE(standard.use_count() == 2 && styled.use_count() == 2);
    const OSDText* renderer = surface->osdText.get();
    Load(monoPath, 25);
    Drawn(u"Ag");
    EXPECT_TRUE(Shows(u"Ag", {25}, monoPath)) << "size 40 means the size that was loaded";
    for (const Style& other : {Style{0}, Style{30}, Style{40, true}}) {
        Drawn(u"Ag", other);
        EXPECT_TRUE(Shows(u"Ag", other, monoPath));
    }
    EXPECT_TRUE(surface->osdText.get() == renderer && surface->fontAtlas == standard.lock());

    surface->ZoDestoryGLWindowSurface();
    EXPECT_TRUE(standard.expired() && styled.expired());
    EXPECT_EQ(harness::DescribeLive(), "");
    Bind();
    harness::Current().fontFile = missingPath;
    EXPECT_EQ(Draw(u"Ag"), ZO_FONT_FACE_FAILED) << "back to the default font";
    harness::Current().fontFile.clear();
    Load();
    Drawn(u"Ag");
    EXPECT_TRUE(Shows(u"Ag", {}));
}

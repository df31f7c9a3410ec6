#include "TextFixture.h"

#include <filesystem>
#include <fstream>

namespace {

constexpr char own[] = "ZoGLDrawSurface";
constexpr char missingPath[] = "/nonexistent/font.ttf";

class FontLoadingGLTest : public TextFixture {};

} // namespace

TEST_F(FontLoadingGLTest, AFailedLoadLeavesWhatItDidNotReach) {
    const std::string scratch = ::testing::TempDir() + "zogles_font";
    std::ofstream(scratch).flush();
    const char* noLibrary = "Failed to initialize freetype library";
    const char* noFace = "Error loading font face";
    const struct {
        const char* name;
        std::string path;
        const char* failing; ///< the call that fails
        bool isStyled;       ///< it is the styled atlas's, the second
        int code;
        const char* line;
    } cases[] = {
        {"missing", missingPath, "", false, ZO_FONT_FACE_FAILED, noFace},
        {"a folder", ::testing::TempDir(), "", false, ZO_FONT_FACE_FAILED, noFace},
        {"empty", scratch, "", false, ZO_FONT_FACE_FAILED, noFace},
        {"library", sansPath, "FT_Init_FreeType", false, ZO_FREETYPE_FAILED, noLibrary},
        {"texture", sansPath, "glGenTextures", false, ZO_FAILURE, "Create texture fail\n"},
        {"styled library", sansPath, "FT_Init_FreeType", true, ZO_FREETYPE_FAILED, noLibrary},
        {"styled face", sansPath, "FT_New_Face", true, ZO_FONT_FACE_FAILED, noFace},
    };
    UseFakeFont({{65, 4, 3, 0, 3, 4}});
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Load(monoPath);
        harness::FailCall(c.failing, c.isStyled ? 2 : 1);
        EXPECT_EQ(surface->ZoLoadFont(c.path.c_str(), 40), c.code);
        std::ostringstream summary;
        summary << "Load " << (c.isStyled ? "dynamic" : "standard") << " font lib fail " << c.code
                << '\n';
        Log log =
            Errors({{c.isStyled ? "FontStyleAtlas" : "FontAtlas", c.line}, {own, summary.str()}});
        if (c.isStyled) {
            log.insert(log.begin(), {5, "FontAtlas", "Generated a 5 x 3 (0 kb) texture atlas\n"});
        }
        EXPECT_EQ(harness::TakeLog(), log);
        EXPECT_EQ(surface->fontAtlas->GetFontTexture() != 0, c.isStyled);
        EXPECT_EQ(surface->fontAtlas->GetGlyphs().empty(), !c.isStyled);
        EXPECT_EQ(surface->fontStyleAtlas->face == nullptr, c.isStyled);
        EXPECT_TRUE(surface->fontLoaded);
        // Drawing goes on with what there is, and never hands FreeType a null face.
        EXPECT_EQ(Draw(u"A"), ZO_SUCCESS);
        EXPECT_EQ(Draw(u"A", {41}), c.isStyled ? ZO_FONT_ATLAS_EMPTY : ZO_SUCCESS);
        EXPECT_EQ(harness::TakeLog().size(), c.isStyled ? 3u : 2u);
    }
    std::filesystem::remove(scratch);
}

TEST_F(FontLoadingGLTest, AnyStepOfALoadOrAStyledDrawMayFail) {
    UseFirst(60);
    Load();
    Drawn(u"AB", {20});
    const std::string alive = harness::DescribeLive();
    int faults = 0;
    for (const char* call :
         {"FT_Init_FreeType", "FT_New_Face", "FT_Set_Pixel_Sizes", "FT_Load_Char",
          "FT_Outline_Embolden", "FT_Render_Glyph", "glActiveTexture", "glGenTextures",
          "glBindTexture", "glTexImage2D", "glPixelStorei", "glTexParameteri", "glTexSubImage2D",
          "glGetIntegerv"}) {
        bool isReached = true;
        for (int nth = 1; isReached; ++nth, ++faults) {
            SCOPED_TRACE(call + std::string(" call ") + std::to_string(nth));
            const int before = harness::CountOf(call);
            harness::FailCall(call, nth);
            for (const int code :
                 {surface->ZoLoadFont(sansPath, 40), Draw(u"AB"), Draw(u"AB", {20, true})}) {
                EXPECT_TRUE(code == ZO_SUCCESS || code == ZO_FREETYPE_FAILED ||
                            code == ZO_FONT_FACE_FAILED || code == ZO_FONT_ATLAS_EMPTY ||
                            code == ZO_FAILURE)
                    << code;
            }
            isReached = harness::CountOf(call) - before >= nth;
            harness::Current().faults.clear();
            while (glGetError() != GL_NO_ERROR) { // of the calls that went without the failed one
            }
            Load();
            Drawn(u"AB");
            EXPECT_TRUE(Shows(u"AB", {}));
            Drawn(u"AB", {20, true});
            EXPECT_TRUE(Shows(u"AB", {20, true}));
            EXPECT_EQ(harness::DescribeLive(), alive);
        }
    }
    EXPECT_GT(faults, 200);
}

TEST_F(FontLoadingGLTest, ASizeThatCannotBeSetIsLoggedAndTheOldOneStays) {
    Load();
    Drawn(u"M", {20});
    harness::FailCall("FT_Set_Pixel_Sizes");
    Drawn(u"M", {60});
    EXPECT_TRUE(Shows(u"M", {20}));
    EXPECT_EQ(harness::TakeLog(), Errors({{"FontStyleAtlas", "set pixel size fail"}}));
    UseFakeFont({{65, 4, 3}});
    harness::FailCall("FT_Set_Pixel_Sizes");
    EXPECT_EQ(surface->ZoLoadFont(sansPath, 40), ZO_SUCCESS);
    EXPECT_EQ(harness::TakeLog()[0], Errors({{"FontAtlas", "set pixel size fail"}})[0]);
}

TEST_F(FontLoadingGLTest, FirstUseSetsTextUpOrSaysWhyItCannot) {
    EXPECT_EQ(surface->Init(0xFE), ZO_SUCCESS);
    EXPECT_FALSE(surface->fontAtlas || surface->fontStyleAtlas || surface->osdText);
    harness::TakeLog();
    const tagZoTextInfo info = Request(u"A");
    unsigned int size[] = {1, 2};
    const std::function<int()> entries[] = {
        [&] { return surface->Init(ZO_COMPONENT_TEXT); },
        [&] { return surface->ZoGetTextSize(&info, &size[0], &size[1]); },
        [&] { return Draw(u"A"); },
    };
    harness::Current().fontFile = missingPath;
    for (const auto& entry : entries) {
        EXPECT_EQ(entry(), ZO_FONT_FACE_FAILED);
        EXPECT_EQ(harness::TakeLog(), Errors({{"FontAtlas", "Error loading font face"},
                                              {own, "Load standard font lib fail 31\n"},
                                              {own, "Load font fail 31\n"}}));
        EXPECT_FALSE(surface->osdText || surface->fontLoaded);
        EXPECT_TRUE(surface->fontAtlas && surface->fontStyleAtlas);
    }
    EXPECT_TRUE(size[0] == 1 && size[1] == 2);
    harness::Current().fontFile = monoPath;
    UseFirst(100);
    harness::FailCall("glCreateProgram");
    const auto calls = harness::Record([&] { EXPECT_EQ(Draw(u"A"), ZO_PROGRAM_FAILED); });
    const auto opening = harness::Call("FT_New_Face", &size, "/system/fonts/CC3.ttf", 0, &size);
    EXPECT_EQ(std::count(calls.begin(), calls.end(), opening), 2);
    Log log = harness::TakeLog();
    log.erase(log.begin()); // the atlas's size
    EXPECT_EQ(log, Errors({{"ShaderProgram", "create program fail\n"},
                           {"OSDText", "create shader program fail"},
                           {own, "OSD text init fail 20\n"}}));
    EXPECT_TRUE(!surface->osdText && surface->fontLoaded);
    Drawn(u"A");
    EXPECT_TRUE(Shows(u"A", {}, monoPath));
    EXPECT_EQ(harness::TakeLog(), Log());
}

TEST_F(FontLoadingGLTest, AtlasesAreSharedReloadedInPlaceAndDroppedWithTheWindow) {
    UseFirst(200);
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

TEST_F(FontLoadingGLTest, BadRequestsAreRefusedAndChangeNothing) {
    const tagZoTextInfo good = Request(u"A");
    tagZoTextInfo noText = good;
    noText.text = nullptr;
    const tagZoRectInfo rect = {0, 0, 0, 0};
    const unsigned int target = ZO_WINDOW_HANDLE;
    unsigned int size = 7;
    const char* null = "param is nullptr\n";
    ZoGLDrawSurface& s = *surface;
    const struct {
        const char* name;
        const char* line;
        std::function<int()> action;
    } cases[] = {
        {"no path", "font lib path is nullptr\n", [&] { return s.ZoLoadFont(nullptr, 40); }},
        {"draw nothing", null, [&] { return s.ZoDrawText(target, nullptr, &rect); }},
        {"draw nowhere", null, [&] { return s.ZoDrawText(target, &good, nullptr); }},
        {"draw no text", null, [&] { return s.ZoDrawText(target, &noText, &rect); }},
        {"measure nothing", null, [&] { return s.ZoGetTextSize(nullptr, &size, &size); }},
        {"measure no text", null, [&] { return s.ZoGetTextSize(&noText, &size, &size); }},
        {"no width", null, [&] { return s.ZoGetTextSize(&good, nullptr, &size); }},
        {"no height", null, [&] { return s.ZoGetTextSize(&good, &size, nullptr); }},
        {"no target", "There is not the fbo\n", [&] { return s.ZoDrawText(9, &good, &rect); }},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(c.action(), ZO_INVALID_PARAM);
        EXPECT_EQ(harness::TakeLog(), Errors({{own, c.line}}));
    }
    EXPECT_FALSE(s.fontAtlas || s.fontStyleAtlas || s.osdText);

    UseFakeFont({{65, 4, 3}});
    Load();
    s.Init(ZO_COMPONENT_TEXT);
    for (const int nth : {1, 2, 3, 4}) {
        harness::FailCall("memset_s", nth == 4 ? 1 : nth);
        EXPECT_EQ(nth == 4 ? s.ZoGetTextSize(&good, &size, &size) : Draw(u"A"), ZO_FAILURE);
        EXPECT_EQ(harness::TakeLog(), Errors({{own, "memset_s_func failed, rc = 34"}}));
    }
    for (int* side : {&s.fboManager->slots[0].width, &s.fboManager->slots[0].height}) {
        const int before = std::exchange(*side, 0);
        const auto calls = harness::Record(
            [&] { EXPECT_EQ(s.ZoDrawText(target, &good, &rect), ZO_INVALID_PARAM); });
        EXPECT_EQ(calls.size(), 3u) << "of zeroing records, none of GL";
        EXPECT_EQ(harness::TakeLog(), Errors({{"OSDText", "Param is invalid\n"},
                                              {"OSDText", "get font alpha texture fail 101\n"}}));
        *side = before;
    }
    EXPECT_EQ(size, 7u);
    EXPECT_EQ(harness::CountOf("glDrawArrays"), 0);
}

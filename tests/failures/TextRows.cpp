// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Fonts, their atlases, and text that cannot be shown.

#include "FailureRows.h"

namespace {

constexpr char noLibrary[] = "Failed to initialize freetype library";
constexpr char noFace[] = "Error loading font face";
constexpr char noMemory[] = "out of memory\n";
constexpr char noTexture[] = "Create texture fail\n";
constexpr char emptyAtlas[] = "Calculate texture width 0d, height 0d\n";
const harness::LogLine generated =
    Line("FontAtlas", "Generated a 10 x 3 (0 kb) texture atlas\n", 5);
const harness::LogLine generatedOne =
    Line("FontAtlas", "Generated a 5 x 3 (0 kb) texture atlas\n", 5);

harness::LogLine Standard(const char* text) {
    return Line("FontAtlas", text);
}

harness::LogLine Styled(const char* text) {
    return Line("FontStyleAtlas", text);
}

Step Show(const std::vector<FakeGlyph>& glyphs) {
    return [=](C&) { UseFakeFont(glyphs); };
}

// Why a font yields no standard atlas.
const struct {
    std::string condition;
    Step fault;
    int code;
    const char* line;
} atlasFaults[] = {
    {"no_library", Fail("FT_Init_FreeType"), ZO_FREETYPE_FAILED, noLibrary},
    {"face_refused", Fail("FT_New_Face"), ZO_FONT_FACE_FAILED, noFace},
    {"no_rows", Show({{32, 0, 0, 0, 0, 12}, {33, 5, 0}}), ZO_FONT_ATLAS_EMPTY,
     "Calculate texture width 7d, height 0d\n"},
    {"no_character", Show({}), ZO_FONT_ATLAS_EMPTY, emptyAtlas},
    {"no_texture", Fail("glGenTextures"), ZO_FAILURE, noTexture},
    {"no_memory_for_glyphs", RefuseAllocation(1), ZO_FAILURE, noMemory},
};

// Drawing goes on with the atlases that exist and never passes FreeType a null face.
Step ExpectDraws(int styledCode) {
    return [=](C& c) {
        c.Restore();
        EXPECT_EQ(c.DrawText(), ZO_SUCCESS);
        c.text.fontSize = 41;
        EXPECT_EQ(c.DrawText(), styledCode);
    };
}

Rows LoadingRows() {
    const Operation load = &C::LoadFont;
    Rows rows = {
        Row("load_null_path", &C::Bound, Without("path"), load, ZO_INVALID_PARAM,
            {SurfaceLine("font lib path is nullptr\n")}),
        Row("load_size_not_set", &C::WithFont, Fail("FT_Set_Pixel_Sizes"), load, ZO_SUCCESS,
            {Standard("set pixel size fail"), generated}),
    };
    // The standard atlas has the new font, the styled one no font.
    for (const auto& [call, code, line] :
         {std::tuple("FT_Init_FreeType", ZO_FREETYPE_FAILED, noLibrary),
          std::tuple("FT_New_Face", ZO_FONT_FACE_FAILED, noFace)}) {
        const std::string own = "Load dynamic font lib fail " + std::to_string(code) + "\n";
        rows.push_back(Row(std::string("load_styled_") + call + "_fails", &C::WithFont,
                           And(Show({{65, 4, 3}}), Fail(call, 2)), load, code,
                           {generatedOne, Styled(line), SurfaceLine(own)},
                           "+standard:1 -face -standard:2 ", ExpectDraws(ZO_FONT_ATLAS_EMPTY)));
    }
    for (const auto& [condition, fault, code, line] : atlasFaults) {
        const std::string own = "Load standard font lib fail " + std::to_string(code) + "\n";
        rows.push_back(Row("load_" + condition, &C::WithFont, fault, load, code,
                           {Standard(line), SurfaceLine(own)}, "+standard:empty -standard:2 ",
                           ExpectDraws(ZO_SUCCESS)));
    }
    return rows;
}

void ExpectDefaultFont(C& c) {
    for (const std::string& call : c.calls) {
        EXPECT_EQ(call.find("FT_New_Face") == 0, call.find("/system/fonts/CC3.ttf") < call.size());
    }
}

// The first use of text before the client has loaded a font.
Rows FirstUseRows() {
    const struct {
        std::string condition;
        Step fault;
        int code;
        Log log;
        const char* change;
    } faults[] = {
        {"_default_font_refused", Fail("FT_New_Face"), ZO_FONT_FACE_FAILED,
         Log{Standard(noFace), SurfaceLine("Load standard font lib fail 31\n"),
             SurfaceLine("Load font fail 31\n")},
         "+standard:empty +styled:empty "},
        {"_default_font_styled_face_refused", Fail("FT_New_Face", 2), ZO_FONT_FACE_FAILED,
         Log{generated, Styled(noFace), SurfaceLine("Load dynamic font lib fail 31\n"),
             SurfaceLine("Load font fail 31\n")},
         "+standard:2 +styled:empty "},
        {"_default_font_loaded_but_no_program", Fail("glCreateProgram"), ZO_PROGRAM_FAILED,
         Log{generated, Line("ShaderProgram", "create program fail\n"),
             Line("OSDText", "create shader program fail"), SurfaceLine("OSD text init fail 20\n")},
         "+face +font +standard:2 +styled:empty "},
    };
    const std::pair<std::string, Operation> entries[] = {
        {"init", &C::InitAll}, {"measure", &C::Measure}, {"text", &C::DrawText}};
    Rows rows;
    for (const auto& [name, run] : entries) {
        for (const auto& [condition, fault, code, log, change] : faults) {
            rows.push_back(
                Row(name + condition, &C::Bound, fault, run, code, log, change, ExpectDefaultFont));
        }
    }
    return rows;
}

// Both atlases hold the text.
void DrawBothStyles(C& c) {
    c.WithFont();
    EXPECT_EQ(c.DrawText(), ZO_SUCCESS);
    c.text.fontSize = 41;
    EXPECT_EQ(c.DrawText(), ZO_SUCCESS);
    c.text.fontSize = 40;
}

Step SetText(const char16_t* units, unsigned int length, unsigned int size = 41) {
    return [=](C& c) {
        c.text.text = units;
        c.text.length = length;
        c.text.fontSize = size;
    };
}

Rows RequestRows() {
    const Operation draw = &C::DrawText;
    const Step styled = SetText(u"AB", 2);
    const Step boldOutline = [](C& c) {
        UseCharacters({'A'});
        c.text.length = 1;
        c.text.bold = 1;
    };
    Rows rows = {
        Row("styled_size_not_set", DrawBothStyles, And(styled, Fail("FT_Set_Pixel_Sizes")), draw,
            ZO_SUCCESS, {Styled("set pixel size fail")}),
        Row("bold_outline_not_emboldened", DrawBothStyles,
            And(And(Fail("FT_Outline_Embolden", 1), Fail("FT_Outline_Embolden", 2)), boldOutline),
            draw, ZO_SUCCESS, {}, "+styled:1 -styled:2 "),
    };
    const std::tuple<const char*, Step, int, const char*> faults[] = {
        {"styled_no_memory_for_glyphs", And(styled, RefuseAllocation(1)), ZO_FAILURE, noMemory},
        {"styled_no_texture", And(styled, Fail("glGenTextures")), ZO_FAILURE, noTexture},
        {"styled_no_rows", And(styled, Show({{65, 5, 0}, {66, 5, 0}})), ZO_FONT_ATLAS_EMPTY,
         "Calculate texture width 12d, height 0d\n"},
        {"bold_not_loaded", And(boldOutline, Fail("FT_Load_Char")), ZO_FONT_ATLAS_EMPTY,
         emptyAtlas},
        {"styled_zero_unit_first", SetText(u"\0AB", 3), ZO_FONT_ATLAS_EMPTY, emptyAtlas},
        {"styled_no_unit", SetText(u"AB", 0), ZO_FONT_ATLAS_EMPTY, emptyAtlas},
        {"styled_no_unit_and_null", SetText(nullptr, 0), ZO_FONT_ATLAS_EMPTY, emptyAtlas},
    };
    for (const auto& [name, fault, code, line] : faults) {
        const std::string number = std::to_string(code);
        rows.push_back(Row(name, DrawBothStyles, fault, draw, code,
                           {Styled(line), Line("OSDText", "Get font atlas texture fail " + number),
                            Line("OSDText", "get font alpha texture fail " + number + "\n")},
                           "+styled:empty -styled:2 "));
    }
    return rows;
}

} // namespace

Rows TextRows() {
    return LoadingRows() + FirstUseRows() + RequestRows();
}

// What became of a font: its name, its atlas, and the characters that found no room there.

#include "text/FontAtlas.h"
#include "text/FontFace.h"

#include <emscripten/bind.h>
#include <string>
#include <vector>

namespace {

constexpr char tag[] = "FontReport";

struct FontReport {
    std::string family;
    std::string style;
    unsigned int mapped = 0;      ///< characters that the font maps
    unsigned int blank = 0;       ///< of these, how many leave no mark
    unsigned int atlasWidth = 0;  ///< texels
    unsigned int atlasHeight = 0; ///< texels
    /// The codes of characters that are not in the atlas.
    emscripten::val leftOut = emscripten::val::array();
};

// Names are for people to read; a font need not have any.
std::string NameOf(const FT_String* name) {
    return name == nullptr ? "" : name;
}

void CountCharacters(FT_Face face, const GlyphMap& glyphs, FontReport& report) {
    std::vector<unsigned int> leftOut;
    FT_UInt index = 0;
    for (FT_ULong code = FT_Get_First_Char(face, &index); index != 0;
         code = FT_Get_Next_Char(face, code, &index)) {
        ++report.mapped;
        const auto glyph = glyphs.find(code);
        if (glyph == glyphs.end()) {
            leftOut.push_back(static_cast<unsigned int>(code));
        } else if (glyph->second.bitmapWidth == 0 || glyph->second.bitmapHeight == 0) {
            ++report.blank;
        }
    }
    report.leftOut = emscripten::val::array(leftOut.begin(), leftOut.end());
}

// The surface's own atlas is nobody else's to see, so another one is built the same way, and dropped.
// Logs what the load logs, once more.
FontReport DescribeFont(const std::string& path, unsigned int size) {
    FontReport report;
    FT_Library library = nullptr;
    FT_Face face = nullptr;
    FontAtlas atlas;
    if (OpenFace(tag, path.c_str(), library, face) == ZO_SUCCESS &&
        atlas.LoadFont(face, size) == ZO_SUCCESS) {
        report.family = NameOf(face->family_name);
        report.style = NameOf(face->style_name);
        report.atlasWidth = atlas.GetFontTextureWidth();
        report.atlasHeight = atlas.GetFontTextureHeight();
        CountCharacters(face, atlas.GetGlyphs(), report);
    }
    CloseFace(library, face);
    return report;
}

} // namespace

EMSCRIPTEN_BINDINGS(fonts) {
    emscripten::value_object<FontReport>("FontReport")
        .field("family", &FontReport::family)
        .field("style", &FontReport::style)
        .field("mapped", &FontReport::mapped)
        .field("blank", &FontReport::blank)
        .field("atlasWidth", &FontReport::atlasWidth)
        .field("atlasHeight", &FontReport::atlasHeight)
        .field("leftOut", &FontReport::leftOut);
    emscripten::function("DescribeFont", &DescribeFont);
}

// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Describes a loaded font: its name, its atlas, and the characters that did not fit.

#include "text/FontAtlas.h"
#include "text/FontFace.h"

#include <emscripten/bind.h>
#include <string>
#include <vector>

namespace {

constexpr char tag[] = "FontReport";

// The name is null for a font without a name.
std::string NameOf(const FT_String* name) {
    return name == nullptr ? "" : name;
}

void CountCharacters(FT_Face face, const GlyphMap& glyphs, emscripten::val& report) {
    unsigned int mapped = 0;
    unsigned int blank = 0;
    std::vector<unsigned int> leftOut;
    FT_UInt index = 0;
    for (FT_ULong code = FT_Get_First_Char(face, &index); index != 0;
         code = FT_Get_Next_Char(face, code, &index)) {
        ++mapped;
        const auto glyph = glyphs.find(code);
        if (glyph == glyphs.end()) {
            leftOut.push_back(static_cast<unsigned int>(code));
        } else if (glyph->second.bitmapWidth == 0 || glyph->second.bitmapHeight == 0) {
            ++blank;
        }
    }
    report.set("mapped", mapped);
    report.set("blank", blank);
    report.set("leftOut", emscripten::val::array(leftOut.begin(), leftOut.end()));
}

// Builds a second atlas in the same way, because the surface does not give access to its own.
// Therefore the messages of loading are logged twice.
emscripten::val DescribeFont(const std::string& path, unsigned int size) {
    emscripten::val report = emscripten::val::object();
    FT_Library library = nullptr;
    FT_Face face = nullptr;
    FontAtlas atlas;
    if (OpenFace(tag, path.c_str(), library, face) == ZO_SUCCESS &&
        atlas.LoadFont(face, size) == ZO_SUCCESS) {
        report.set("name", NameOf(face->family_name) + " " + NameOf(face->style_name));
        report.set("atlasWidth", atlas.GetFontTextureWidth());
        report.set("atlasHeight", atlas.GetFontTextureHeight());
        CountCharacters(face, atlas.GetGlyphs(), report);
    }
    CloseFace(library, face);
    return report;
}

} // namespace

EMSCRIPTEN_BINDINGS(fonts) {
    emscripten::function("DescribeFont", &DescribeFont);
}

// The text renderer's set-up and the measuring of text.

#include "text/OSDText.h"

#include "gl/RendererObjects.h"
#include "text/GlyphRules.h"

namespace {

constexpr unsigned int absentUnitWidth = 30;
constexpr unsigned int lineHeight = 50;

constexpr char vertexSource[] = "attribute vec4 coord;\n"
                                "varying vec2 texpos;\n"
                                "void main() {\n"
                                "    gl_Position = vec4(coord.xy, 0, 1);\n"
                                "    texpos = coord.zw;\n"
                                "}\n";
constexpr char fragmentSource[] =
    "precision mediump float;\n"
    "varying vec2 texpos;\n"
    "uniform sampler2D tex;\n"
    "uniform vec4 color;\n"
    "void main() {\n"
    "    gl_FragColor = vec4(1, 1, 1, texture2D(tex, texpos).a) * color;\n"
    "}\n";

} // namespace

OSDText::OSDText(std::shared_ptr<FontAtlas> standardAtlas,
                 std::shared_ptr<FontStyleAtlas> styledAtlas)
    : fontAtlas(std::move(standardAtlas)), fontStyleAtlas(std::move(styledAtlas)), program(0),
      vertexBuffer(0), fontTexture(0), fontTexWidth(0), fontTexHeight(0), texLocation(0),
      coordLocation(0), colorLocation(0), scaleX(0.0f), scaleY(0.0f) {}

// The members follow in reverse order: map, helper, styled atlas, standard atlas.
OSDText::~OSDText() {
    ReleaseObjects(shaderProgram, program, vertexBuffer);
}

int OSDText::Init() {
    ReleaseObjects(shaderProgram, program, vertexBuffer);
    const int code = BuildProgram(textTag, vertexSource, fragmentSource, shaderProgram, program);
    if (code != ZO_SUCCESS) {
        return code;
    }
    coordLocation = shaderProgram->GetAttribLocation(program, "coord");
    texLocation = shaderProgram->GetUniformLocation(program, "tex");
    colorLocation = shaderProgram->GetUniformLocation(program, "color");
    glGenBuffers(1, &vertexBuffer);
    return ZO_SUCCESS;
}

bool OSDText::IsDrawStandardFont(const tagTextInfo* info) const {
    return info->fontSize == standardFontSize && info->bold == 0 && info->italic == 0;
}

bool OSDText::FindCharFromMap(char16_t unit) const {
    return FindShown(fontAtlas->GetGlyphs().ReadUnits(), unit) != nullptr;
}

void OSDText::GetTextSize(const tagTextInfo* info, unsigned int* width,
                          unsigned int* height) const {
    const GlyphMap::UnitReader standard = fontAtlas->GetGlyphs().ReadUnits();
    unsigned int total = 0;
    for (unsigned int i = 0; i < info->length; ++i) {
        const tagGlyphInfo* glyph = FindShown(standard, info->text[i]);
        if (glyph == nullptr) {
            LogAbsent(info->text[i]);
            total += absentUnitWidth;
            continue;
        }
        const float unitWidth = IsOverhanging(*glyph) ? glyph->bitmapWidth : glyph->advanceX;
        total = TruncateToUnsigned(static_cast<float>(total) + unitWidth);
    }
    *width = total;
    *height = lineHeight;
}

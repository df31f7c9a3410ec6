// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "text/OSDText.h"

#include "gl/RenderTarget.h"
#include "gl/RendererObjects.h"
#include "platform/Log.h"
#include "text/GlyphTexture.h"
#include "text/Pen.h"

#include <algorithm>
#include <cstdint>
#include <new>

namespace {

constexpr char tag[] = "OSDText";
constexpr unsigned int standardFontSize = 40;
constexpr unsigned int absentUnitWidth = 30;
constexpr unsigned int lineHeight = 50;

// Texts of up to this many units draw without an allocation; their vertices take 6 KiB of stack.
constexpr unsigned int unitsOnStack = 64;

constexpr char fragmentSource[] =
    "precision mediump float;\n"
    "varying vec2 texpos;\n"
    "uniform sampler2D tex;\n"
    "uniform vec4 color;\n"
    "void main() {\n"
    "    gl_FragColor = vec4(1, 1, 1, texture2D(tex, texpos).a) * color;\n"
    "}\n";

void LogAbsent(char16_t unit) {
    __android_log_print(LogError, tag, "Char %lu is not exit\n", static_cast<unsigned long>(unit));
}

// Truncates toward zero. Values beyond 32 bits wrap, as unsigned sums do.
unsigned int TruncateToUnsigned(float value) {
    return static_cast<unsigned int>(static_cast<std::int64_t>(value));
}

// Draws the units that the font can show, and logs the others.
// @param find returns the glyph to draw for a unit
// @return where the vertices end
template <typename Find>
Vertex* DrawUnits(const char16_t* text, unsigned int length, const GlyphMap::Units& standard,
                  Pen pen, Find find) {
    const char16_t* const end = text + length;
    while ((text = pen.DrawRun(text, end, standard, find)) != end) {
        LogAbsent(*text++);
    }
    return pen.Vertices();
}

} // namespace

OSDText::OSDText(std::shared_ptr<FontAtlas> standard, std::shared_ptr<FontStyleAtlas> styled)
    : fontAtlas(std::move(standard)), fontStyleAtlas(std::move(styled)), program(0),
      vertexBuffer(0), fontTexture(0), fontTexWidth(0), fontTexHeight(0), texLocation(0),
      coordLocation(0), colorLocation(0), scaleX(0.0f), scaleY(0.0f) {}

// Members are destroyed in reverse order: map, helper, styled atlas, standard atlas.
OSDText::~OSDText() {
    ReleaseRenderer({shaderProgram, program, vertexBuffer});
}

int OSDText::Init() {
    return BuildRenderer({tag, texturedVertexSource, fragmentSource},
                         {shaderProgram, program, vertexBuffer}, {"coord", coordLocation},
                         {{"tex", texLocation}, {"color", colorLocation}});
}

bool OSDText::IsDrawStandardFont(const tagTextInfo* info) const {
    return info->fontSize == standardFontSize && info->bold == 0 && info->italic == 0;
}

bool OSDText::FindCharFromMap(char16_t unit) const {
    return IsShown(fontAtlas->GetGlyphs().ReadUnits()[unit]);
}

void OSDText::GetTextSize(const tagTextInfo* info, unsigned int* width,
                          unsigned int* height) const {
    const GlyphMap::Units standard = fontAtlas->GetGlyphs().ReadUnits();
    const GlyphMap::Units units = standard; // the compiler keeps this copy in registers
    const char16_t* const end = info->text + info->length;
    unsigned int total = 0;
    for (const char16_t* unit = info->text; unit != end; ++unit) {
        const tagGlyphInfo& glyph = units[*unit];
        if (!IsShown(glyph)) {
            LogAbsent(*unit);
            total += absentUnitWidth;
            continue;
        }
        const float unitWidth = IsOverhanging(glyph) ? glyph.bitmapWidth : glyph.advanceX;
        total = TruncateToUnsigned(static_cast<float>(total) + unitWidth);
    }
    *width = total;
    *height = lineHeight;
}

int OSDText::GetFontTex(const tagFrameBuffObject* fbo, const tagTextInfo* info) {
    if (fbo->width == 0 || fbo->height == 0) {
        __android_log_print(LogError, tag, "Param is invalid\n");
        return ZO_INVALID_PARAM;
    }
    if (IsDrawStandardFont(info)) {
        fontTexture = fontAtlas->GetFontTexture();
        fontTexWidth = fontAtlas->GetFontTextureWidth();
        fontTexHeight = fontAtlas->GetFontTextureHeight();
        glyphs = fontAtlas->GetGlyphs();
    } else {
        const int code = fontStyleAtlas->GetFontTexture(info, &fontTexture);
        if (code != ZO_SUCCESS) {
            __android_log_print(LogError, tag, "Get font atlas texture fail %d", code);
            return code;
        }
        fontTexWidth = fontStyleAtlas->GetFontTextureWidth();
        fontTexHeight = fontStyleAtlas->GetFontTextureHeight();
        glyphs = fontStyleAtlas->GetGlyphs();
    }
    scaleX = 2.0f / static_cast<float>(fbo->width);
    scaleY = 2.0f / static_cast<float>(fbo->height);
    return ZO_SUCCESS;
}

int OSDText::DrawText(const tagFrameBuffObject* fbo, const tagTextInfo* info, float x, float y) {
    int code = GetFontTex(fbo, info);
    if (code != ZO_SUCCESS) {
        __android_log_print(LogError, tag, "get font alpha texture fail %d\n", code);
        return code;
    }
    const GLenum unit = IsDrawStandardFont(info) ? standardAtlas.unit : styledAtlas.unit;
    BindTarget(fbo->framebuffer, fbo->width, fbo->height);
    glUseProgram(program);
    EnableBlending();
    glUniform4fv(colorLocation, 1, &info->color.r);
    glActiveTexture(unit);
    glBindTexture(GL_TEXTURE_2D, fontTexture);
    glUniform1i(texLocation, static_cast<GLint>(unit - GL_TEXTURE0));
    BindVertices(coordLocation, vertexBuffer);
    code = TryGLDrawText(info->text, info->length, x, y);
    UnbindVertices(coordLocation);
    glDisable(GL_BLEND);
    glBindTexture(GL_TEXTURE_2D, 0);
    UnbindTarget();
    return code;
}

void OSDText::RenderText(const char16_t* text, unsigned int length, float x, float y) {
    BindVertices(coordLocation, vertexBuffer);
    TryGLDrawText(text, length, x, y);
    UnbindVertices(coordLocation);
}

int OSDText::TryGLDrawText(const char16_t* text, unsigned int length, float x, float y) {
    try {
        GLDrawText(text, length, x, y);
        return ZO_SUCCESS;
    } catch (const std::bad_alloc&) {
        LogOutOfMemory(tag);
        return ZO_FAILURE;
    }
}

void OSDText::GLDrawText(const char16_t* text, unsigned int length, float x, float y) {
    const std::uint64_t vertexCount = std::uint64_t{length} * Pen::verticesPerGlyph;
    Vertex onStack[unitsOnStack * Pen::verticesPerGlyph];
    std::unique_ptr<Vertex[]> onHeap;
    if (vertexCount > SIZE_MAX / sizeof(Vertex)) {
        throw std::bad_alloc();
    }
    if (length > unitsOnStack) {
        onHeap.reset(new Vertex[static_cast<size_t>(vertexCount)]);
    }
    Vertex* const vertices = onHeap ? onHeap.get() : onStack;

    const GlyphMap& standardGlyphs = fontAtlas->GetGlyphs();
    const GlyphMap::Units standard = standardGlyphs.ReadUnits();
    const Pen pen(vertices, x, y, scaleX, scaleY, static_cast<float>(fontTexWidth),
                  static_cast<float>(fontTexHeight));
    const auto drawStandard = [](char16_t, const tagGlyphInfo& glyph) -> const tagGlyphInfo& {
        return glyph;
    };
    const auto drawStyled = [this](char16_t unit, const tagGlyphInfo&) -> const tagGlyphInfo& {
        const tagGlyphInfo& glyph = glyphs.ReadUnits()[unit];
        return IsShown(glyph) ? glyph : glyphs[unit]; // inserts a missing unit
    };
    Vertex* const unused = glyphs.SharesTableWith(standardGlyphs)
                               ? DrawUnits(text, length, standard, pen, drawStandard)
                               : DrawUnits(text, length, standard, pen, drawStyled);
    // The upload covers every unit, so clear the rest: no stack bytes may reach the driver.
    std::fill(unused, vertices + vertexCount, Vertex());
    LoadVertices(vertices, static_cast<size_t>(vertexCount));
    glDrawArrays(GL_TRIANGLES, 0, static_cast<GLsizei>(unused - vertices));
}

// Drawing with the text renderer: one upload and one draw call for a text.

#include "gl/RenderTarget.h"
#include "surface/Results.h"
#include "text/GlyphRules.h"
#include "text/GlyphTexture.h"
#include "text/OSDText.h"

#include <algorithm>
#include <cstdint>
#include <new>

namespace {

constexpr size_t verticesPerUnit = 6;

// Texts of up to this many units draw without an allocation; their vertices take 6 KiB of stack.
constexpr unsigned int unitsOnStack = 64;

// Counts in 64 bits: where sizes have 32, the product can be past them.
std::unique_ptr<Vertex[]> AllocateVertices(unsigned int units) {
    const std::uint64_t count = std::uint64_t{units} * verticesPerUnit;
    if (count > SIZE_MAX / sizeof(Vertex)) {
        throw std::bad_alloc();
    }
    return std::unique_ptr<Vertex[]>(new Vertex[static_cast<size_t>(count)]);
}

void WriteGlyphQuad(float left, float right, float top, float bottom, const tagGlyphInfo& glyph,
                    float s1, float t1, Vertex* quad) {
    const float s0 = glyph.texX;
    const float t0 = glyph.texY;
    quad[0] = {left, top, s0, t0};
    quad[1] = {right, top, s1, t0};
    quad[2] = {left, bottom, s0, t1};
    quad[3] = {right, top, s1, t0};
    quad[4] = {left, bottom, s0, t1};
    quad[5] = {right, bottom, s1, t1};
}

} // namespace

int OSDText::GetFontTex(const tagFrameBuffObject* fbo, const tagTextInfo* info) {
    if (fbo->width == 0 || fbo->height == 0) {
        __android_log_print(LogError, textTag, "Param is invalid\n");
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
            __android_log_print(LogError, textTag, "Get font atlas texture fail %d", code);
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
        __android_log_print(LogError, textTag, "get font alpha texture fail %d\n", code);
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
        return RefuseMemory(textTag);
    }
}

void OSDText::GLDrawText(const char16_t* text, unsigned int length, float x, float y) {
    if (length <= unitsOnStack) {
        Vertex scratch[unitsOnStack * verticesPerUnit];
        UploadAndDraw(text, length, x, y, scratch);
    } else {
        const std::unique_ptr<Vertex[]> scratch = AllocateVertices(length);
        UploadAndDraw(text, length, x, y, scratch.get());
    }
}

// The upload covers every unit, so the room of those that were skipped is cleared: nothing of our
// stack may reach the driver.
void OSDText::UploadAndDraw(const char16_t* text, unsigned int length, float x, float y,
                            Vertex* scratch) {
    const size_t room = length * verticesPerUnit;
    const size_t count = PlaceGlyphs(text, length, x, y, scratch);
    std::fill(scratch + count, scratch + room, Vertex());
    LoadVertices(scratch, room);
    glDrawArrays(GL_TRIANGLES, 0, static_cast<GLsizei>(count));
}

size_t OSDText::PlaceGlyphs(const char16_t* text, unsigned int length, float x, float y,
                            Vertex* vertices) {
    const GlyphMap::UnitReader standard = fontAtlas->GetGlyphs().ReadUnits();
    const bool isStandard = glyphs.SharesTableWith(fontAtlas->GetGlyphs());
    const float texWidth = static_cast<float>(fontTexWidth);
    const float texHeight = static_cast<float>(fontTexHeight);
    const float pixelX = scaleX;
    const float pixelY = scaleY;
    Vertex* quad = vertices;
    for (unsigned int i = 0; i < length; ++i) {
        const tagGlyphInfo* glyph = FindShown(standard, text[i]);
        if (glyph == nullptr) {
            LogAbsent(text[i]);
            continue;
        }
        if (!isStandard) {
            glyph = glyphs.Lookup(text[i]);
            if (glyph == nullptr) {
                glyph = &glyphs[text[i]];
            }
        }
        const float left = IsOverhanging(*glyph) ? x : x + glyph->bitmapLeft * pixelX;
        const float right = left + glyph->bitmapWidth * pixelX;
        const float top = y + glyph->bitmapTop * pixelY;
        const float bottom = top - glyph->bitmapHeight * pixelY;
        const float s1 = glyph->texX + glyph->bitmapWidth / texWidth;
        const float t1 = glyph->texY + glyph->bitmapHeight / texHeight;
        WriteGlyphQuad(left, right, top, bottom, *glyph, s1, t1, quad);
        quad += verticesPerUnit;
        x += glyph->advanceX * pixelX;
        y += glyph->advanceY * pixelY;
    }
    return static_cast<size_t>(quad - vertices);
}

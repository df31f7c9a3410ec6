// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// Measures and draws text.
#ifndef ZOGLES_TEXT_OSDTEXT_H
#define ZOGLES_TEXT_OSDTEXT_H

#include "gl/FBOManager.h"
#include "gl/ShaderProgram.h"
#include "surface/Records.h"
#include "text/FontAtlas.h"
#include "text/FontStyleAtlas.h"

/// Draws texts, each with one upload and one draw call, and measures them.
///
/// Text of the standard size and style uses the standard atlas, other text the styled one. The
/// standard atlas decides whether a unit can be shown, and measuring uses only the standard atlas.
class ZOGLES_API OSDText {
public:
    /// Shares the atlases with the surface. Makes no GL call.
    OSDText(std::shared_ptr<FontAtlas> standard, std::shared_ptr<FontStyleAtlas> styled);
    ~OSDText();

    OSDText(const OSDText&) = delete;
    OSDText& operator=(const OSDText&) = delete;

    /// Builds the program and the vertex buffer.
    /// @return ZO_SUCCESS or ZO_PROGRAM_FAILED
    int Init();

    /// Whether a request uses the standard atlas: size 40, neither bold nor italic.
    bool IsDrawStandardFont(const tagTextInfo* info) const;

    /// Whether the font has a visible shape for a unit. Changes nothing.
    bool FindCharFromMap(char16_t unit) const;

    /// Measures a text in pixels at the standard atlas's size. The height is always 50.
    void GetTextSize(const tagTextInfo* info, unsigned int* width, unsigned int* height) const;

    /// Selects the atlas for a request, building the styled one if needed, and stores the target's
    /// scale.
    /// @return ZO_SUCCESS, ZO_INVALID_PARAM for a target of size 0, or the styled atlas's code
    int GetFontTex(const tagFrameBuffObject* fbo, const tagTextInfo* info);

    /// Builds the quads of `length` units with the pen starting at (x, y), uploads and draws them.
    /// @param x,y vertex space; y is the baseline
    /// @pre vertices, program, texture, target and blending are set up
    /// @throws std::bad_alloc if there is no memory for the vertices; nothing is drawn
    void GLDrawText(const char16_t* text, unsigned int length, float x, float y);

    /// `GLDrawText` with the vertices bound before and unbound after. Logs exhausted memory.
    void RenderText(const char16_t* text, unsigned int length, float x, float y);

    /// Draws a request into a target with the pen starting at (x, y).
    /// @param x,y vertex space of the target; y is the baseline
    /// @return ZO_SUCCESS, a code of `GetFontTex`, or ZO_FAILURE if there is no memory for the
    ///     vertices: nothing is drawn, and the GL state is the same as after a draw
    int DrawText(const tagFrameBuffObject* fbo, const tagTextInfo* info, float x, float y);

private:
    int TryGLDrawText(const char16_t* text, unsigned int length, float x, float y);

    std::shared_ptr<FontAtlas> fontAtlas;
    std::shared_ptr<FontStyleAtlas> fontStyleAtlas;
    std::unique_ptr<ShaderProgram> shaderProgram;
    GLuint program;
    GLuint vertexBuffer;
    GLuint fontTexture;
    unsigned int fontTexWidth;
    unsigned int fontTexHeight;
    GLint texLocation;
    GLint coordLocation;
    GLint colorLocation;
    float scaleX;
    float scaleY;
    GlyphMap glyphs;
};

#endif

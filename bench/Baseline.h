// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// The baseline that the library is compared with: the same drawing, written by hand in GL.
///
/// The baseline makes the same GL calls with the same data. It computes vertices in every call, since
/// callers have pixels, but checks nothing, clears no records and looks up no targets. Colours,
/// glyph tables and memory for vertices are prepared.
#ifndef ZOGLES_BENCH_BASELINE_H
#define ZOGLES_BENCH_BASELINE_H

#include "Driver.h"
#include "text/FontAtlas.h"

#include <GLES2/gl2.h>
#include <array>
#include <ft2build.h>
#include <vector>
#include FT_FREETYPE_H

/// A GL context must be current during its lifetime.
class Baseline {
public:
    struct Target {
        GLuint texture;
        GLuint framebuffer;
        int width;
        int height;
    };
    using Color = std::array<float, 4>; ///< red, green, blue, alpha
    struct Vertex {
        float x;
        float y;
        float s;
        float t;
    };
    struct Box {
        float left;
        float right;
        float top;
        float bottom;
    };
    struct Quad {
        GLuint program;
        GLint texture;
        GLuint buffer;
    };
    struct Glyph {
        float left;
        float top;
        float width;
        float height;
        float advance;
        Box texture;
    };
    explicit Baseline(size_t longestText);
    ~Baseline();
    Baseline(const Baseline&) = delete;
    Baseline& operator=(const Baseline&) = delete;

    static Target CreateTarget(int width, int height);

    void FillRect(const Target& target, const tagZoRectInfo& rect, const Color& color) const;
    void Blit(const Target& from, const Target& to, const tagZoRectInfo& src,
              const tagZoRectInfo& dst) const;
    void Present(const Target& from, const tagZoRectInfo& src, const tagZoRectInfo& dst) const;
    void ShowBitmap(const tagZoBitmapInfo& bitmap) const;
    void DrawText(const Target& target, const tagZoTextInfo& text, const Color& color,
                  unsigned int x, unsigned int y);

    /// Loads the font with the library's code: only drawing is written by hand.
    void LoadFont(const char* path, unsigned int size);

    /// The FreeType calls of loading a font, and of drawing styled text with the loaded font.
    void RenderFont(const char* path, unsigned int size) const;
    void RenderStyled(const tagZoTextInfo& text) const;

private:
    Target window;
    GLuint rectProgram;
    GLuint textProgram;
    GLint rectColor;
    GLint textColor;
    GLint textTexture;
    GLuint rectBuffer;
    GLuint textBuffer;
    Quad blitQuad; ///< one per operation, as in the library
    Quad frameQuad;
    Quad bitmapQuad;
    std::vector<Vertex> vertices;
    FT_Library freetype = nullptr;
    FT_Face face = nullptr;
    FontAtlas atlas;
    std::vector<Glyph> glyphs; ///< by UTF-16 unit
};

#endif

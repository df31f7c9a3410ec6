/// @file
/// The floor that the library is measured against: the same GL calls written out by hand.
///
/// It computes vertices anew in every call, since pixels are what callers have, and does nothing
/// else: no check, no record, no look-up of a target. Colours are floats already, the glyphs lie in
/// a flat table, and the room for vertices is there beforehand.
#ifndef ZOGLES_BENCH_FLOOR_H
#define ZOGLES_BENCH_FLOOR_H

#include "zogles/ZoGLDrawSurface.h"

#include <GLES2/gl2.h>
#include <ft2build.h>
#include <memory>
#include <vector>
#include FT_FREETYPE_H

/// A GL context must be current while one lives.
class Floor {
public:
    struct Target {
        GLuint texture;
        GLuint framebuffer;
        int width;
        int height;
    };
    struct Color {
        float r;
        float g;
        float b;
        float a;
    };
    struct Style {
        unsigned int size;
        bool isBold;
        bool isItalic;
    };

    Floor(int windowWidth, int windowHeight, size_t longestText);
    ~Floor();
    Floor(const Floor&) = delete;
    Floor& operator=(const Floor&) = delete;

    Target CreateTarget(int width, int height);

    void FillRect(const Target& target, const tagZoRectInfo& rect, const Color& color) const;
    void Blit(const Target& from, const Target& to, const tagZoRectInfo& src,
              const tagZoRectInfo& dst);
    void Present(const Target& from, const tagZoRectInfo& src, const tagZoRectInfo& dst);
    void ShowBitmap(const unsigned char* pixels, int width, int height, const tagZoRectInfo& rect);
    void DrawLine(const Target& target, const char16_t* text, unsigned int length,
                  const Color& color, unsigned int x, unsigned int y);
    void DrawStyled(const Target& target, const char16_t* text, unsigned int length,
                    const Style& style, const Color& color, unsigned int x, unsigned int y);
    void LoadFont(const char* path, unsigned int size);

    /// FreeType's part of the two above, alone.
    void RenderStyled(const char16_t* text, unsigned int length, const Style& style);
    void RenderFont(const char* path, unsigned int size);

private:
    struct Vertex {
        float x;
        float y;
        float s;
        float t;
    };
    struct Glyph {
        float left;
        float top;
        float width;
        float height;
        float advance;
        float s0;
        float t0;
        float s1;
        float t1;
    };
    struct Face {
        FT_Library library = nullptr;
        FT_Face face = nullptr;
    };
    struct Atlas {
        GLuint texture = 0;
        unsigned int width = 0;
        unsigned int height = 0;
        std::vector<Glyph> glyphs; ///< by unit
    };
    struct Quad {
        GLuint program;
        GLint texture;
        GLuint buffer;
    };
    struct Box {
        float left;
        float right;
        float top;
        float bottom;
    };

    static GLuint Program(const char* vertexSource, const char* fragmentSource);
    static Box VertexBox(const tagZoRectInfo& rect, int width, int height);
    static Box TextureBox(const tagZoRectInfo& rect, int width, int height);
    static void SetUp(const Face& font, const Style& style);
    static void OpenFace(const char* path, Face* font);
    static void CloseFace(Face* font);
    void ClearWindow() const;
    static void DrawQuad(const Quad& quad, GLuint texture, const Vertex (&vertices)[4]);
    static Quad MakeQuad();
    template <typename Walk>
    static void BuildAtlas(GLenum unit, Atlas* atlas, Walk walk);
    static void StoreGlyph(FT_GlyphSlot slot, unsigned int x, unsigned int y, char16_t unit,
                           Atlas* atlas);
    void DrawUnits(const Target& target, const Atlas& atlas, GLenum textureUnit,
                   const char16_t* text, unsigned int length, const Color& color, unsigned int x,
                   unsigned int y);

    int windowWidth;
    int windowHeight;
    GLuint rectProgram;
    GLuint textProgram;
    GLint rectColor;
    GLint textColor;
    GLint textTexture;
    GLuint rectBuffer;
    GLuint textBuffer;
    Quad blitQuad; ///< each operation has its own, as the library has
    Quad frameQuad;
    Quad bitmapQuad;
    std::vector<Vertex> vertices;
    Face styledFont;
    Atlas standard;
    Atlas styled;
};

#endif

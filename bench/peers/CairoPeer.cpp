// The frame by Cairo on the processor, with one upload and one quad in plain EGL. Cairo composes
// the bitmap too: it is painted and wiped within the buffer, and needs no upload of its own.

#include "Frame.h"
#include "Support.h"

#include <GLES2/gl2.h>
#include <cairo-ft.h>
#include <cstdint>

namespace {

constexpr char vertexSource[] = "attribute vec2 corner;"
                                "varying vec2 place;"
                                "void main() {"
                                "    place = vec2(corner.x, 1.0 - corner.y);"
                                "    gl_Position = vec4(corner * 2.0 - 1.0, 0.0, 1.0);"
                                "}";
// Cairo's pixels lie in memory as blue, green, red, alpha.
constexpr char fragmentSource[] = "precision mediump float;"
                                  "uniform sampler2D composed;"
                                  "varying vec2 place;"
                                  "void main() {"
                                  "    gl_FragColor = texture2D(composed, place).bgra;"
                                  "}";

void AttachShader(GLuint program, GLenum type, const char* text) {
    const GLuint shader = glCreateShader(type);
    glShaderSource(shader, 1, &text, nullptr);
    glCompileShader(shader);
    glAttachShader(program, shader);
}

// Everything that the quad needs stays bound from frame to frame.
void PrepareQuad() {
    const GLuint program = glCreateProgram();
    AttachShader(program, GL_VERTEX_SHADER, vertexSource);
    AttachShader(program, GL_FRAGMENT_SHADER, fragmentSource);
    glBindAttribLocation(program, 0, "corner");
    glLinkProgram(program);
    GLint isLinked = 0;
    glGetProgramiv(program, GL_LINK_STATUS, &isLinked);
    Require(isLinked == GL_TRUE, "linking the quad's program");
    glUseProgram(program);

    MakeTexture(frameWidth, frameHeight);
    const GLfloat corners[] = {0, 0, 1, 0, 0, 1, 1, 1};
    GLuint buffer = 0;
    glGenBuffers(1, &buffer);
    glBindBuffer(GL_ARRAY_BUFFER, buffer);
    glBufferData(GL_ARRAY_BUFFER, sizeof corners, corners, GL_STATIC_DRAW);
    glEnableVertexAttribArray(0);
    glVertexAttribPointer(0, 2, GL_FLOAT, GL_FALSE, 0, nullptr);
    glEnable(GL_BLEND);
    glBlendFunc(GL_ONE, GL_ONE_MINUS_SRC_ALPHA); // Cairo premultiplies
    glClearColor(0, 0, 0, 0);
}

cairo_font_face_t* OpenFace() {
    FT_Library library = nullptr;
    FT_Face face = nullptr;
    Require(FT_Init_FreeType(&library) == 0 && FT_New_Face(library, fontPath, 0, &face) == 0,
            fontPath);
    return cairo_ft_font_face_create_for_ft_face(face, 0);
}

cairo_surface_t* MakeSurface(int width, int height) {
    return cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height);
}

void PutPixels(cairo_surface_t* surface, const std::vector<unsigned char>& pixels) {
    unsigned char* bytes = cairo_image_surface_get_data(surface);
    for (size_t i = 0; i < pixels.size(); i += 4) {
        const uint32_t value = 0xFF000000U | static_cast<uint32_t>(pixels[i]) << 16 |
                               static_cast<uint32_t>(pixels[i + 1]) << 8 | pixels[i + 2];
        *reinterpret_cast<uint32_t*>(bytes + i) = value;
    }
    cairo_surface_mark_dirty(surface);
}

void SetSource(cairo_t* cairo, const Shade& shade) {
    cairo_set_source_rgb(cairo, shade.r / 255.0, shade.g / 255.0, shade.b / 255.0);
}

void Fill(cairo_t* cairo, const Area& area) {
    cairo_rectangle(cairo, area.x, area.y, area.width, area.height);
    cairo_fill(cairo);
}

void FillTiles(cairo_t* cairo, const std::vector<Tile>& tiles) {
    for (const Tile& tile : tiles) {
        SetSource(cairo, tile.shade);
        Fill(cairo, tile.area);
    }
}

// Cairo's manual keeps cairo_show_text for toys and gives this way for programs.
void ShowLine(cairo_t* cairo, const Line& line) {
    cairo_glyph_t room[64];
    cairo_glyph_t* glyphs = room;
    int count = 64;
    cairo_scaled_font_text_to_glyphs(cairo_get_scaled_font(cairo), line.x, line.baseline,
                                     line.text.data(), static_cast<int>(line.text.size()), &glyphs,
                                     &count, nullptr, nullptr, nullptr);
    SetSource(cairo, line.shade);
    cairo_show_glyphs(cairo, glyphs, count);
}

} // namespace

int main(int argc, char** argv) {
    OpenContext();
    PrepareQuad();
    cairo_surface_t* composed = MakeSurface(frameWidth, frameHeight);
    cairo_surface_t* source = MakeSurface(sourceWidth, sourceHeight);
    cairo_surface_t* bitmap = MakeSurface(bitmapArea.width, bitmapArea.height);
    // GLES 2 uploads rows without gaps only.
    Require(cairo_image_surface_get_stride(composed) == frameWidth * 4, "Cairo's row length");
    PutPixels(bitmap, MakeBitmap());
    cairo_t* sourcePainter = cairo_create(source);
    FillTiles(sourcePainter, MakeSourceTiles());
    cairo_destroy(sourcePainter);

    cairo_t* cairo = cairo_create(composed);
    cairo_set_font_face(cairo, OpenFace());
    cairo_set_font_size(cairo, fontSize);
    const std::vector<Tile> rectangles = MakeRectangles();
    const std::vector<Copy> copies = MakeCopies();
    const std::vector<Line> lines = MakeLines();

    Contestant contestant;
    contestant.draw = [&] {
        cairo_set_operator(cairo, CAIRO_OPERATOR_SOURCE);
        cairo_set_source_surface(cairo, bitmap, bitmapArea.x, bitmapArea.y);
        Fill(cairo, bitmapArea);
        cairo_set_operator(cairo, CAIRO_OPERATOR_CLEAR);
        cairo_paint(cairo);
        cairo_set_operator(cairo, CAIRO_OPERATOR_SOURCE);
        FillTiles(cairo, rectangles);
        for (const Copy& copy : copies) {
            cairo_set_source_surface(cairo, source, copy.dst.x - copy.srcX, copy.dst.y - copy.srcY);
            Fill(cairo, copy.dst);
        }
        cairo_set_operator(cairo, CAIRO_OPERATOR_OVER);
        for (const Line& line : lines) {
            ShowLine(cairo, line);
        }
        cairo_surface_flush(composed);
        glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, frameWidth, frameHeight, GL_RGBA, GL_UNSIGNED_BYTE,
                        cairo_image_surface_get_data(composed));
        glClear(GL_COLOR_BUFFER_BIT);
        glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
    };
    contestant.swap = SwapContext;
    RunContestant(argc, argv, contestant);
}

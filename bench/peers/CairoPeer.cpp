// The frame by Cairo on the processor, with one upload and one quad in plain EGL. Cairo composes
// the bitmap too: it is painted and wiped within the buffer, and needs no separate upload.

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
// In memory, Cairo's pixels are blue, green, red, alpha.
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

    MakeTexture(windowWidth, windowHeight);
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
    Require(FT_Init_FreeType(&library) == 0 && FT_New_Face(library, frameFontPath, 0, &face) == 0,
            frameFontPath);
    return cairo_ft_font_face_create_for_ft_face(face, 0);
}

cairo_surface_t* MakeSurface(unsigned int width, unsigned int height) {
    return cairo_image_surface_create(CAIRO_FORMAT_ARGB32, static_cast<int>(width),
                                      static_cast<int>(height));
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

void SetSource(cairo_t* cairo, const tagZoColorRGBA& color) {
    cairo_set_source_rgb(cairo, color.r / 255.0, color.g / 255.0, color.b / 255.0);
}

void Fill(cairo_t* cairo, const tagZoRectInfo& area) {
    cairo_rectangle(cairo, area.x, area.y, area.width, area.height);
    cairo_fill(cairo);
}

void FillTiles(cairo_t* cairo, const std::vector<Tile>& tiles) {
    for (const Tile& tile : tiles) {
        SetSource(cairo, tile.color);
        Fill(cairo, tile.area);
    }
}

// Cairo's manual keeps cairo_show_text for toys and gives this way for programs.
void ShowLine(cairo_t* cairo, const Line& line) {
    cairo_glyph_t buffer[64];
    cairo_glyph_t* glyphs = buffer;
    int count = 64;
    cairo_scaled_font_text_to_glyphs(cairo_get_scaled_font(cairo), line.x, line.baseline,
                                     line.text.data(), static_cast<int>(line.text.size()), &glyphs,
                                     &count, nullptr, nullptr, nullptr);
    SetSource(cairo, line.color);
    cairo_show_glyphs(cairo, glyphs, count);
}

} // namespace

int main(int argc, char** argv) {
    const Frame frame;
    OpenContext();
    PrepareQuad();
    cairo_surface_t* composed = MakeSurface(windowWidth, windowHeight);
    cairo_surface_t* source = MakeSurface(sourceWidth, sourceHeight);
    cairo_surface_t* bitmap = MakeSurface(bitmapArea.width, bitmapArea.height);
    // GLES 2 uploads rows without gaps only.
    Require(cairo_image_surface_get_stride(composed) == windowWidth * 4, "Cairo's row length");
    PutPixels(bitmap, frame.bitmap);
    cairo_t* sourcePainter = cairo_create(source);
    FillTiles(sourcePainter, frame.sourceTiles);
    cairo_destroy(sourcePainter);

    cairo_t* cairo = cairo_create(composed);
    cairo_set_font_face(cairo, OpenFace());
    cairo_set_font_size(cairo, fontSize);

    Contestant contestant;
    contestant.draw = [&] {
        cairo_set_operator(cairo, CAIRO_OPERATOR_SOURCE);
        cairo_set_source_surface(cairo, bitmap, bitmapArea.x, bitmapArea.y);
        Fill(cairo, bitmapArea);
        cairo_set_operator(cairo, CAIRO_OPERATOR_CLEAR);
        cairo_paint(cairo);
        cairo_set_operator(cairo, CAIRO_OPERATOR_SOURCE);
        FillTiles(cairo, frame.rectangles);
        for (const Copy& copy : frame.copies) {
            cairo_set_source_surface(cairo, source, double(copy.dst.x) - copy.src.x,
                                     double(copy.dst.y) - copy.src.y);
            Fill(cairo, copy.dst);
        }
        cairo_set_operator(cairo, CAIRO_OPERATOR_OVER);
        for (const Line& line : frame.lines) {
            ShowLine(cairo, line);
        }
        cairo_surface_flush(composed);
        glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, windowWidth, windowHeight, GL_RGBA,
                        GL_UNSIGNED_BYTE, cairo_image_surface_get_data(composed));
        glClear(GL_COLOR_BUFFER_BIT);
        glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
    };
    contestant.swap = SwapContext;
    RunContestant(argc, argv, contestant);
}

// The library behind a thin helper that checks every result code and reports what failed.
#ifndef OSD_CANVAS_H
#define OSD_CANVAS_H

#include "Geometry.h"

#include <string>
#include <string_view>

struct TextStyle {
    Color color;
    unsigned int fontSize;
    bool bold;
    bool italic;
};

class Canvas {
public:
    explicit Canvas(ZoGLDrawSurface& surface);

    /// False once any operation has failed.
    bool IsGood() const { return failures == 0; }

    Rect GetWindowRect() const;
    void Bind(ANativeWindow* window);
    void Unbind();
    void LoadFont(const std::string& path, unsigned int pixels);
    void CreateComponents();

    unsigned int CreateBuffer(int width, int height);
    void DestroyBuffer(unsigned int buffer);

    void Fill(unsigned int buffer, const Rect& rect, const Color& color);
    void Copy(unsigned int from, const Rect& source, unsigned int to, const Rect& target);
    void DrawText(unsigned int buffer, std::u16string_view text, const TextStyle& style, int x,
                  int baseline);
    int MeasureText(std::u16string_view text);

    /// Puts a buffer on the whole window.
    void Present(unsigned int buffer, const Rect& source);
    /// Puts `size.width` by `size.height` RGBA pixels on the whole window.
    void PresentPixels(const unsigned char* pixels, const Rect& size);
    void Refresh();

private:
    void Check(int code, const char* operation);

    ZoGLDrawSurface& surface;
    int failures;
};

#endif

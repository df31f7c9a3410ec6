// One picture: a white page with labels, and panels that show pixels which the library made.
#ifndef DOC_PICTURES_FIGURE_H
#define DOC_PICTURES_FIGURE_H

#include "common/Picture.h"
#include "common/XWindow.h"
#include "osd/Canvas.h"
#include "osd/Typesetter.h"

/// How a panel shows its pixels.
enum class View {
    Blended,  ///< over a checkerboard, as an image viewer does: colours are not premultiplied
    Composed, ///< over a checkerboard, as a compositor does: colours are premultiplied
    Colors,   ///< as on an opaque screen: alpha is ignored
    Alpha,    ///< alpha as grey: black is 0, white is 1
};

constexpr Color ink = {38, 44, 56, 255};
constexpr Color faint = {112, 120, 134, 255};

class Figure {
public:
    Figure(int width, int height);

    Canvas& GetCanvas() { return canvas; }
    unsigned int GetPage() const { return page; }
    unsigned int CreateBuffer(int width, int height, const Color& color);
    /// Small text, which may have spaces.
    void DrawLabel(unsigned int buffer, std::u16string_view text, const Color& color, int x,
                   int baseline);
    /// The same on the page, centred on x.
    void Label(std::u16string_view text, int x, int baseline);

    /// A buffer's pixels, from its top-left corner.
    Picture Read(unsigned int buffer, int width, int height);
    /// What the window holds after it was presented that part of a buffer.
    Picture Present(unsigned int buffer, int width, int height);

    /// Puts pixels in a thin frame on the page, each of them zoom by zoom large.
    void Show(const Picture& pixels, View view, int x, int y, int zoom = 1);
    /// Draws on the page and its panels.
    void DashOutline(const Rect& rect, const Color& color);
    void Save(const std::string& path);

private:
    void Cover(const Rect& rect, const Color& color);

    XWindow window;
    ZoGLDrawSurface surface; // destroyed before its window
    Canvas canvas;
    Typesetter typesetter;
    Picture cover;     // what is in front of the page; alpha is 0 where nothing is
    unsigned int page; // a buffer of the picture's size
};

#endif

// One picture: a white page with labels, and panels that show pixels which the library made.
#ifndef DOC_PICTURES_FIGURE_H
#define DOC_PICTURES_FIGURE_H

#include <string>
#include <string_view>
#include <vector>
#include <zogles/ZoGLDrawSurface.h>

using Rect = tagZoRectInfo;
using Color = tagZoColorRGBA;

/// Pixels as they are, alpha included.
struct Pixels {
    unsigned int width;
    unsigned int height;
    std::vector<unsigned char> rgba; ///< rows from the top

    const unsigned char* At(unsigned int x, unsigned int y) const {
        return &rgba[(size_t{y} * width + x) * 4];
    }
};

/// How a panel shows its pixels.
enum class View {
    Blended,  ///< over a checkerboard, as by a viewer of pictures: colours not premultiplied
    Composed, ///< over a checkerboard, as by a compositor: colours premultiplied
    Colors,   ///< as on an opaque screen: alpha is not looked at
    Alpha,    ///< alpha as grey: black is 0, white is 1
    Marks,    ///< over what is there, where not transparent
};

enum class Align { Left, Centre };

constexpr Color ink = {38, 44, 56, 255};
constexpr Color faint = {112, 120, 134, 255};

class Figure {
public:
    Figure(unsigned int width, unsigned int height);
    ~Figure() { surface.ZoDestoryGLWindowSurface(); }

    unsigned int GetPage() const { return page; }
    unsigned int CreateBuffer(unsigned int width, unsigned int height, Color color);
    void Fill(unsigned int buffer, Rect rect, Color color);
    void Blit(unsigned int from, Rect source, unsigned int to, Rect target);
    void DrawText(unsigned int buffer, std::u16string_view text, unsigned int size, Color color,
                  unsigned int x, unsigned int baseline);
    /// Small text, which may have blanks.
    void DrawLabel(unsigned int buffer, std::u16string_view text, Color color, unsigned int x,
                   unsigned int baseline, Align align = Align::Left);
    /// The same on the page, centred on x.
    void Label(std::u16string_view text, unsigned int x, unsigned int baseline);
    /// In front of the panels.
    void DashOutline(Rect rect, Color color);

    /// A buffer's pixels, from its top-left corner.
    Pixels Read(unsigned int buffer, unsigned int width, unsigned int height);
    /// What the window holds after that part of a buffer was presented there.
    Pixels Present(unsigned int buffer, unsigned int width, unsigned int height);

    /// Puts pixels on the page, each of them zoom by zoom large, with a thin frame around.
    void Show(const Pixels& pixels, View view, unsigned int x, unsigned int y,
              unsigned int zoom = 1);
    void Save(const std::string& path);

private:
    struct Panel {
        Pixels pixels;
        View view;
        unsigned int x;
        unsigned int y;
        unsigned int zoom;
    };

    Pixels ReadWindow(unsigned int width, unsigned int height) const;

    ZoGLDrawSurface surface;
    unsigned int width;
    unsigned int height;
    unsigned int page;  // a buffer as large as the picture, behind the panels
    unsigned int marks; // one in front of them, transparent
    std::vector<Panel> panels;
};

#endif

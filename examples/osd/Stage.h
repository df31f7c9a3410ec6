// A buffer several times as large as the picture. Rectangles have hard edges; shapes painted here
// from rows of rectangles get soft ones when the stage is copied down to the picture's size.
#ifndef OSD_STAGE_H
#define OSD_STAGE_H

#include "Canvas.h"

#include <functional>

class Stage {
public:
    /// @param width,height the size of the picture
    Stage(Canvas& canvas, int width, int height);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    /// How many stage pixels one pixel of the picture has along each axis.
    int GetScale() const { return scale; }

    // Rectangles and radii in pixels of the picture.
    void Fill(const Rect& rect, const Color& color);
    void FillRounded(const Rect& rect, int radius, const Color& color);
    /// A disc whose colour changes from its top to its bottom.
    void FillDisc(const Rect& square, const Color& top, const Color& bottom);
    /// Stretches a whole buffer over the stage.
    void Stretch(unsigned int from, const Rect& source);
    /// The same region of a buffer of the picture's size, with round corners.
    void CopyRounded(unsigned int from, const Rect& rect, int radius);

    /// A rectangle in pixels of the stage.
    void FillFine(const Rect& rect, const Color& color);

    /// Copies the top-left part of the stage to the top-left corner of a buffer, at its own size.
    void ReduceTo(unsigned int to, int width, int height);

private:
    void ForEachStrip(const Rect& rect, int radius,
                      const std::function<void(const Rect&)>& draw) const;

    Canvas& canvas;
    int scale;
    Rect whole;
    unsigned int buffer;
    unsigned int half;
};

#endif

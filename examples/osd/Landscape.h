// The stand-in for a television picture: dusk over hills.
//
// On a television the video lies below the display and shows through wherever the display is
// translucent. A window on a desktop has nothing below it, so the demo paints a picture of its own
// into the frame and gives it the alpha that lets the black window below dim it.
#ifndef OSD_LANDSCAPE_H
#define OSD_LANDSCAPE_H

#include "Canvas.h"
#include "Stage.h"

class Landscape {
public:
    explicit Landscape(const Rect& window);

    /// Creates the buffers that painting needs.
    void Create(Canvas& canvas);

    /// Paints the picture on the whole stage.
    /// @param alpha of all its pixels
    void Paint(Canvas& canvas, Stage& stage, int alpha) const;

    /// Fills a buffer of the window's size with the picture as seen through frosted glass.
    /// @param share of the glass's own colour, 0 to 1
    void PaintFrosted(Canvas& canvas, unsigned int buffer, const Color& glass, double share) const;

private:
    Color GetSky(double x, double y) const;
    Color GetColor(double x, double y) const;
    Color GetMeanColor(const Rect& cell, int columns, int rows) const;

    Rect window;
    unsigned int coarse;
};

#endif

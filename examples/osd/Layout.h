// The places of everything in the scene, for a window of any size.
#ifndef OSD_LAYOUT_H
#define OSD_LAYOUT_H

#include "Geometry.h"

struct Layout {
    explicit Layout(const Rect& windowRect);

    /// Pixels of the window for a length of the design, which is drawn for 1280 by 720.
    int Scale(double length) const;

    Rect window;
    double unit;
    int radius;
    int standardText; ///< pixels that the font is loaded at, and the fastest to draw

    Rect banner;
    Rect logo;
    Rect progress;
    int bannerLeft;  ///< where its text starts
    int bannerRight; ///< where its right-aligned text ends
    int bannerLine[3];

    Rect menu;
    Rect list; ///< the rows inside the menu
    int rowHeight;
    int rowCount;
    Rect scrollbar;

    Rect volume;
    Rect volumeIcon;
    Rect volumeBar;

    int subtitleCenter;
    int subtitleLine[2];
};

#endif

// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The layout of the scene, for a window of any size.
#ifndef OSD_LAYOUT_H
#define OSD_LAYOUT_H

#include "Geometry.h"

struct Layout {
    explicit Layout(const Rect& windowRect);

    /// Converts a length of the design, which is for 1280 by 720, to pixels of the window.
    int Scale(double length) const;

    Rect window;
    double unit;
    int radius;
    int standardText; ///< the loaded font size in pixels, which is the fastest to draw

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

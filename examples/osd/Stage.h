// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// A buffer several times as large as the result. Rectangles have hard edges; shapes that are painted
// here from rows of rectangles get soft edges when the stage is copied down to the result's size.
#ifndef OSD_STAGE_H
#define OSD_STAGE_H

#include "Canvas.h"

#include <functional>

class Stage {
public:
    /// @param width,height the size of the result
    Stage(Canvas& canvas, int width, int height);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    // Rectangles and radii are in pixels of the result.
    void FillRounded(const Rect& rect, int radius, const Color& color);
    void Paint(const Picture& picture, const Rect& rect, unsigned char alpha = 255);
    /// Copies this region of a buffer of the result's size, with round corners.
    void CopyRounded(unsigned int from, const Rect& rect, int radius);

    /// Copies the top-left part of the stage to the top-left corner of a buffer, at the result's scale.
    void ReduceTo(unsigned int to, int width, int height);

private:
    void ForEachStrip(const Rect& rect, int radius,
                      const std::function<void(const Rect&)>& draw) const;

    Canvas& canvas;
    int scale; // pixels of the stage per pixel of the result, along each axis
    unsigned int buffer;
    unsigned int half;
};

#endif

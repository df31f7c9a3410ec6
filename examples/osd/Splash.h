// The picture shown first: the logo as a bitmap, with its name below.
#ifndef OSD_SPLASH_H
#define OSD_SPLASH_H

#include "Canvas.h"
#include "Layout.h"
#include "Typesetter.h"

/// Draws the splash on the window; the caller refreshes it.
void DrawSplash(Canvas& canvas, Typesetter& typesetter, const Layout& layout);

#endif

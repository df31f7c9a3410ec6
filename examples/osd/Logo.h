// The logo: one description of its shape, painted in two ways.
#ifndef OSD_LOGO_H
#define OSD_LOGO_H

#include "Stage.h"

#include <vector>

namespace Logo {

/// By rectangles, into a stage.
void Paint(Stage& stage, const Rect& rect);

/// As RGBA pixels over a soft glow, for a window of this size.
std::vector<unsigned char> RenderPixels(const Rect& window, const Rect& rect);

} // namespace Logo

#endif

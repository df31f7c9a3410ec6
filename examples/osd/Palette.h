// The few colours that the whole display is made of.
#ifndef OSD_PALETTE_H
#define OSD_PALETTE_H

#include "Geometry.h"

namespace Palette {

constexpr Color ink{12, 16, 34};          // outlines, and text on the accent
constexpr Color glass{14, 19, 42};        // what tints the panels
constexpr Color well{17, 23, 48};         // the ground of the list
constexpr Color rim{62, 68, 104};         // the hairline around a panel
constexpr Color track{66, 73, 108};       // the empty part of a bar
constexpr Color text{244, 246, 252};      // what is read first
constexpr Color quiet{174, 182, 208};     // what is read second
constexpr Color accent{255, 200, 87};     // what is chosen, or moves
constexpr Color accentDeep{236, 96, 104}; // the lower end of the logo's gradient
constexpr Color transparent{0, 0, 0, 0};

} // namespace Palette

#endif

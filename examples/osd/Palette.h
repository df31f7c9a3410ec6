// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The colours of the whole display.
#ifndef OSD_PALETTE_H
#define OSD_PALETTE_H

#include "Geometry.h"

namespace Palette {

constexpr Color ink{12, 16, 34, 255};      // outlines, and text on the accent
constexpr Color well{17, 23, 48, 255};     // the background of the list
constexpr Color rim{62, 68, 104, 255};     // the hairline around a panel
constexpr Color track{66, 73, 108, 255};   // the empty part of a bar
constexpr Color text{244, 246, 252, 255};  // primary text
constexpr Color quiet{174, 182, 208, 255}; // secondary text
constexpr Color accent{255, 200, 87, 255}; // selected or moving items

} // namespace Palette

#endif

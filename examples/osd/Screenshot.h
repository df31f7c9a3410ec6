// Pictures of the window as the X server has it.
#ifndef OSD_SCREENSHOT_H
#define OSD_SCREENSHOT_H

#include "OsdWindow.h"
#include "PngFile.h"

/// Waits until earlier frames have arrived, then fills the window with black through X, so that no
/// picture of them can be taken for the next frame.
bool WipeWindow(const OsdWindow& window);

/// Waits until a frame has arrived on a wiped window and changes no more, and reads it. A swap may
/// return before the X server has the frame. Reports on stderr when none comes.
bool TakeScreenshot(const OsdWindow& window, Picture* picture);

#endif

// The X11 window; SDL makes it and does nothing else.
#ifndef OSD_OSD_WINDOW_H
#define OSD_OSD_WINDOW_H

#include "Geometry.h"

#include <SDL.h>

class OsdWindow {
public:
    OsdWindow(int width, int height);
    ~OsdWindow();
    OsdWindow(const OsdWindow&) = delete;
    OsdWindow& operator=(const OsdWindow&) = delete;

    bool IsOpen() const { return window != nullptr; }

    /// What the library takes for the window: on X11, its number.
    ANativeWindow* GetNativeWindow() const;

    SDL_Window* GetSdlWindow() const { return window; }

    /// Takes in what happened; false once the user wants to leave.
    bool HandleEvents();

private:
    SDL_Window* window;
};

#endif

/// @file
/// The X server's side: the windows that the surface is bound to, and a hold on the driver.
#ifndef ZOGLES_SOAK_WINDOWS_H
#define ZOGLES_SOAK_WINDOWS_H

#include "zogles/ZoGLDrawSurface.h"

#include <array>

class Windows {
public:
    Windows();
    ~Windows();
    Windows(const Windows&) = delete;
    Windows& operator=(const Windows&) = delete;

    static constexpr int count = 2;

    ANativeWindow* Get(int index) const;
    void Resize(int index, unsigned int width, unsigned int height);
    /// Destroys the window and opens another in its place. No surface may be bound to it.
    void Replace(int index);

    /// Keeps an EGL display of its own, and with it the driver's libraries, until the end. Otherwise
    /// the driver is unloaded with the only display, whenever a surface lets go of its window.
    void KeepDriver();

private:
    void* display;
    void* eglDisplay;
    std::array<unsigned long, count> windows;
};

#endif

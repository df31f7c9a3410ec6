// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// An X11 window for the examples.
#ifndef EXAMPLES_COMMON_X_WINDOW_H
#define EXAMPLES_COMMON_X_WINDOW_H

#include "Example.h"

#include <X11/Xlib.h>
#include <functional>

/// Declare it before its surface, so that the surface is destroyed first.
class XWindow {
public:
    /// A transparent window has alpha; a compositor blends it over the desktop.
    enum class Kind { Opaque, Transparent };

    /// Ends the program if there is no X server, or no visual for transparent windows.
    XWindow(unsigned int windowWidth, unsigned int windowHeight, Kind windowKind = Kind::Opaque);
    ~XWindow();
    XWindow(const XWindow&) = delete;
    XWindow& operator=(const XWindow&) = delete;

    Display* GetDisplay() const { return display; }
    Window GetId() const { return window; }

    /// Shows the window. Returns the library's window pointer, which on X11 is the window's id.
    ANativeWindow* Show();

    /// Waits until the window must be drawn. False once the user presses a key or closes the window.
    bool WaitForExpose();

    /// False once the user presses a key or closes the window. Does not wait.
    bool IsOpen();

    /// Writes what is drawn but not refreshed yet to a PNG file; a transparent window over a desktop.
    void Save(const ZoGLDrawSurface& surface, const char* path) const;

private:
    void TakeEvent();

    unsigned int width;
    unsigned int height;
    Kind kind;
    Display* display;
    Window window;
    Atom closing;
    bool isExposed = false;
    bool isOpen = true;
};

/// Draws and shows frames until the window is closed, or saves the frame that the arguments ask for.
/// @param draw takes the milliseconds since the first frame
void Animate(XWindow& window, ZoGLDrawSurface& surface, const Arguments& arguments,
             const std::function<void(unsigned int)>& draw);

#endif

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

    /// Ends the program if there is no X server, or if that has no transparent windows.
    XWindow(unsigned int windowWidth, unsigned int windowHeight, Kind windowKind = Kind::Opaque);
    ~XWindow();
    XWindow(const XWindow&) = delete;
    XWindow& operator=(const XWindow&) = delete;

    Display* GetDisplay() const { return display; }
    Window GetId() const { return window; }

    /// Puts the window on the screen. Returns what the library takes: on X11, the window's number.
    ANativeWindow* Show();

    /// Waits until the window has to be drawn. False once the user presses a key or closes it.
    bool WaitForExpose();

    /// False once the user presses a key or closes the window. Does not wait.
    bool IsOpen();

    /// Writes a PNG file of what is drawn and not refreshed yet; a transparent window on a desktop.
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

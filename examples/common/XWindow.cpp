// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "XWindow.h"

#include "Picture.h"

#include <X11/Xutil.h>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

Display* OpenDisplay() {
    setenv("EGL_PLATFORM", "x11", 0); // also on a Wayland desktop
    Display* display = XOpenDisplay(nullptr);
    if (display == nullptr) {
        fputs("no X server: is DISPLAY set?\n", stderr);
        exit(EXIT_FAILURE);
    }
    return display;
}

Window CreateWindow(Display* display, unsigned int width, unsigned int height, XWindow::Kind kind) {
    const Window root = XDefaultRootWindow(display);
    XVisualInfo info = {}; // zeros: the window gets its parent's visual and depth
    XSetWindowAttributes wish = {};
    wish.event_mask = ExposureMask | KeyPressMask;
    unsigned long mask = CWEventMask;
    if (kind == XWindow::Kind::Transparent) {
        if (XMatchVisualInfo(display, XDefaultScreen(display), 32, TrueColor, &info) == 0) {
            fputs("the X server has no transparent windows\n", stderr);
            exit(EXIT_FAILURE);
        }
        // The server requires these two for a window whose depth differs from its parent's.
        wish.colormap = XCreateColormap(display, root, info.visual, AllocNone);
        wish.border_pixel = 0;
        mask |= CWColormap | CWBorderPixel;
    }
    return XCreateWindow(display, root, 0, 0, width, height, 0, info.depth, InputOutput,
                         info.visual, mask, &wish);
}

} // namespace

XWindow::XWindow(unsigned int windowWidth, unsigned int windowHeight, Kind windowKind)
    : width(windowWidth), height(windowHeight), kind(windowKind), display(OpenDisplay()),
      window(CreateWindow(display, width, height, kind)),
      closing(XInternAtom(display, "WM_DELETE_WINDOW", False)) {
    // Without this, the window manager ends the program when the user closes the window.
    XSetWMProtocols(display, window, &closing, 1);
}

XWindow::~XWindow() {
    XCloseDisplay(display); // destroys the window, too
}

ANativeWindow* XWindow::Show() {
    XMapRaised(display, window);
    XSync(display, False); // EGL has its own connection to the server
    return reinterpret_cast<ANativeWindow*>(static_cast<uintptr_t>(window));
}

bool XWindow::WaitForExpose() {
    isExposed = false;
    while (isOpen && !isExposed) {
        TakeEvent();
    }
    return isOpen;
}

bool XWindow::IsOpen() {
    while (XPending(display) > 0) {
        TakeEvent();
    }
    return isOpen;
}

void XWindow::TakeEvent() {
    XEvent event;
    XNextEvent(display, &event);
    isExposed |= event.type == Expose;
    isOpen &= event.type != KeyPress;
    if (event.type == ClientMessage) {
        isOpen &= static_cast<Atom>(event.xclient.data.l[0]) != closing;
    }
}

void XWindow::Save(const ZoGLDrawSurface& surface, const char* path) const {
    const Picture picture = ReadWindow(surface, width, height);
    WritePng(path, kind == Kind::Transparent ? PutOnDesktop(picture) : picture);
}

void Animate(XWindow& window, ZoGLDrawSurface& surface, const Arguments& arguments,
             const std::function<void(unsigned int)>& draw) {
    if (arguments.out != nullptr) {
        draw(arguments.milliseconds);
        window.Save(surface, arguments.out);
        return;
    }
    const auto start = std::chrono::steady_clock::now();
    while (window.IsOpen()) {
        const std::chrono::duration<double, std::milli> time =
            std::chrono::steady_clock::now() - start;
        draw(static_cast<unsigned int>(time.count()));
        Check("refresh", surface.ZoRefreshOnSrceen()); // usually waits for the display
    }
}

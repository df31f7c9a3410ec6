// The window of the program that runs on a real driver.

#include "Driver.h"

#include <X11/Xlib.h>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

const bool hasDriver = true;

ANativeWindow* OpenWindow() {
    static Display* const display = XOpenDisplay(nullptr);
    if (display == nullptr) {
        fprintf(stderr, "the benchmarks need an X server\n");
        exit(1);
    }
    static const Window window = [] {
        const Window created = XCreateSimpleWindow(display, XDefaultRootWindow(display), 0, 0,
                                                   windowWidth, windowHeight, 0, 0, 0);
        XMapWindow(display, created);
        XSync(display, False);
        return created;
    }();
    return reinterpret_cast<ANativeWindow*>(static_cast<uintptr_t>(window));
}

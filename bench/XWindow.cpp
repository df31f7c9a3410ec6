// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The window of the programs that run on a real driver.

#include "Driver.h"

#include <X11/Xlib.h>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

const bool hasDriver = true;

ANativeWindow* OpenWindow() {
    Display* const display = XOpenDisplay(nullptr);
    if (display == nullptr) {
        fprintf(stderr, "the benchmarks need an X server\n");
        exit(1);
    }
    const Window window = XCreateSimpleWindow(display, XDefaultRootWindow(display), 0, 0,
                                              windowWidth, windowHeight, 0, 0, 0);
    XMapWindow(display, window);
    XSync(display, False);
    return reinterpret_cast<ANativeWindow*>(static_cast<uintptr_t>(window));
}

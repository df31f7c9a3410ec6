// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// A program that uses the library: draws into a buffer, presents it, and reads the window's picture
// from the X server. Returns 0 only if that is right.
#include <zogles/ZoGLDrawSurface.h>

#include "names.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <chrono>
#include <cstdio>
#include <thread>

namespace {

constexpr unsigned int width = 160;
constexpr unsigned int height = 90;
constexpr unsigned long navy = 0x14283c;

bool Draw(ZoGLDrawSurface& surface, Window window, const char* font) {
    auto* const native = reinterpret_cast<ANativeWindow*>(window);
    const tagZoRectInfo all = {0, 0, width, height};
    const tagZoRectInfo pen = {20, 70, 0, 0};
    const tagZoColorRGBA background = {0x14, 0x28, 0x3c, 255};
    tagZoTextInfo text = {};
    text.text = u"HIM";
    text.length = 3;
    text.color = {255, 255, 255, 255};
    text.fontSize = 40;
    unsigned int buffer = ZO_NO_HANDLE;
    return surface.ZoCreateGLWindowSurface(native) == ZO_SUCCESS &&
           surface.ZoCreateGLFBO(&buffer, width, height, ZO_FORMAT_RGBA8888) == ZO_SUCCESS &&
           surface.ZoDrawRect(buffer, &all, &background) == ZO_SUCCESS &&
           surface.ZoLoadFont(font, 40) == ZO_SUCCESS &&
           surface.ZoDrawText(buffer, &text, &pen) == ZO_SUCCESS &&
           surface.ZoDisplayFBO(buffer, &all, &all) == ZO_SUCCESS &&
           surface.ZoRefreshOnSrceen() == ZO_SUCCESS;
}

bool IsShown(Display* display, Window window) {
    XImage* image = XGetImage(display, window, 0, 0, 1, 1, AllPlanes, ZPixmap);
    const unsigned long color = XGetPixel(image, 0, 0) & 0xffffff;
    XDestroyImage(image);
    return color == navy;
}

} // namespace

int main(int argc, char* argv[]) {
    const char* font = argc > 1 ? argv[1] : "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";
    if (argc > 2) {
        MakeOwnObjects();
    }
    Display* display = XOpenDisplay(nullptr);
    if (display == nullptr) {
        fprintf(stderr, "no X server\n");
        return 1;
    }
    const Window window =
        XCreateSimpleWindow(display, XDefaultRootWindow(display), 0, 0, width, height, 0, 0, 0);
    XMapWindow(display, window);
    XSync(display, False);
    ZoGLDrawSurface surface;
    bool isShown = false;
    if (Draw(surface, window, font)) {
        for (int attempt = 0; attempt < 50 && !isShown; ++attempt) {
            isShown = IsShown(display, window);
            std::this_thread::sleep_for(std::chrono::milliseconds(isShown ? 0 : 100));
        }
    }
    surface.ZoDestoryGLWindowSurface(); // while the window exists
    XCloseDisplay(display);
    fprintf(stderr, isShown ? "drawn as it should be\n" : "drawn wrongly\n");
    return isShown ? 0 : 1;
}

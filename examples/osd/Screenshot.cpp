#include "Screenshot.h"

#include <SDL_syswm.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <algorithm>
#include <cstdio>

namespace {

constexpr unsigned int pollMilliseconds = 30;
constexpr int longestPolls = 200;
// A frame may arrive in several pieces: it counts as whole when it stays the same for this long.
constexpr int calmPolls = 4;

struct XWindow {
    Display* display;
    Window id;
};

bool FindXWindow(const OsdWindow& window, XWindow* found) {
    SDL_SysWMinfo info;
    SDL_VERSION(&info.version);
    if (SDL_GetWindowWMInfo(window.GetSdlWindow(), &info) == SDL_FALSE ||
        info.subsystem != SDL_SYSWM_X11) {
        return false;
    }
    *found = {info.info.x11.display, info.info.x11.window};
    return true;
}

// Without a handler of ours, Xlib ends the process when part of the window is off the screen.
int IgnoreError(Display*, XErrorEvent*) {
    return 0;
}

XImage* ReadImage(const XWindow& window) {
    XErrorHandler previous = XSetErrorHandler(IgnoreError);
    XImage* image = nullptr;
    XWindowAttributes attributes;
    if (XGetWindowAttributes(window.display, window.id, &attributes) != 0) {
        image =
            XGetImage(window.display, window.id, 0, 0, static_cast<unsigned int>(attributes.width),
                      static_cast<unsigned int>(attributes.height), AllPlanes, ZPixmap);
    }
    XSetErrorHandler(previous);
    return image;
}

unsigned char PickChannel(unsigned long pixel, unsigned long mask) {
    const unsigned long lowest = mask & (~mask + 1);
    return static_cast<unsigned char>(lowest == 0 ? 0 : (pixel & mask) / lowest);
}

bool Grab(const XWindow& window, Picture* picture) {
    XImage* image = ReadImage(window);
    if (image == nullptr) {
        return false;
    }
    picture->width = image->width;
    picture->height = image->height;
    picture->pixels.clear();
    for (int y = 0; y < image->height; ++y) {
        for (int x = 0; x < image->width; ++x) {
            const unsigned long pixel = XGetPixel(image, x, y);
            for (const unsigned long mask :
                 {image->red_mask, image->green_mask, image->blue_mask}) {
                picture->pixels.push_back(PickChannel(pixel, mask));
            }
        }
    }
    XDestroyImage(image);
    return true;
}

bool IsBlack(const Picture& picture) {
    return std::all_of(picture.pixels.begin(), picture.pixels.end(),
                       [](unsigned char value) { return value == 0; });
}

// Reads until the picture has stayed the same for a while; a black one counts only if allowed.
bool WaitForCalm(const XWindow& window, bool mayBeBlack, Picture* picture) {
    Picture next;
    int calm = 0;
    for (int i = 0; i < longestPolls && calm < calmPolls; ++i) {
        if (!Grab(window, &next)) {
            return false;
        }
        const bool isSame = next.pixels == picture->pixels;
        calm = isSame && (mayBeBlack || !IsBlack(next)) ? calm + 1 : 0;
        std::swap(next, *picture);
        SDL_Delay(pollMilliseconds);
    }
    return calm == calmPolls;
}

} // namespace

bool WipeWindow(const OsdWindow& window) {
    XWindow target{};
    Picture last;
    if (!FindXWindow(window, &target) || !WaitForCalm(target, true, &last)) {
        fprintf(
            stderr,
            "zogles-osd: the window cannot be read back; it must lie on the screen as a whole\n");
        return false;
    }
    GC context = XCreateGC(target.display, target.id, 0, nullptr);
    XSetForeground(target.display, context, 0);
    XFillRectangle(target.display, target.id, context, 0, 0, static_cast<unsigned int>(last.width),
                   static_cast<unsigned int>(last.height));
    XFreeGC(target.display, context);
    XSync(target.display, False);
    return true;
}

bool TakeScreenshot(const OsdWindow& window, Picture* picture) {
    XWindow target{};
    if (!FindXWindow(window, &target) || !WaitForCalm(target, false, picture)) {
        fprintf(stderr, "zogles-osd: no frame arrived in the window\n");
        return false;
    }
    return true;
}

#include "Windows.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <X11/Xlib.h>
#include <cstdint>
#include <stdexcept>

namespace {

constexpr unsigned int startWidth = 640;
constexpr unsigned int startHeight = 360;

Window Open(Display* display) {
    const Window window = XCreateSimpleWindow(display, XDefaultRootWindow(display), 0, 0,
                                              startWidth, startHeight, 0, 0, 0);
    XMapWindow(display, window);
    XSync(display, False);
    return window;
}

} // namespace

Windows::Windows() : display(XOpenDisplay(nullptr)), eglDisplay(EGL_NO_DISPLAY) {
    if (display == nullptr) {
        throw std::runtime_error("no X server");
    }
    for (unsigned long& window : windows) {
        window = Open(static_cast<Display*>(display));
    }
}

Windows::~Windows() {
    if (eglDisplay != EGL_NO_DISPLAY) {
        eglTerminate(eglDisplay);
    }
    XCloseDisplay(static_cast<Display*>(display));
}

ANativeWindow* Windows::Get(int index) const {
    return reinterpret_cast<ANativeWindow*>(static_cast<uintptr_t>(windows.at(size_t(index))));
}

void Windows::Resize(int index, unsigned int width, unsigned int height) {
    XResizeWindow(static_cast<Display*>(display), windows.at(size_t(index)), width, height);
    XSync(static_cast<Display*>(display), False);
}

void Windows::Replace(int index) {
    unsigned long& window = windows.at(size_t(index));
    XDestroyWindow(static_cast<Display*>(display), window);
    window = Open(static_cast<Display*>(display));
}

void Windows::KeepDriver() {
    eglDisplay = eglGetPlatformDisplay(EGL_PLATFORM_X11_KHR, display, nullptr);
    if (eglInitialize(eglDisplay, nullptr, nullptr) != EGL_TRUE) {
        throw std::runtime_error("no EGL display to keep the driver with");
    }
}

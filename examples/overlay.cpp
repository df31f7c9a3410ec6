// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// A transparent volume bar above all windows, which does not take clicks.
//
//   overlay                  for five seconds, on a desktop with a compositor
//   overlay --out FILE.png   saves what the window shows, and exits
//
// Alpha. The window has a visual of depth 32, whose last 8 bits are alpha, and a compositor blends
// it; without a compositor, transparent parts show black. Compositors expect colours multiplied by
// alpha. ZoDisplayFBO would leave (r*a, g*a, b*a, a*a): right colours, but too little alpha, so too
// much of the desktop shows through. So this program multiplies its colours itself and copies them
// with ZoBlit, which changes nothing.
//
// Configuration. Each EGL configuration names a visual, EGL_NATIVE_VISUAL_ID. The library takes the
// first configuration with 8 bits of alpha. Mesa on X11 may give that one a visual of depth 24, but
// still draws on a window of depth 32, alpha included. A driver that requires the configuration's
// visual refuses the binding with code 5.

#include "common/XWindow.h"

#include <X11/extensions/Xfixes.h>
#include <X11/extensions/shapeconst.h>
#include <cstdlib>
#include <unistd.h>

namespace {

constexpr unsigned int width = 640;
constexpr unsigned int height = 120;
constexpr unsigned int textSize = 24;
constexpr unsigned int volume = 65;      // per cent
constexpr unsigned int digitsWidth = 31; // of the volume as text

// A colour as compositors expect it.
tagZoColorRGBA Multiply(const tagZoColorRGBA& color) {
    const auto scale = [&](unsigned char channel) {
        // 1 would mean full intensity, like 255, so it becomes 0.
        const int value = (channel * color.a + 127) / 255;
        return static_cast<unsigned char>(value == 1 ? 0 : value);
    };
    return {scale(color.r), scale(color.g), scale(color.b), color.a};
}

void Fill(ZoGLDrawSurface& surface, unsigned int frame, const tagZoRectInfo& rect,
          const tagZoColorRGBA& color) {
    const tagZoColorRGBA multiplied = Multiply(color);
    Check("rectangle", surface.ZoDrawRect(frame, &rect, &multiplied));
}

// The colour of text is not multiplied here: blending does that.
void DrawWord(ZoGLDrawSurface& surface, unsigned int frame, std::u16string_view word,
              unsigned int x, unsigned int baseline) {
    const tagZoTextInfo text = ToText(word, {244, 246, 252, 255});
    const tagZoRectInfo pen = {x, baseline, 0, 0};
    Check("text", surface.ZoDrawText(frame, &text, &pen));
}

void Draw(ZoGLDrawSurface& surface, unsigned int frame) {
    const tagZoRectInfo all = {0, 0, width, height};
    Fill(surface, frame, all, {0, 0, 0, 0});
    Fill(surface, frame, {16, 16, width - 32, height - 32}, {12, 16, 34, 190});
    DrawWord(surface, frame, u"Volume", 44, 69);
    DrawWord(surface, frame, u"65", width - 44 - digitsWidth, 69);
    constexpr unsigned int parts = 20;
    for (unsigned int i = 0; i < parts; ++i) {
        const bool isLit = i * 100 < volume * parts;
        const tagZoColorRGBA color =
            isLit ? tagZoColorRGBA{255, 200, 87, 255} : tagZoColorRGBA{78, 82, 108, 200};
        Fill(surface, frame, {160 + i * 19, 46, 13, 28}, color);
    }
    const tagZoBlitInfo copy = {frame, ZO_WINDOW_HANDLE, all, all};
    Check("copy to the window", surface.ZoBlit(&copy));
}

// The window manager does not manage such a window: no frame, no focus, above all others. For a window
// that it manages, set the property _NET_WM_STATE to _NET_WM_STATE_ABOVE instead, and
// _MOTIF_WM_HINTS to no decorations.
void PutAboveAll(XWindow& window) {
    Display* display = window.GetDisplay();
    const Window id = window.GetId();
    XSetWindowAttributes wish = {};
    wish.override_redirect = True;
    XChangeWindowAttributes(display, id, CWOverrideRedirect, &wish);
    const int screen = XDefaultScreen(display);
    XMoveWindow(display, id, (XDisplayWidth(display, screen) - static_cast<int>(width)) / 2,
                XDisplayHeight(display, screen) - static_cast<int>(height) - 40);
    // The region that takes clicks is empty, so they go to the window below.
    const XserverRegion empty = XFixesCreateRegion(display, nullptr, 0);
    XFixesSetWindowShapeRegion(display, id, ShapeInput, 0, 0, empty);
    XFixesDestroyRegion(display, empty);
}

} // namespace

int main(int argc, char* argv[]) {
    const Arguments arguments = ReadArguments(argc, argv);
    XWindow window(width, height, XWindow::Kind::Transparent);
    PutAboveAll(window);
    ZoGLDrawSurface surface;
    Check("binding", surface.ZoCreateGLWindowSurface(window.Show()));
    Check("font", surface.ZoLoadFont(fontFile, textSize));
    unsigned int frame = ZO_NO_HANDLE;
    Check("buffer", surface.ZoCreateGLFBO(&frame, width, height, ZO_FORMAT_RGBA8888));
    Draw(surface, frame);
    if (arguments.out != nullptr) {
        window.Save(surface, arguments.out);
        return EXIT_SUCCESS;
    }
    Check("refresh", surface.ZoRefreshOnSrceen());
    sleep(5);
    return EXIT_SUCCESS;
}

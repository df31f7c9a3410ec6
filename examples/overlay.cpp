// A volume bar above all windows: without a border, transparent, and clicked through.
//
//   overlay                  for five seconds, on a desktop with a compositor
//   overlay --out FILE.png   saves what the window shows, and ends
//
// Alpha. The window has a visual of depth 32, whose last 8 bits are alpha, and a compositor blends
// it; without one, what is transparent shows black. Compositors take colours multiplied by alpha.
// ZoDisplayFBO would leave (r*a, g*a, b*a, a*a): right colours, but too little alpha, so too much of
// the desktop shines through. So this program multiplies and copies with ZoBlit, which changes
// nothing.
//
// Configuration. EGL has a visual for each of its configurations, EGL_NATIVE_VISUAL_ID. The library
// takes the first configuration with 8 bits of alpha, and Mesa on X11 may give that one a visual of
// depth 24. Mesa draws on a window of depth 32 all the same, alpha included. A driver that insists
// on its own visual refuses the binding with code 5.

#include "common/Picture.h" // for --out only

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/Xfixes.h>
#include <X11/extensions/shapeconst.h>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <unistd.h>
#include <zogles/ZoGLDrawSurface.h>

namespace {

constexpr unsigned int width = 640;
constexpr unsigned int height = 120;
constexpr unsigned int textSize = 24;     // what the font is loaded at,
constexpr unsigned int standardSize = 40; // which plain text then asks for by this number
constexpr unsigned int volume = 65;       // per cent, and as the text below
constexpr unsigned int figuresWidth = 31; // of that text
constexpr char fontFile[] = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";

void Check(const char* what, int code) {
    if (code != ZO_SUCCESS) {
        fprintf(stderr, "overlay: %s failed with code %d\n", what, code);
        exit(EXIT_FAILURE);
    }
}

// A colour as compositors take it.
tagZoColorRGBA Multiply(const tagZoColorRGBA& color) {
    const auto scale = [&](unsigned char channel) {
        // 1 would mean full intensity, like 255; nothing is nearer than 0.
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

// Text is blended with its own colour unmultiplied: blending multiplies it.
void DrawWord(ZoGLDrawSurface& surface, unsigned int frame, std::u16string_view word,
              unsigned int x, unsigned int baseline) {
    tagZoTextInfo text = {};
    text.text = word.data();
    text.length = static_cast<unsigned int>(word.size());
    text.color = {244, 246, 252, 255};
    text.fontSize = standardSize;
    const tagZoRectInfo pen = {x, baseline, 0, 0};
    Check("text", surface.ZoDrawText(frame, &text, &pen));
}

void Draw(ZoGLDrawSurface& surface, unsigned int frame) {
    const tagZoRectInfo all = {0, 0, width, height};
    Fill(surface, frame, all, {0, 0, 0, 0});
    Fill(surface, frame, {16, 16, width - 32, height - 32}, {12, 16, 34, 190});
    DrawWord(surface, frame, u"Volume", 44, 69);
    DrawWord(surface, frame, u"65", width - 44 - figuresWidth, 69);
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

Window OpenWindow(Display* display) {
    XVisualInfo info = {};
    if (display == nullptr ||
        XMatchVisualInfo(display, XDefaultScreen(display), 32, TrueColor, &info) == 0) {
        fputs("overlay: no X server, or none with transparent windows\n", stderr);
        exit(EXIT_FAILURE);
    }
    const Window root = XDefaultRootWindow(display);
    XSetWindowAttributes wish = {};
    // Without these two, the server refuses a window of another depth than its parent's.
    wish.colormap = XCreateColormap(display, root, info.visual, AllocNone);
    wish.border_pixel = 0;
    // The window manager leaves such a window alone: no frame, no focus, on top when it is mapped.
    // To have it managed and kept on top, set the property _NET_WM_STATE to _NET_WM_STATE_ABOVE, and
    // _MOTIF_WM_HINTS to no decorations, before it is mapped.
    wish.override_redirect = True;
    const int x = (XDisplayWidth(display, info.screen) - static_cast<int>(width)) / 2;
    const int y = XDisplayHeight(display, info.screen) - static_cast<int>(height) - 40;
    const Window window =
        XCreateWindow(display, root, x, y, width, height, 0, info.depth, InputOutput, info.visual,
                      CWColormap | CWBorderPixel | CWOverrideRedirect, &wish);
    // Clicks go to what lies below: the part of the window that takes them is empty.
    const XserverRegion empty = XFixesCreateRegion(display, nullptr, 0);
    XFixesSetWindowShapeRegion(display, window, ShapeInput, 0, 0, empty);
    XFixesDestroyRegion(display, empty);
    XMapRaised(display, window);
    XSync(display, False); // EGL talks to the server on a connection of its own
    return window;
}

} // namespace

int main(int argc, char* argv[]) {
    const char* out = FindOut(argc, argv);
    setenv("EGL_PLATFORM", "x11", 0); // our window is X11's on a Wayland desktop, too
    Display* display = XOpenDisplay(nullptr);
    const Window window = OpenWindow(display);

    ZoGLDrawSurface surface;
    auto* native = reinterpret_cast<ANativeWindow*>(static_cast<uintptr_t>(window));
    Check("binding", surface.ZoCreateGLWindowSurface(native));
    Check("font", surface.ZoLoadFont(fontFile, textSize));
    unsigned int frame = ZO_NO_HANDLE;
    Check("buffer", surface.ZoCreateGLFBO(&frame, width, height, ZO_FORMAT_RGBA8888));
    Draw(surface, frame);
    if (out != nullptr) {
        Check("picture", SaveOverlay(out, width, height) ? ZO_SUCCESS : ZO_FAILURE);
    }
    Check("refresh", surface.ZoRefreshOnSrceen());
    if (out == nullptr) {
        sleep(5);
    }
    surface.ZoDestoryGLWindowSurface(); // before the window goes
    XCloseDisplay(display);             // takes the window along
    return EXIT_SUCCESS;
}

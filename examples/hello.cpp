// The smallest useful program: a rectangle and a line of text on a window.
//
//   hello                  shows the window until a key is pressed
//   hello --out FILE.png   draws, saves what the window shows, and ends

#include "common/Picture.h" // for --out only

#include <X11/Xlib.h>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <zogles/ZoGLDrawSurface.h>

namespace {

constexpr unsigned int width = 640;
constexpr unsigned int height = 360;
constexpr unsigned int textSize = 40; // also the one that plain text is fastest in
constexpr char fontFile[] = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";

// Every operation says how it went. A real program would react; this one gives up.
void Check(const char* what, int code) {
    if (code != ZO_SUCCESS) {
        fprintf(stderr, "hello: %s failed with code %d\n", what, code);
        exit(EXIT_FAILURE);
    }
}

// Draws on the window itself, so what is drawn later covers what was drawn earlier.
void Fill(ZoGLDrawSurface& surface, const tagZoRectInfo& rect, const tagZoColorRGBA& color) {
    Check("rectangle", surface.ZoDrawRect(ZO_WINDOW_HANDLE, &rect, &color));
}

// Returns where the next word starts. Text is drawn a word at a time, because a space has no width
// of its own when it is drawn.
unsigned int DrawWord(ZoGLDrawSurface& surface, std::u16string_view word, unsigned int x,
                      unsigned int baseline) {
    constexpr unsigned int space = textSize / 3;
    tagZoTextInfo text = {};
    text.text = word.data();
    text.length = static_cast<unsigned int>(word.size());
    text.color = {244, 246, 252, 255};
    text.fontSize = textSize;
    const tagZoRectInfo pen = {x, baseline, 0, 0}; // letters stand on the baseline
    Check("text", surface.ZoDrawText(ZO_WINDOW_HANDLE, &text, &pen));

    unsigned int wordWidth = 0;
    unsigned int unused = 0; // the height is the same for every font
    Check("measuring", surface.ZoGetTextSize(&text, &wordWidth, &unused));
    return x + wordWidth + space;
}

void Draw(ZoGLDrawSurface& surface) {
    // Each frame starts with whatever the driver has at hand, so it is drawn as a whole.
    Fill(surface, {0, 0, width, height}, {17, 23, 48, 255});
    Fill(surface, {136, 130, 368, 100}, {38, 46, 88, 255});
    Fill(surface, {136, 130, 8, 100}, {255, 200, 87, 255});
    const unsigned int next = DrawWord(surface, u"Hello,", 204, 194);
    DrawWord(surface, u"world", next, 194);
}

} // namespace

int main(int argc, char* argv[]) {
    const char* out = FindOut(argc, argv);
    setenv("EGL_PLATFORM", "x11", 0); // our window is X11's on a Wayland desktop, too

    Display* display = XOpenDisplay(nullptr);
    if (display == nullptr) {
        fputs("hello: no X server: is DISPLAY set?\n", stderr);
        return EXIT_FAILURE;
    }
    const Window window =
        XCreateSimpleWindow(display, XDefaultRootWindow(display), 0, 0, width, height, 0, 0, 0);
    XSelectInput(display, window, ExposureMask | KeyPressMask);
    XMapWindow(display, window);
    XSync(display, False); // EGL talks to the server on a connection of its own

    ZoGLDrawSurface surface;
    // On X11 the native window is a number, which travels as a pointer.
    auto* native = reinterpret_cast<ANativeWindow*>(static_cast<uintptr_t>(window));
    Check("binding", surface.ZoCreateGLWindowSurface(native));
    Check("font", surface.ZoLoadFont(fontFile, textSize));

    if (out != nullptr) {
        Draw(surface);
        Check("picture", SavePicture(out, width, height) ? ZO_SUCCESS : ZO_FAILURE);
        Check("refresh", surface.ZoRefreshOnSrceen());
    }
    for (XEvent event = {}; out == nullptr && event.type != KeyPress;) {
        XNextEvent(display, &event);
        if (event.type == Expose) { // the window came to light, or a part of it
            Draw(surface);
            Check("refresh", surface.ZoRefreshOnSrceen());
        }
    }
    surface.ZoDestoryGLWindowSurface(); // before the window goes
    XCloseDisplay(display);             // takes the window along
    return EXIT_SUCCESS;
}

// A window goes, another comes, and the buffers are painted again.
//
// They are back under their old handles, cleared. Fonts are not back, and are loaded again.
//
//   lost-window                  closes its first window by itself; a key closes the second
//   lost-window --out FILE.png   the same, saves what the second window shows, and ends

#include "common/Picture.h" // for --out only

#include <X11/Xlib.h>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <unistd.h>
#include <zogles/ZoGLDrawSurface.h>

namespace {

constexpr unsigned int width = 640;
constexpr unsigned int height = 360;
constexpr unsigned int textSize = 24;     // what the font is loaded at,
constexpr unsigned int standardSize = 40; // which plain text then asks for by this number
constexpr tagZoRectInfo card = {0, 0, 232, 176};
constexpr unsigned int cardTop = 72;
constexpr unsigned int leftCard = 68;
constexpr unsigned int rightCard = 340;
constexpr char fontFile[] = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";

void Check(const char* what, int code) {
    if (code != ZO_SUCCESS) {
        fprintf(stderr, "lost-window: %s failed with code %d\n", what, code);
        exit(EXIT_FAILURE);
    }
}

void Fill(ZoGLDrawSurface& surface, unsigned int target, const tagZoRectInfo& rect,
          const tagZoColorRGBA& color) {
    Check("rectangle", surface.ZoDrawRect(target, &rect, &color));
}

void DrawWord(ZoGLDrawSurface& surface, unsigned int target, std::u16string_view word,
              unsigned int centre, unsigned int baseline) {
    tagZoTextInfo text = {};
    text.text = word.data();
    text.length = static_cast<unsigned int>(word.size());
    text.color = {244, 246, 252, 255};
    text.fontSize = standardSize;
    unsigned int wordWidth = 0;
    unsigned int unused = 0;
    Check("measuring", surface.ZoGetTextSize(&text, &wordWidth, &unused));
    const tagZoRectInfo pen = {centre - wordWidth / 2, baseline, 0, 0};
    Check("text", surface.ZoDrawText(target, &text, &pen));
}

// Keep painting apart from creating, and the loss of a window is a second call of it.
void Paint(ZoGLDrawSurface& surface, unsigned int buffer) {
    Fill(surface, buffer, card, {38, 46, 88, 255});
    Fill(surface, buffer, {24, 24, 184, 96}, {236, 96, 104, 255});
    Fill(surface, buffer, {24, 72, 184, 48}, {255, 200, 87, 255});
    DrawWord(surface, buffer, u"Painted", card.width / 2, 155);
}

void Show(ZoGLDrawSurface& surface, unsigned int buffer, unsigned int x) {
    tagZoBlitInfo copy = {buffer, ZO_WINDOW_HANDLE, card, card};
    copy.dstRect.x = x;
    copy.dstRect.y = cardTop;
    Check("copy to the window", surface.ZoBlit(&copy));
}

// What a new window needs before anything can be drawn.
Window OpenWindow(Display* display, ZoGLDrawSurface& surface) {
    const Window window =
        XCreateSimpleWindow(display, XDefaultRootWindow(display), 0, 0, width, height, 0, 0, 0);
    XSelectInput(display, window, KeyPressMask);
    XMapWindow(display, window);
    XSync(display, False); // EGL talks to the server on a connection of its own
    auto* native = reinterpret_cast<ANativeWindow*>(static_cast<uintptr_t>(window));
    Check("binding", surface.ZoCreateGLWindowSurface(native));
    Check("font", surface.ZoLoadFont(fontFile, textSize));
    return window;
}

} // namespace

int main(int argc, char* argv[]) {
    const char* out = FindOut(argc, argv);
    setenv("EGL_PLATFORM", "x11", 0); // our window is X11's on a Wayland desktop, too
    Display* display = XOpenDisplay(nullptr);
    if (display == nullptr) {
        fputs("lost-window: no X server: is DISPLAY set?\n", stderr);
        return EXIT_FAILURE;
    }
    ZoGLDrawSurface surface;
    const Window window = OpenWindow(display, surface);
    unsigned int buffer = ZO_NO_HANDLE;
    Check("buffer", surface.ZoCreateGLFBO(&buffer, card.width, card.height, ZO_FORMAT_RGBA8888));
    Paint(surface, buffer);
    Fill(surface, ZO_WINDOW_HANDLE, {0, 0, width, height}, {17, 23, 48, 255});
    Show(surface, buffer, leftCard);
    Check("refresh", surface.ZoRefreshOnSrceen());
    if (out == nullptr) {
        sleep(2);
    }

    // The window goes: the library first, because it still draws on it. Until the next binding,
    // leave the surface alone.
    surface.ZoDestoryGLWindowSurface();
    XDestroyWindow(display, window);

    // The handle is as good as before, and names a transparent buffer.
    OpenWindow(display, surface);
    Fill(surface, ZO_WINDOW_HANDLE, {0, 0, width, height}, {17, 23, 48, 255});
    Fill(surface, ZO_WINDOW_HANDLE, {leftCard - 2, cardTop - 2, card.width + 4, card.height + 4},
         {112, 122, 164, 255}); // a rim, to see the black of the cleared buffer by
    Show(surface, buffer, leftCard);
    Paint(surface, buffer);
    Show(surface, buffer, rightCard);
    DrawWord(surface, ZO_WINDOW_HANDLE, u"cleared", leftCard + card.width / 2, 288);
    DrawWord(surface, ZO_WINDOW_HANDLE, u"repainted", rightCard + card.width / 2, 288);
    if (out != nullptr) {
        Check("picture", SavePicture(out, width, height) ? ZO_SUCCESS : ZO_FAILURE);
    }
    Check("refresh", surface.ZoRefreshOnSrceen());
    for (XEvent event = {}; out == nullptr && event.type != KeyPress;) {
        XNextEvent(display, &event);
    }
    surface.ZoDestoryGLWindowSurface();
    XCloseDisplay(display); // takes the window along
    return EXIT_SUCCESS;
}

// Subtitles: outlined, centred, faded in and out over whatever lies behind a transparent window.
//
//   subtitles                                        until a key is pressed
//   subtitles --out FILE.png                         saves what the window shows, and ends
//   SUBTITLES_STRENGTH=50 subtitles --out FILE.png   the same in the midst of the fade
//
// The fade. Only text is blended, so its alpha is the strength of the fade. The buffer starts
// transparent black, and two things then come out well:
//  - Colours land multiplied by alpha, as compositors take them. ZoBlit puts them on the window as
//    they are, while ZoDisplayFBO would multiply them once more.
//  - Text of one alpha over text of the same alpha keeps that alpha, so the copies that make up the
//    outline are together no stronger than asked for. Their colour would add up: it is black.

#include "common/Picture.h" // for --out only

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <zogles/ZoGLDrawSurface.h>

namespace {

constexpr unsigned int width = 640;
constexpr unsigned int height = 360;
constexpr unsigned int textSize = 36;     // what the font is loaded at,
constexpr unsigned int standardSize = 40; // which plain text then asks for by this number
constexpr unsigned int spaceWidth = textSize / 3;
constexpr unsigned int baselines[] = {268, 316};
constexpr std::u16string_view lines[] = {u"The ferry is late again.", u"Time enough for the tide."};
constexpr char fontFile[] = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";

void Check(const char* what, int code) {
    if (code != ZO_SUCCESS) {
        fprintf(stderr, "subtitles: %s failed with code %d\n", what, code);
        exit(EXIT_FAILURE);
    }
}

// Calls place(word, x) for each word of a line and returns the line's width. Words are placed one by
// one because a space takes no room when it is drawn, and always 30 pixels when it is measured.
template <typename Place>
unsigned int LayOut(ZoGLDrawSurface& surface, std::u16string_view line, Place place) {
    unsigned int pen = 0;
    while (!line.empty()) {
        tagZoTextInfo word = {};
        word.text = line.data();
        word.length = static_cast<unsigned int>(std::min(line.find(u' '), line.size()));
        word.fontSize = standardSize;
        place(word, pen);
        unsigned int wordWidth = 0;
        unsigned int unused = 0;
        Check("measuring", surface.ZoGetTextSize(&word, &wordWidth, &unused));
        pen += wordWidth + spaceWidth;
        line.remove_prefix(std::min(size_t{word.length} + 1, line.size()));
    }
    return pen > 0 ? pen - spaceWidth : 0;
}

// The outline is the word itself in black, a little off to all sides. The word goes on top of it.
void DrawOutlined(ZoGLDrawSurface& surface, unsigned int frame, tagZoTextInfo word, unsigned int x,
                  unsigned int y, unsigned char alpha) {
    const tagZoRectInfo pens[] = {{x - 2, y, 0, 0},     {x + 2, y, 0, 0},     {x, y - 2, 0, 0},
                                  {x, y + 2, 0, 0},     {x - 1, y - 1, 0, 0}, {x + 1, y - 1, 0, 0},
                                  {x - 1, y + 1, 0, 0}, {x + 1, y + 1, 0, 0}, {x, y, 0, 0}};
    for (const tagZoRectInfo& pen : pens) {
        const bool isOnTop = &pen == std::end(pens) - 1;
        word.color =
            isOnTop ? tagZoColorRGBA{250, 246, 236, alpha} : tagZoColorRGBA{0, 0, 0, alpha};
        Check("text", surface.ZoDrawText(frame, &word, &pen));
    }
}

// Draws the subtitles at a strength from 0, invisible, to 100.
void Draw(ZoGLDrawSurface& surface, unsigned int frame, unsigned int strength) {
    const tagZoRectInfo all = {0, 0, width, height};
    const tagZoColorRGBA nothing = {0, 0, 0, 0};
    Check("clearing", surface.ZoDrawRect(frame, &all, &nothing));
    const auto alpha = static_cast<unsigned char>(strength * 255 / 100);
    for (size_t i = 0; i < std::size(lines); ++i) {
        const unsigned int lineWidth = LayOut(surface, lines[i], [](auto&, unsigned) {});
        const unsigned int left = lineWidth + 4 < width ? (width - lineWidth) / 2 : 2;
        LayOut(surface, lines[i], [&](const tagZoTextInfo& word, unsigned int x) {
            DrawOutlined(surface, frame, word, left + x, baselines[i], alpha);
        });
    }
    const tagZoBlitInfo copy = {frame, ZO_WINDOW_HANDLE, all, all};
    Check("copy to the window", surface.ZoBlit(&copy));
}

// Half a second to come, two to stay, half to go, half of nothing.
unsigned int StrengthAt(unsigned int milliseconds) {
    const unsigned int time = milliseconds % 3500;
    return time < 500 ? time / 5 : time < 2500 ? 100 : time < 3000 ? (3000 - time) / 5 : 0;
}

// A window with alpha; overlay.cpp says more about it.
Window OpenWindow(Display* display) {
    XVisualInfo info = {};
    if (display == nullptr ||
        XMatchVisualInfo(display, XDefaultScreen(display), 32, TrueColor, &info) == 0) {
        fputs("subtitles: no X server, or none with transparent windows\n", stderr);
        exit(EXIT_FAILURE);
    }
    XSetWindowAttributes wish = {};
    wish.colormap = XCreateColormap(display, XDefaultRootWindow(display), info.visual, AllocNone);
    wish.event_mask = KeyPressMask;
    const Window window =
        XCreateWindow(display, XDefaultRootWindow(display), 0, 0, width, height, 0, info.depth,
                      InputOutput, info.visual, CWColormap | CWBorderPixel | CWEventMask, &wish);
    XMapWindow(display, window);
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
    if (out != nullptr) {
        const char* wish = getenv("SUBTITLES_STRENGTH");
        Draw(surface, frame, wish == nullptr ? 100U : unsigned(strtoul(wish, nullptr, 10)));
        Check("picture", SaveOverlay(out, width, height) ? ZO_SUCCESS : ZO_FAILURE);
    }
    const auto start = std::chrono::steady_clock::now();
    XEvent event;
    while (out == nullptr && XCheckWindowEvent(display, window, KeyPressMask, &event) == False) {
        const std::chrono::duration<double, std::milli> time =
            std::chrono::steady_clock::now() - start;
        Draw(surface, frame, StrengthAt(static_cast<unsigned int>(time.count())));
        Check("refresh", surface.ZoRefreshOnSrceen()); // waits for the screen, mostly
    }
    surface.ZoDestoryGLWindowSurface(); // before the window goes
    XCloseDisplay(display);             // takes the window along
    return EXIT_SUCCESS;
}

// An X11 window that is drawn when it is exposed, followed when it is resized, and can be closed.
//
//   plain-x11                  until the window is closed
//   plain-x11 --out FILE.png   resizes its window, saves what it shows then, and ends

#include "common/Picture.h" // for --out only

#include <X11/Xlib.h>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <zogles/ZoGLDrawSurface.h>

namespace {

constexpr unsigned int textSize = 40;
constexpr char fontFile[] = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";

void Check(const char* what, int code) {
    if (code != ZO_SUCCESS) {
        fprintf(stderr, "plain-x11: %s failed with code %d\n", what, code);
        exit(EXIT_FAILURE);
    }
}

// The library asks for the window's size when it is bound. So binding the same window again is how
// to follow a new size; fonts and buffers stay, but this buffer has to become as large.
void FollowSize(ZoGLDrawSurface& surface, Window window, unsigned int* frame) {
    auto* native = reinterpret_cast<ANativeWindow*>(static_cast<uintptr_t>(window));
    Check("binding", surface.ZoCreateGLWindowSurface(native));
    if (*frame != ZO_NO_HANDLE) {
        Check("old buffer", surface.ZoDestoryGLFBO(*frame));
    }
    Check("buffer", surface.ZoCreateGLFBO(frame, surface.ZoGetWindowWidth(),
                                          surface.ZoGetWindowHeight(), ZO_FORMAT_RGBA8888));
}

void DrawCentred(ZoGLDrawSurface& surface, unsigned int frame, const std::u16string& line) {
    tagZoTextInfo text = {};
    text.text = line.data();
    text.length = static_cast<unsigned int>(line.size());
    text.color = {244, 246, 252, 255};
    text.fontSize = textSize;
    unsigned int lineWidth = 0;
    unsigned int unused = 0;
    Check("measuring", surface.ZoGetTextSize(&text, &lineWidth, &unused));
    // Coordinates are unsigned: a line wider than the window must not start left of it.
    const unsigned int width = surface.ZoGetWindowWidth();
    const unsigned int x = lineWidth < width ? (width - lineWidth) / 2 : 0;
    // Figures are somewhat under three quarters of the size high; this centres them.
    const unsigned int baseline = (surface.ZoGetWindowHeight() + textSize * 73 / 100) / 2;
    const tagZoRectInfo pen = {x, baseline, 0, 0};
    Check("text", surface.ZoDrawText(frame, &text, &pen));
}

// Rectangles within one another, each as far from the window's edges: the picture shows at once
// whether the sizes agree.
void Draw(ZoGLDrawSurface& surface, unsigned int frame) {
    const unsigned int width = surface.ZoGetWindowWidth();
    const unsigned int height = surface.ZoGetWindowHeight();
    const struct {
        unsigned int inset;
        tagZoColorRGBA color;
    } layers[] = {{0, {17, 23, 48, 255}}, {24, {255, 200, 87, 255}}, {28, {28, 35, 68, 255}}};
    for (const auto& layer : layers) {
        if (width <= 2 * layer.inset || height <= 2 * layer.inset) {
            break; // too small a window for a frame
        }
        const tagZoRectInfo rect = {layer.inset, layer.inset, width - 2 * layer.inset,
                                    height - 2 * layer.inset};
        Check("rectangle", surface.ZoDrawRect(frame, &rect, &layer.color));
    }
    const std::string size = std::to_string(width) + "x" + std::to_string(height);
    DrawCentred(surface, frame, {size.begin(), size.end()}); // plain ASCII needs no conversion
    // Not ZO_WINDOW_HANDLE: its scale stays that of the first size. Presenting uses the new one.
    const tagZoRectInfo all = {0, 0, width, height};
    Check("presenting", surface.ZoDisplayFBO(frame, &all, &all));
}

struct News {
    bool isResized = false;
    bool isClosed = false;
};

// Waits for an event and takes all that have come: while a user drags an edge of the window, sizes
// come faster than frames can be drawn. Any event is a reason to draw, Expose above all.
News WaitForNews(Display* display, const ZoGLDrawSurface& surface, Atom closing) {
    News news;
    do {
        XEvent event;
        XNextEvent(display, &event);
        if (event.type == ConfigureNotify) { // a move, or a new size
            const XConfigureEvent& now = event.xconfigure;
            news.isResized = static_cast<unsigned>(now.width) != surface.ZoGetWindowWidth() ||
                             static_cast<unsigned>(now.height) != surface.ZoGetWindowHeight();
        } else if (event.type == ClientMessage) {
            news.isClosed |= static_cast<Atom>(event.xclient.data.l[0]) == closing;
        }
    } while (XPending(display) > 0);
    return news;
}

} // namespace

int main(int argc, char* argv[]) {
    const char* out = FindOut(argc, argv);
    setenv("EGL_PLATFORM", "x11", 0); // our window is X11's on a Wayland desktop, too
    Display* display = XOpenDisplay(nullptr);
    if (display == nullptr) {
        fputs("plain-x11: no X server: is DISPLAY set?\n", stderr);
        return EXIT_FAILURE;
    }
    const Window window =
        XCreateSimpleWindow(display, XDefaultRootWindow(display), 0, 0, 480, 270, 0, 0, 0);
    XStoreName(display, window, "plain-x11");
    XSelectInput(display, window, ExposureMask | StructureNotifyMask); // when to draw; new sizes
    // Without this, the window manager would end the program when the user closes the window.
    Atom closing = XInternAtom(display, "WM_DELETE_WINDOW", False);
    XSetWMProtocols(display, window, &closing, 1);
    XMapWindow(display, window);
    XSync(display, False); // EGL talks to the server on a connection of its own

    ZoGLDrawSurface surface;
    unsigned int frame = ZO_NO_HANDLE;
    FollowSize(surface, window, &frame);
    Check("font", surface.ZoLoadFont(fontFile, textSize));
    for (News news; !news.isClosed;) {
        news = WaitForNews(display, surface, closing);
        if (news.isResized) {
            FollowSize(surface, window, &frame);
        }
        Draw(surface, frame);
        if (out != nullptr && news.isResized) {
            const bool isSaved =
                SavePicture(out, surface.ZoGetWindowWidth(), surface.ZoGetWindowHeight());
            Check("picture", isSaved ? ZO_SUCCESS : ZO_FAILURE);
            news.isClosed = true;
        } else if (out != nullptr) {
            XResizeWindow(display, window, 640, 360); // what the user does otherwise
        }
        Check("refresh", surface.ZoRefreshOnSrceen());
    }
    surface.ZoDestoryGLWindowSurface(); // before the window goes
    XCloseDisplay(display);             // takes the window along
    return EXIT_SUCCESS;
}

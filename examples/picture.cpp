// A PNG file, as large as the window allows without changing its shape.
//
//   picture FILE.png                      until a key is pressed
//   picture FILE.png --out RESULT.png     saves what the window shows, and ends
//
// The window is cleared to black around the picture, and shows through where the file is transparent.

#include "common/Picture.h" // for --out only

#include <X11/Xlib.h>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <png.h>
#include <vector>
#include <zogles/ZoGLDrawSurface.h>

namespace {

constexpr unsigned int width = 640;
constexpr unsigned int height = 360;

void Check(const char* what, int code) {
    if (code != ZO_SUCCESS) {
        fprintf(stderr, "picture: %s failed with code %d\n", what, code);
        exit(EXIT_FAILURE);
    }
}

struct Pixels {
    unsigned int width;
    unsigned int height;
    std::vector<unsigned char> bytes;
};

// libpng turns any PNG file into what the library takes: red, green, blue and alpha, a byte each, not
// multiplied, rows from the top.
Pixels ReadPng(const char* path) {
    png_image file = {};
    file.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_file(&file, path) != 0) {
        file.format = PNG_FORMAT_RGBA;
        Pixels pixels = {file.width, file.height, {}};
        pixels.bytes.resize(PNG_IMAGE_SIZE(file));
        if (png_image_finish_read(&file, nullptr, pixels.bytes.data(), 0, nullptr) != 0) {
            return pixels;
        }
    }
    fprintf(stderr, "picture: %s: %s\n", path, file.message);
    exit(EXIT_FAILURE);
}

// The largest rectangle of the picture's shape in the middle of the window. The comparison is that
// of the two shapes, width by height, without a division.
tagZoRectInfo Fit(const Pixels& pixels) {
    const uint64_t wide = uint64_t{pixels.width} * height;
    const uint64_t tall = uint64_t{pixels.height} * width;
    tagZoRectInfo fit = {0, 0, width, height};
    if (wide > tall) {
        fit.height = static_cast<unsigned int>(tall / pixels.width);
    } else {
        fit.width = static_cast<unsigned int>(wide / pixels.height);
    }
    fit.x = (width - fit.width) / 2;
    fit.y = (height - fit.height) / 2;
    return fit;
}

// The pixels go to the driver at each call, so this suits a still that is shown now and then.
void Draw(ZoGLDrawSurface& surface, const Pixels& pixels) {
    tagZoBitmapInfo bitmap = {};
    bitmap.data = pixels.bytes.data();
    bitmap.format = ZO_FORMAT_RGBA8888;
    bitmap.width = pixels.width;
    bitmap.height = pixels.height;
    bitmap.rect = Fit(pixels);
    Check("bitmap", surface.ZoDisplayBitmap(&bitmap));
}

} // namespace

int main(int argc, char* argv[]) {
    if (argc < 2) {
        fputs("usage: picture FILE.png [--out RESULT.png]\n", stderr);
        return EXIT_FAILURE;
    }
    const char* out = FindOut(argc - 1, argv + 1);
    const Pixels pixels = ReadPng(argv[1]);
    setenv("EGL_PLATFORM", "x11", 0); // our window is X11's on a Wayland desktop, too
    Display* display = XOpenDisplay(nullptr);
    if (display == nullptr) {
        fputs("picture: no X server: is DISPLAY set?\n", stderr);
        return EXIT_FAILURE;
    }
    const Window window =
        XCreateSimpleWindow(display, XDefaultRootWindow(display), 0, 0, width, height, 0, 0, 0);
    XSelectInput(display, window, ExposureMask | KeyPressMask);
    XMapWindow(display, window);
    XSync(display, False); // EGL talks to the server on a connection of its own

    ZoGLDrawSurface surface;
    auto* native = reinterpret_cast<ANativeWindow*>(static_cast<uintptr_t>(window));
    Check("binding", surface.ZoCreateGLWindowSurface(native));
    if (out != nullptr) {
        Draw(surface, pixels);
        Check("saving", SavePicture(out, width, height) ? ZO_SUCCESS : ZO_FAILURE);
        Check("refresh", surface.ZoRefreshOnSrceen());
    }
    for (XEvent event = {}; out == nullptr && event.type != KeyPress;) {
        XNextEvent(display, &event);
        if (event.type == Expose) { // the window came to light, or a part of it
            Draw(surface, pixels);
            Check("refresh", surface.ZoRefreshOnSrceen());
        }
    }
    surface.ZoDestoryGLWindowSurface(); // before the window goes
    XCloseDisplay(display);             // takes the window along
    return EXIT_SUCCESS;
}

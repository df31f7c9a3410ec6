#include "Support.h"

#include "support/Harness.h"

#include <X11/Xlib.h>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

#include FT_OUTLINE_H

namespace {

constexpr unsigned int windowWidth = 160;
constexpr unsigned int windowHeight = 120;
constexpr int charactersOfFont = 300;
constexpr FT_Pos largestGlyph = 2048; // pixels a side
constexpr FT_ULong lastCharacter = 0x10FFFF;

int messages = STDERR_FILENO;

struct Screen {
    Screen() : display(XOpenDisplay(nullptr)), windows() {
        fuzz::Require(display != nullptr, "the fuzz targets need an X server", 0);
        for (Window& window : windows) {
            window = XCreateSimpleWindow(display, XDefaultRootWindow(display), 0, 0, windowWidth,
                                         windowHeight, 0, 0, 0);
            XMapWindow(display, window);
        }
        XSync(display, False);
    }

    Display* display;
    Window windows[fuzz::windowCount];
};

Screen& TheScreen() {
    static Screen screen;
    return screen;
}

bool IsHuge(FT_GlyphSlot glyph) {
    if (glyph->format != FT_GLYPH_FORMAT_OUTLINE) {
        return false;
    }
    FT_BBox box;
    FT_Outline_Get_CBox(&glyph->outline, &box);
    return (box.xMax - box.xMin) >> 6 > largestGlyph || (box.yMax - box.yMin) >> 6 > largestGlyph;
}

// A broken font can request a gigabyte per glyph, and FreeType would fill it.
FT_Error LoadUnlessHuge(FT_Face face, FT_ULong code, FT_Int32 flags) {
    FT_Error error = FT_Load_Char(face, code, flags & ~FT_LOAD_RENDER);
    if (error == 0 && IsHuge(face->glyph)) {
        error = FT_Err_Raster_Overflow;
    }
    const bool isRendered = error == 0 && (flags & FT_LOAD_RENDER) != 0;
    return isRendered ? FT_Render_Glyph(face->glyph, FT_RENDER_MODE_NORMAL) : error;
}

} // namespace

namespace fuzz {

ANativeWindow* WindowOf(unsigned int number) {
    return reinterpret_cast<ANativeWindow*>(
        static_cast<uintptr_t>(TheScreen().windows[number % windowCount]));
}

void ResizeWindow(unsigned int number, unsigned int width, unsigned int height) {
    XResizeWindow(TheScreen().display, TheScreen().windows[number % windowCount], width, height);
    XSync(TheScreen().display, False);
}

void Require(bool isTrue, const char* what, long long value) {
    if (!isTrue) {
        dprintf(messages, "FAILED: %s: %lld\n", what, value);
        abort();
    }
}

void RequireCode(const char* operation, int code, std::initializer_list<int> documented) {
    for (const int known : documented) {
        if (code == known) {
            return;
        }
    }
    Require(false, operation, code);
}

void RequireNothingLeft(std::unique_ptr<ZoGLDrawSurface> surface) {
    surface.reset();
    const std::string live = harness::DescribeLive();
    Require(live.empty(), live.c_str(), 0);
}

void LimitFreeType() {
    static int visited = 0; // of the current font
    harness::State& state = harness::Current();
    state.loadChar = LoadUnlessHuge;
    state.firstChar = [](FT_Face face, FT_UInt* index) {
        visited = 1;
        return FT_Get_First_Char(face, index);
    };
    state.nextChar = [](FT_Face face, FT_ULong code, FT_UInt* index) {
        Require(code <= lastCharacter, "characters above Unicode", static_cast<long long>(code));
        *index = 0;
        return ++visited > charactersOfFont ? 0 : FT_Get_Next_Char(face, code, index);
    };
}

} // namespace fuzz

// The fuzzer closes stderr to silence the log. The checks keep their own copy of it.
extern "C" int LLVMFuzzerInitialize(int*, char***) {
    messages = dup(STDERR_FILENO);
    return 0;
}

// Drivers stay loaded, so that the leak checker can name the driver in a leak's stack.
extern "C" int dlclose(void*) {
    return 0;
}

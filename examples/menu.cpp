// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// A list that scrolls with the keys Up and Down, on an SDL window.
//
//   menu                  Enter prints the row, Esc exits
//   menu --out FILE.png   presses a few keys, saves what the window shows, and exits
//
// All rows are drawn once into a tall buffer, and each frame copies the visible part. A
// rectangle's edge does not clip text, but a copy clips: so the list is a buffer and a copy.

#include "common/Example.h"
#include "common/Picture.h"

#include <SDL.h>
#include <SDL_syswm.h>
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr unsigned int width = 640;
constexpr unsigned int height = 360;
constexpr unsigned int textSize = 24;
constexpr unsigned int rowsShown = 6;
constexpr unsigned int rowHeight = 48;
constexpr tagZoRectInfo place = {40, 36, 536, rowsShown* rowHeight}; // of the list on the window
constexpr tagZoColorRGBA ground = {17, 23, 48, 255};
constexpr tagZoColorRGBA panel = {28, 35, 68, 255};
// Single words: a space has no width when it is drawn. docs/text.md shows how to lay out lines.
constexpr std::u16string_view items[] = {u"Aperture", u"Brightness", u"Contrast",  u"Focus",
                                         u"Gain",     u"Hue",        u"Language",  u"Network",
                                         u"Rotation", u"Saturation", u"Sharpness", u"Volume"};
constexpr unsigned int itemCount = std::size(items);

struct Menu {
    ZoGLDrawSurface& surface;
    unsigned int list = ZO_NO_HANDLE; // a buffer with all rows
    unsigned int chosen = 0;
    unsigned int first = 0; // the topmost row that is shown

    void Fill(unsigned int target, const tagZoRectInfo& rect, const tagZoColorRGBA& color) {
        Check("rectangle", surface.ZoDrawRect(target, &rect, &color));
    }

    void DrawItem(unsigned int target, unsigned int index, unsigned int x, unsigned int y,
                  const tagZoColorRGBA& color) {
        const tagZoTextInfo text = ToText(items[index], color);
        const tagZoRectInfo pen = {x + 20, y + 33, 0, 0}; // centres capitals in the row
        Check("text", surface.ZoDrawText(target, &text, &pen));
    }

    void PaintList() {
        const tagZoRectInfo all = {0, 0, place.width, rowHeight * itemCount};
        Check("buffer", surface.ZoCreateGLFBO(&list, all.width, all.height, ZO_FORMAT_RGBA8888));
        Fill(list, all, panel);
        for (unsigned int i = 0; i < itemCount; ++i) {
            DrawItem(list, i, 0, i * rowHeight, {244, 246, 252, 255});
        }
    }

    // Draws on the window itself, which shows nothing before the refresh.
    void Draw() {
        Fill(ZO_WINDOW_HANDLE, {0, 0, width, height}, ground);
        const tagZoRectInfo part = {0, first * rowHeight, place.width, place.height};
        const tagZoBlitInfo copy = {list, ZO_WINDOW_HANDLE, part, place};
        Check("copy to the window", surface.ZoBlit(&copy));
        const unsigned int y = place.y + (chosen - first) * rowHeight;
        Fill(ZO_WINDOW_HANDLE, {place.x, y, place.width, rowHeight}, {255, 200, 87, 255});
        DrawItem(ZO_WINDOW_HANDLE, chosen, place.x, y, ground);
        // The bar shows which part of the list is visible.
        tagZoRectInfo bar = {place.x + place.width + 16, place.y, 8, place.height};
        Fill(ZO_WINDOW_HANDLE, bar, panel);
        bar.y += first * place.height / itemCount;
        bar.height = rowsShown * place.height / itemCount;
        Fill(ZO_WINDOW_HANDLE, bar, {112, 122, 164, 255});
    }

    bool Handle(const SDL_Event& event) {
        const SDL_Keycode key = event.type == SDL_KEYDOWN ? event.key.keysym.sym : SDLK_UNKNOWN;
        if (key == SDLK_UP && chosen > 0) {
            --chosen;
        } else if (key == SDLK_DOWN && chosen + 1 < itemCount) {
            ++chosen;
        } else if (key == SDLK_RETURN) {
            printf("row %u\n", chosen);
        }
        // The list scrolls only as far as needed to show the chosen row.
        first = std::max(std::min(first, chosen) + rowsShown, chosen + 1) - rowsShown;
        return event.type != SDL_QUIT && key != SDLK_ESCAPE; // whether the user stays
    }
};

// Not SDL_WINDOW_OPENGL: the library creates its own context.
ANativeWindow* OpenWindow() {
    setenv("EGL_PLATFORM", "x11", 0); // also on a Wayland desktop
    SDL_SetHint(SDL_HINT_VIDEODRIVER, "x11");
    SDL_Window* window = SDL_Init(SDL_INIT_VIDEO) == 0
                             ? SDL_CreateWindow("menu", 0, 0, width, height, SDL_WINDOW_SHOWN)
                             : nullptr;
    SDL_SysWMinfo info;
    SDL_VERSION(&info.version);
    if (window == nullptr || SDL_GetWindowWMInfo(window, &info) == SDL_FALSE ||
        info.subsystem != SDL_SYSWM_X11) {
        fprintf(stderr, "menu: no X11 window: %s\n", SDL_GetError());
        exit(EXIT_FAILURE);
    }
    return reinterpret_cast<ANativeWindow*>(static_cast<uintptr_t>(info.info.x11.window));
}

// Presses some keys, for the picture.
void Press(Menu& menu) {
    SDL_Event press = {};
    press.type = SDL_KEYDOWN;
    for (int i = 0; i < 10; ++i) {
        press.key.keysym.sym = i < 8 ? SDLK_DOWN : SDLK_UP;
        menu.Handle(press);
    }
}

} // namespace

int main(int argc, char* argv[]) {
    const Arguments arguments = ReadArguments(argc, argv);
    ZoGLDrawSurface surface;
    Check("binding", surface.ZoCreateGLWindowSurface(OpenWindow()));
    Check("font", surface.ZoLoadFont(fontFile, textSize));
    Menu menu = {surface};
    menu.PaintList();
    if (arguments.out != nullptr) {
        Press(menu);
        menu.Draw();
        WritePng(arguments.out, ReadWindow(surface, width, height));
    }
    for (bool stays = arguments.out == nullptr; stays;) {
        menu.Draw();
        Check("refresh", surface.ZoRefreshOnSrceen());
        SDL_Event event;
        stays = SDL_WaitEvent(&event) != 0 && menu.Handle(event);
    }
    surface.ZoDestoryGLWindowSurface(); // before its window is destroyed
    SDL_Quit();                         // destroys the window, too
    return EXIT_SUCCESS;
}

#include "OsdWindow.h"

#include <SDL_syswm.h>

#include <cstdint>
#include <cstdio>

OsdWindow::OsdWindow(int width, int height)
    : window(SDL_CreateWindow("zogles OSD", SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, width,
                              height, SDL_WINDOW_SHOWN)) {
    if (window == nullptr) {
        fprintf(stderr, "zogles-osd: no window: %s\n", SDL_GetError());
        return;
    }
    SDL_PumpEvents();
}

OsdWindow::~OsdWindow() {
    if (window != nullptr) {
        SDL_DestroyWindow(window);
    }
}

ANativeWindow* OsdWindow::GetNativeWindow() const {
    SDL_SysWMinfo info;
    SDL_VERSION(&info.version);
    if (SDL_GetWindowWMInfo(window, &info) == SDL_FALSE || info.subsystem != SDL_SYSWM_X11) {
        fprintf(stderr, "zogles-osd: the window is none of X11's\n");
        return nullptr;
    }
    return reinterpret_cast<ANativeWindow*>(static_cast<uintptr_t>(info.info.x11.window));
}

bool OsdWindow::HandleEvents() {
    bool stays = true;
    SDL_Event event;
    while (SDL_PollEvent(&event) != 0) {
        const bool isEscape = event.type == SDL_KEYDOWN && event.key.keysym.sym == SDLK_ESCAPE;
        stays = stays && event.type != SDL_QUIT && !isEscape;
    }
    return stays;
}

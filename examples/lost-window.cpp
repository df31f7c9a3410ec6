// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// A window is closed, another one opens, and the buffers are painted again.
//
// Buffers keep their handles but lose their contents. Fonts must be loaded again.
//
//   lost-window                  closes its first window after two seconds; a key closes the second
//   lost-window --out FILE.png   saves what the second window shows, and exits

#include "common/XWindow.h"

#include <cstdlib>
#include <memory>
#include <unistd.h>

namespace {

constexpr unsigned int width = 640;
constexpr unsigned int height = 360;
constexpr unsigned int textSize = 24;
constexpr tagZoRectInfo card = {0, 0, 232, 176};
constexpr unsigned int cardTop = 72;
constexpr unsigned int leftCard = 68;
constexpr unsigned int rightCard = 340;
constexpr tagZoColorRGBA ground = {17, 23, 48, 255};

void Fill(ZoGLDrawSurface& surface, unsigned int target, const tagZoRectInfo& rect,
          const tagZoColorRGBA& color) {
    Check("rectangle", surface.ZoDrawRect(target, &rect, &color));
}

void DrawWord(ZoGLDrawSurface& surface, unsigned int target, std::u16string_view word,
              unsigned int centre, unsigned int baseline) {
    const tagZoTextInfo text = ToText(word, {244, 246, 252, 255});
    unsigned int wordWidth = 0;
    unsigned int unused = 0;
    Check("measuring", surface.ZoGetTextSize(&text, &wordWidth, &unused));
    const tagZoRectInfo pen = {centre - wordWidth / 2, baseline, 0, 0};
    Check("text", surface.ZoDrawText(target, &text, &pen));
}

// Separate from creating the buffers: after the loss of a window, only painting is repeated.
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

// Prepares a new window for drawing.
std::unique_ptr<XWindow> OpenWindow(ZoGLDrawSurface& surface) {
    auto window = std::make_unique<XWindow>(width, height);
    Check("binding", surface.ZoCreateGLWindowSurface(window->Show()));
    Check("font", surface.ZoLoadFont(fontFile, textSize));
    return window;
}

void DrawFirstWindow(ZoGLDrawSurface& surface, unsigned int buffer) {
    Paint(surface, buffer);
    Fill(surface, ZO_WINDOW_HANDLE, {0, 0, width, height}, ground);
    Show(surface, buffer, leftCard);
    Check("refresh", surface.ZoRefreshOnSrceen());
}

// The handle is valid again and names a transparent buffer.
void DrawSecondWindow(ZoGLDrawSurface& surface, unsigned int buffer) {
    Fill(surface, ZO_WINDOW_HANDLE, {0, 0, width, height}, ground);
    Fill(surface, ZO_WINDOW_HANDLE, {leftCard - 2, cardTop - 2, card.width + 4, card.height + 4},
         {112, 122, 164, 255}); // a frame around the black of the cleared buffer
    Show(surface, buffer, leftCard);
    Paint(surface, buffer);
    Show(surface, buffer, rightCard);
    DrawWord(surface, ZO_WINDOW_HANDLE, u"cleared", leftCard + card.width / 2, 288);
    DrawWord(surface, ZO_WINDOW_HANDLE, u"repainted", rightCard + card.width / 2, 288);
}

} // namespace

int main(int argc, char* argv[]) {
    const Arguments arguments = ReadArguments(argc, argv);
    ZoGLDrawSurface surface;
    std::unique_ptr<XWindow> window = OpenWindow(surface);
    unsigned int buffer = ZO_NO_HANDLE;
    Check("buffer", surface.ZoCreateGLFBO(&buffer, card.width, card.height, ZO_FORMAT_RGBA8888));
    DrawFirstWindow(surface, buffer);
    sleep(arguments.out == nullptr ? 2 : 0);

    // Release the surface before its window is destroyed, and do not draw until it is bound again.
    surface.ZoDestoryGLWindowSurface();
    window = nullptr;

    window = OpenWindow(surface);
    DrawSecondWindow(surface, buffer);
    if (arguments.out != nullptr) {
        window->Save(surface, arguments.out);
    }
    Check("refresh", surface.ZoRefreshOnSrceen());
    while (arguments.out == nullptr && window->WaitForExpose()) {
    }
    surface.ZoDestoryGLWindowSurface();
    return EXIT_SUCCESS;
}

// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "Client.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <GLES2/gl2.h>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>

namespace {

constexpr size_t poolSize = 15;
constexpr unsigned int allComponents = ZO_COMPONENT_TEXT | ZO_COMPONENT_BLIT | ZO_COMPONENT_BITMAP |
                                       ZO_COMPONENT_RECT | ZO_COMPONENT_FRAME | ZO_COMPONENT_FBO;
constexpr tagZoRectInfo all = {0, 0, Client::largestSide, Client::largestSide};
constexpr tagZoRectInfo somewhere = {10, 60, 100, 40};
constexpr tagZoColorRGBA white = {255, 255, 255, 255};

constexpr char ordinaryFont[] = "/usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf";
constexpr const char* fonts[] = {
    ordinaryFont,
    "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf",
    "/usr/share/fonts/truetype/dejavu/DejaVuSans-Bold.ttf",
};
// Has Chinese, and tens of thousands of characters more than textures hold: slow, so loaded seldom.
constexpr char hugeFont[] = "/usr/share/fonts/opentype/unifont/unifont.otf";

struct Script {
    char16_t first;
    unsigned int count;
};
constexpr Script scripts[] = {
    {u'!', 94},      // Latin
    {0x0410, 64},    // Cyrillic
    {0xFE80, 112},   // Arabic, presentation forms
    {0x4E00, 20000}, // Chinese; a font without it shows its box
};

void Expect(const char* what, int value, int expected = ZO_SUCCESS) {
    if (value != expected) {
        throw std::runtime_error(std::string(what) + ": " + std::to_string(value) + ", not " +
                                 std::to_string(expected));
    }
}

} // namespace

Client::Client(unsigned int seed) : random(seed), display(XOpenDisplay(nullptr)) {
    if (display == nullptr) {
        throw std::runtime_error("no X server");
    }
    // Another EGL display keeps the driver loaded while the window is lost. Mesa leaks when it unloads
    // a driver, which would hide leaks of the library.
    eglInitialize(eglGetPlatformDisplay(EGL_PLATFORM_X11_KHR, display, nullptr), nullptr, nullptr);
    OpenWindow();
    Bind();
    LoadFont(ordinaryFont, 40);
}

void Client::Step(bool mayLose) {
    const unsigned int draw = AnyBelow(400);
    if (draw < 1 && mayLose) {
        Lose();
    } else if (draw < 2) {
        BindOther();
    } else if (draw < 4) {
        LoadAnyFont();
    } else if (draw < 8) {
        ResizeWindow(AnySize());
    } else if (draw < 16) {
        CheckPixel();
    } else if (draw < 30) {
        ShowBitmap(1 + AnyBelow(128), 1 + AnyBelow(128));
    } else if (draw < 60) {
        CreateBuffer(AnySize());
    } else if (draw < 80 && !buffers.empty()) {
        DestroyBuffer(AnyBelow(static_cast<unsigned int>(buffers.size())));
    } else {
        Frame();
    }
}

void Client::Settle(bool loses) {
    for (size_t i = buffers.size(); i <= poolSize; ++i) { // and one more, which fails
        CreateBuffer(AnySize());
    }
    while (!buffers.empty()) {
        DestroyBuffer(buffers.size() - 1);
    }
    if (loses) {
        Lose();
    }
    ResizeWindow(all);
    LoadFont(ordinaryFont, 40);
    Expect("init", surface.Init(allComponents));
    CreateBuffer(all);
    for (int frame = 0; frame < 4; ++frame) { // drivers keep what the last frames needed
        ShowBitmap(16, 16);
        CheckPixel();
        for (unsigned char bold = 0; bold < 2; ++bold) {
            const tagZoTextInfo info = {u"Idle", 4, white, white, 0, 40, bold, 0, 0};
            Expect("text", surface.ZoDrawText(ZO_WINDOW_HANDLE, &info, &somewhere));
        }
        Expect("refresh", surface.ZoRefreshOnSrceen());
        glFinish();
    }
    DestroyBuffer(0);
}

void Client::OpenWindow() {
    window = XCreateSimpleWindow(display, XDefaultRootWindow(display), 0, 0, 640, 360, 0, 0, 0);
    XMapWindow(display, window);
    XSync(display, False);
}

void Client::ResizeWindow(const tagZoRectInfo& size) {
    XResizeWindow(display, window, size.width, size.height);
    XSync(display, False);
}

void Client::Bind() {
    auto* const native = reinterpret_cast<ANativeWindow*>(static_cast<uintptr_t>(window));
    Expect("bind", surface.ZoCreateGLWindowSurface(native));
}

// Binds another window while one is bound.
void Client::BindOther() {
    const Window old = window;
    OpenWindow();
    Bind();
    XDestroyWindow(display, old);
}

void Client::Lose() {
    surface.ZoDestoryGLWindowSurface();
    Expect("refresh unbound", surface.ZoRefreshOnSrceen(), ZO_NO_EGL_MANAGER);
    if (OneIn(2)) {
        XDestroyWindow(display, window);
        OpenWindow();
    }
    Bind();
    LoadFont(ordinaryFont, 40);
    ++counts.losses;
}

void Client::Frame() {
    for (unsigned int i = AnyBelow(9); i > 0; --i) {
        if (OneIn(3)) {
            DrawRect();
        } else if (OneIn(2)) {
            Blit();
        } else {
            DrawText();
        }
    }
    const Buffer buffer = AnyBuffer();
    const tagZoRectInfo source = AnyRect(buffer.width, buffer.height);
    const tagZoRectInfo target = AnyRect(surface.ZoGetWindowWidth(), surface.ZoGetWindowHeight());
    Expect("present", surface.ZoDisplayFBO(buffer.handle, &source, &target));
    Expect("refresh", surface.ZoRefreshOnSrceen());
    ++counts.frames;
}

void Client::DrawRect() {
    const Buffer buffer = AnyBuffer();
    const tagZoRectInfo rect = AnyRect(buffer.width, buffer.height);
    const tagZoColorRGBA color = AnyColor();
    const unsigned int target = OneIn(8) ? ZO_WINDOW_HANDLE : buffer.handle;
    Expect("rectangle", surface.ZoDrawRect(target, &rect, &color));
}

void Client::Blit() {
    const Buffer from = AnyBuffer();
    const Buffer to = OneIn(3) ? from : AnyBuffer();
    const tagZoBlitInfo info = {from.handle, to.handle, AnyRect(from.width, from.height),
                                AnyRect(to.width, to.height)};
    Expect("blit", surface.ZoBlit(&info));
}

// Draws a text and measures it.
void Client::DrawText() {
    const Buffer buffer = AnyBuffer();
    const tagZoRectInfo rect = AnyRect(buffer.width, buffer.height);
    const tagZoTextInfo info = AnyText();
    const unsigned int target = OneIn(8) ? ZO_WINDOW_HANDLE : buffer.handle;
    Expect("text", surface.ZoDrawText(target, &info, &rect));
    unsigned int width = 0;
    unsigned int height = 0;
    Expect("measure", surface.ZoGetTextSize(&info, &width, &height));
    Expect("height of a text", static_cast<int>(height), 50);
    ++counts.texts;
}

void Client::ShowBitmap(unsigned int width, unsigned int height) {
    const std::vector<unsigned char> pixels(size_t{width} * height * 4, 0x80);
    const tagZoBitmapInfo info = {pixels.data(), ZO_FORMAT_RGBA8888, 0, 0, width,
                                  height,        AnySize()};
    Expect("bitmap", surface.ZoDisplayBitmap(&info));
    Expect("refresh", surface.ZoRefreshOnSrceen());
    ++counts.frames;
}

void Client::CreateBuffer(const tagZoRectInfo& size) {
    Buffer buffer = {ZO_NO_HANDLE, size.width, size.height};
    const bool isFull = buffers.size() == poolSize;
    const int code =
        surface.ZoCreateGLFBO(&buffer.handle, size.width, size.height, ZO_FORMAT_RGBA8888);
    Expect("create", code, isFull ? ZO_NO_FREE_FBO : ZO_SUCCESS);
    if (!isFull) {
        buffers.push_back(buffer);
    }
}

void Client::DestroyBuffer(size_t index) {
    Expect("destroy", surface.ZoDestoryGLFBO(buffers[index].handle));
    buffers.erase(buffers.begin() + static_cast<std::ptrdiff_t>(index));
}

void Client::LoadAnyFont() {
    if (OneIn(3)) {
        Expect("no font", surface.ZoLoadFont("/nowhere/missing.ttf", 40), ZO_FONT_FACE_FAILED);
    }
    LoadFont(OneIn(100) ? hugeFont : fonts[AnyBelow(std::size(fonts))],
             OneIn(2) ? 40 : 12 + AnyBelow(60));
}

void Client::LoadFont(const char* path, unsigned int size) {
    Expect(path, surface.ZoLoadFont(path, size));
    ++counts.fonts;
}

// A fill, a copy and a presentation, then the window's pixel: all that drawing goes through.
void Client::CheckPixel() {
    const Buffer from = AnyBuffer();
    const Buffer to = AnyBuffer();
    tagZoColorRGBA color = AnyColor();
    color.a = 255;
    const tagZoBlitInfo copy = {from.handle, to.handle, all, all};
    Expect("rectangle", surface.ZoDrawRect(from.handle, &all, &color));
    Expect("blit", surface.ZoBlit(&copy));
    Expect("present", surface.ZoDisplayFBO(to.handle, &all, &all));
    unsigned char pixel[4] = {};
    glReadPixels(0, 0, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, pixel);
    const bool isAsDrawn = std::abs(pixel[0] - color.r) <= 1 && std::abs(pixel[1] - color.g) <= 1 &&
                           std::abs(pixel[2] - color.b) <= 1 && pixel[3] >= 254;
    Expect("a presented pixel has the colour of the rectangle", isAsDrawn ? 1 : 0, 1);
    Expect("refresh", surface.ZoRefreshOnSrceen());
}

const Client::Buffer& Client::AnyBuffer() {
    if (buffers.empty()) {
        CreateBuffer(AnySize());
    }
    return buffers[AnyBelow(static_cast<unsigned int>(buffers.size()))];
}

// Some reach past their target.
tagZoRectInfo Client::AnyRect(unsigned int width, unsigned int height) {
    return {AnyBelow(width), AnyBelow(height), 1 + AnyBelow(width), 1 + AnyBelow(height)};
}

tagZoColorRGBA Client::AnyColor() {
    const unsigned int bits = AnyBelow(0xFFFFFFFF) | 0x02020202U; // 1 would mean full intensity
    return {static_cast<unsigned char>(bits), static_cast<unsigned char>(bits >> 8),
            static_cast<unsigned char>(bits >> 16), static_cast<unsigned char>(bits >> 24)};
}

// Every font shows the first unit.
tagZoTextInfo Client::AnyText() {
    const Script& script = scripts[AnyBelow(std::size(scripts))];
    text.assign(1, u'A');
    for (unsigned int left = AnyBelow(OneIn(10) ? 200 : 30); left > 0; --left) {
        text += OneIn(6) ? u' ' : static_cast<char16_t>(script.first + AnyBelow(script.count));
    }
    tagZoTextInfo info = {};
    info.text = text.c_str();
    info.length = static_cast<unsigned int>(text.size());
    info.color = AnyColor();
    info.fontSize = 40;
    if (OneIn(2)) {
        info.fontSize = 8 + AnyBelow(80);
        info.bold = OneIn(2) ? 1 : 0;
        info.italic = OneIn(2) ? 1 : 0;
    }
    return info;
}

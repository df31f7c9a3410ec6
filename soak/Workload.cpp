#include "Workload.h"

#include <GLES2/gl2.h>
#include <cstdlib>

namespace {

constexpr size_t poolSize = 15;
constexpr unsigned int largestSide = 640;
constexpr unsigned int longestText = 200;
constexpr unsigned int allComponents = ZO_COMPONENT_TEXT | ZO_COMPONENT_BLIT | ZO_COMPONENT_BITMAP |
                                       ZO_COMPONENT_RECT | ZO_COMPONENT_FRAME | ZO_COMPONENT_FBO;
constexpr tagZoRectInfo somewhere = {10, 60, 100, 40};
constexpr tagZoColorRGBA white = {255, 255, 255, 255};

constexpr char ordinaryFont[] = "/usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf";
constexpr const char* fonts[] = {
    ordinaryFont,
    "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf",
    "/usr/share/fonts/truetype/dejavu/DejaVuSans-Bold.ttf",
    "/usr/share/fonts/truetype/dejavu/DejaVuSerif.ttf",
};
// Has Chinese, and tens of thousands of characters more than textures hold: slow, so loaded seldom.
constexpr char hugeFont[] = "/usr/share/fonts/opentype/unifont/unifont.otf";

struct Script {
    char16_t first;
    unsigned int count;
};
constexpr Script scripts[] = {
    {u'!', 94},      // Latin
    {0x00C0, 0x1BF}, // accented
    {0x0391, 56},    // Greek
    {0x0410, 64},    // Cyrillic
    {0x05D0, 27},    // Hebrew
    {0xFE80, 112},   // Arabic, presentation forms
    {0x4E00, 20000}, // Chinese; a font without it shows its box
};

} // namespace

Workload::Workload(Windows& target, unsigned int seed, std::string noFont)
    : windows(target), random(seed), damagedFont(std::move(noFont)), isLosing(false),
      window(0), counts{} {
    Expect("bind", surface.ZoCreateGLWindowSurface(windows.Get(window)), ZO_SUCCESS);
    LoadFont(ordinaryFont, 40);
}

void Workload::Step() {
    const unsigned int draw = Below(400);
    if (draw < 1 && isLosing) {
        LoseWindow();
    } else if (draw < 2) {
        BindWhileBound();
    } else if (draw < 4) {
        LoadAnyFont();
    } else if (draw < 6) {
        windows.Resize(window, 1 + Below(largestSide), 1 + Below(largestSide));
    } else if (draw < 8) {
        FillPool();
    } else if (draw < 16) {
        CheckPixels();
    } else if (draw < 30) {
        ShowBitmap(1 + Below(128), 1 + Below(128));
    } else if (draw < 50) {
        CallInError();
    } else if (draw < 80) {
        CreateAnyBuffer();
    } else if (draw < 100 && !buffers.empty()) {
        DestroyBuffer(Below(static_cast<unsigned int>(buffers.size())));
    } else {
        Frame();
    }
}

void Workload::Settle() {
    FillPool();
    DestroyBuffers();
    if (isLosing) {
        LoseWindow();
    }
    windows.Resize(window, largestSide, largestSide);
    LoadFont(ordinaryFont, 40);
    Expect("init", surface.Init(allComponents), ZO_SUCCESS);
    CreateBuffer(largestSide, largestSide);
    for (int frame = 0; frame < 4; ++frame) { // drivers keep some frames, and what these needed
        ShowBitmap(16, 16);
        CheckPixels();
        for (unsigned char bold = 0; bold < 2; ++bold) {
            const tagZoTextInfo info = {u"Idle", 4, white, white, 0, 40, bold, 0, 0};
            Expect("text", surface.ZoDrawText(ZO_WINDOW_HANDLE, &info, &somewhere), ZO_SUCCESS);
        }
        Expect("refresh", surface.ZoRefreshOnSrceen(), ZO_SUCCESS);
        glFinish();
    }
    DestroyBuffers();
}

void Workload::Frame() {
    for (unsigned int i = Below(4); i > 0; --i) {
        DrawRect();
    }
    for (unsigned int i = Below(3); i > 0; --i) {
        Blit();
    }
    for (unsigned int i = Below(4); i > 0; --i) {
        DrawText();
    }
    Measure();
    const Buffer buffer = AnyBuffer();
    const tagZoRectInfo source = AnyRect(buffer.width, buffer.height);
    const tagZoRectInfo target = AnyRect(surface.ZoGetWindowWidth(), surface.ZoGetWindowHeight());
    Expect("present", surface.ZoDisplayFBO(buffer.handle, &source, &target), ZO_SUCCESS);
    Expect("refresh", surface.ZoRefreshOnSrceen(), ZO_SUCCESS);
    ++counts.frames;
}

void Workload::DrawRect() {
    const Buffer buffer = AnyBuffer();
    const tagZoRectInfo rect = AnyRect(buffer.width, buffer.height);
    const tagZoColorRGBA color = AnyColor();
    const unsigned int target = OneIn(8) ? ZO_WINDOW_HANDLE : buffer.handle;
    Expect("rectangle", surface.ZoDrawRect(target, &rect, &color), ZO_SUCCESS);
}

void Workload::Blit() {
    const Buffer from = AnyBuffer();
    const Buffer to = OneIn(3) ? from : AnyBuffer();
    const tagZoBlitInfo info = {from.handle, to.handle, AnyRect(from.width, from.height),
                                AnyRect(to.width, to.height)};
    Expect("blit", surface.ZoBlit(&info), ZO_SUCCESS);
}

void Workload::DrawText() {
    const Buffer buffer = AnyBuffer();
    const tagZoRectInfo rect = AnyRect(buffer.width, buffer.height);
    const tagZoTextInfo info = AnyText();
    const unsigned int target = OneIn(8) ? ZO_WINDOW_HANDLE : buffer.handle;
    Expect("text", surface.ZoDrawText(target, &info, &rect), ZO_SUCCESS);
    ++counts.texts;
}

void Workload::Measure() {
    const tagZoTextInfo info = AnyText();
    unsigned int width = 0;
    unsigned int height = 0;
    Expect("measure", surface.ZoGetTextSize(&info, &width, &height), ZO_SUCCESS);
    if (height != 50) {
        throw Surprise("measure: height " + std::to_string(height));
    }
}

void Workload::ShowBitmap(unsigned int width, unsigned int height) {
    const std::vector<unsigned char> pixels(size_t{width} * height * 4, 0x80);
    const tagZoBitmapInfo info = {
        pixels.data(), ZO_FORMAT_RGBA8888, 0, 0, width, height, AnyRect(largestSide, largestSide)};
    Expect("bitmap", surface.ZoDisplayBitmap(&info), ZO_SUCCESS);
    Expect("refresh", surface.ZoRefreshOnSrceen(), ZO_SUCCESS);
    ++counts.frames;
}

void Workload::CreateBuffer(unsigned int width, unsigned int height) {
    Buffer buffer = {ZO_NO_HANDLE, width, height};
    const bool isFull = buffers.size() == poolSize;
    const int code = surface.ZoCreateGLFBO(&buffer.handle, width, height, ZO_FORMAT_RGBA8888);
    Expect("create", code, isFull ? ZO_NO_FREE_FBO : ZO_SUCCESS);
    if (!isFull) {
        buffers.push_back(buffer);
        ++counts.buffers;
    }
}

void Workload::CreateAnyBuffer() {
    const unsigned int width = 1 + Below(largestSide);
    CreateBuffer(width, 1 + Below(largestSide));
}

// To the last buffer, and then one more, which must be refused.
void Workload::FillPool() {
    while (buffers.size() < poolSize) {
        CreateAnyBuffer();
    }
    CreateAnyBuffer();
}

void Workload::DestroyBuffer(size_t index) {
    Expect("destroy", surface.ZoDestoryGLFBO(buffers[index].handle), ZO_SUCCESS);
    buffers.erase(buffers.begin() + static_cast<std::ptrdiff_t>(index));
}

void Workload::DestroyBuffers() {
    while (!buffers.empty()) {
        DestroyBuffer(buffers.size() - 1);
    }
}

void Workload::LoseWindow() {
    surface.ZoDestoryGLWindowSurface();
    unsigned int handle = 0;
    Expect("refresh unbound", surface.ZoRefreshOnSrceen(), ZO_NO_EGL_MANAGER);
    Expect("create unbound", surface.ZoCreateGLFBO(&handle, 8, 8, ZO_FORMAT_RGBA8888), ZO_FAILURE);
    Expect("destroy unbound", surface.ZoDestoryGLFBO(ZO_WINDOW_HANDLE + 1), ZO_NO_FBO_MANAGER);
    if (OneIn(2)) {
        windows.Replace(window);
    }
    window = static_cast<int>(Below(Windows::count));
    Expect("bind again", surface.ZoCreateGLWindowSurface(windows.Get(window)), ZO_SUCCESS);
    LoadFont(ordinaryFont, 40);
    ++counts.losses;
}

void Workload::BindWhileBound() {
    window = static_cast<int>(Below(Windows::count));
    Expect("rebind", surface.ZoCreateGLWindowSurface(windows.Get(window)), ZO_SUCCESS);
    ++counts.rebindings;
}

void Workload::LoadAnyFont() {
    if (OneIn(3)) {
        const char* path = OneIn(2) ? damagedFont.c_str() : "/nowhere/missing.ttf";
        Expect("bad font", surface.ZoLoadFont(path, 40), ZO_FONT_FACE_FAILED);
        ++counts.refusals;
    }
    LoadFont(OneIn(100) ? hugeFont : fonts[Below(std::size(fonts))],
             OneIn(2) ? 40 : 12 + Below(60));
}

void Workload::LoadFont(const char* path, unsigned int size) {
    Expect(path, surface.ZoLoadFont(path, size), ZO_SUCCESS);
    ++counts.fonts;
}

void Workload::CallInError() {
    const tagZoTextInfo info = AnyText();
    const tagZoBlitInfo blit = {AnyBuffer().handle, 7, somewhere, somewhere};
    unsigned int side = 0;
    const int codes[] = {
        surface.ZoDrawRect(ZO_WINDOW_HANDLE, nullptr, &white),
        surface.ZoDrawRect(ZO_NO_HANDLE, &somewhere, &white),
        surface.ZoBlit(nullptr),
        surface.ZoBlit(&blit),
        surface.ZoDisplayFBO(12345, &somewhere, &somewhere),
        surface.ZoDisplayBitmap(nullptr),
        surface.ZoDrawText(ZO_WINDOW_HANDLE, &info, nullptr),
        surface.ZoDrawText(ZO_NO_HANDLE, &info, &somewhere),
        surface.ZoGetTextSize(&info, &side, nullptr),
        surface.ZoLoadFont(nullptr, 40),
        surface.ZoCreateGLFBO(nullptr, 8, 8, ZO_FORMAT_RGBA8888),
        surface.ZoCreateGLWindowSurface(nullptr),
    };
    for (const int code : codes) {
        Expect("erroneous call", code, ZO_INVALID_PARAM);
        ++counts.refusals;
    }
    if (buffers.size() < poolSize) { // larger than any texture: a buffer that shows nothing
        Expect("huge buffer", surface.ZoCreateGLFBO(&side, 100000, 8, ZO_FORMAT_RGBA8888),
               ZO_SUCCESS);
        Expect("huge buffer's end", surface.ZoDestoryGLFBO(side), ZO_SUCCESS);
    }
}

// A fill, a copy and a presentation, then the window's own pixel: all that drawing goes through.
void Workload::CheckPixels() {
    const Buffer from = AnyBuffer();
    const Buffer to = AnyBuffer();
    const tagZoColorRGBA color = {static_cast<unsigned char>(2 + Below(254)),
                                  static_cast<unsigned char>(2 + Below(254)),
                                  static_cast<unsigned char>(2 + Below(254)), 255};
    const tagZoRectInfo all = {0, 0, largestSide, largestSide};
    const tagZoBlitInfo copy = {from.handle, to.handle, all, all};
    Expect("rectangle", surface.ZoDrawRect(from.handle, &all, &color), ZO_SUCCESS);
    Expect("blit", surface.ZoBlit(&copy), ZO_SUCCESS);
    Expect("present", surface.ZoDisplayFBO(to.handle, &all, &all), ZO_SUCCESS);
    unsigned char pixel[4] = {};
    glReadPixels(0, 0, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, pixel);
    const unsigned char expected[] = {color.r, color.g, color.b, 255};
    for (int i = 0; i < 4; ++i) {
        if (std::abs(pixel[i] - expected[i]) > 1) {
            throw Surprise("pixel: channel " + std::to_string(i) + " is " +
                           std::to_string(pixel[i]) + ", not " + std::to_string(expected[i]));
        }
    }
    Expect("refresh", surface.ZoRefreshOnSrceen(), ZO_SUCCESS);
    ++counts.pixels;
}

void Workload::Expect(const char* what, int code, int expected) {
    if (code != expected) {
        throw Surprise(std::string(what) + ": code " + std::to_string(code) + ", not " +
                       std::to_string(expected));
    }
}

const Workload::Buffer& Workload::AnyBuffer() {
    if (buffers.empty()) {
        CreateAnyBuffer();
    }
    return buffers[Below(static_cast<unsigned int>(buffers.size()))];
}

// Now and then it reaches past its target.
tagZoRectInfo Workload::AnyRect(unsigned int width, unsigned int height) {
    return {Below(width), Below(height), 1 + Below(width), 1 + Below(height)};
}

tagZoColorRGBA Workload::AnyColor() {
    const unsigned int bits = Below(0xFFFFFFFF);
    return {static_cast<unsigned char>(bits), static_cast<unsigned char>(bits >> 8),
            static_cast<unsigned char>(bits >> 16), static_cast<unsigned char>(bits >> 24)};
}

// The first unit is one that every font shows, so that each text leaves a mark.
tagZoTextInfo Workload::AnyText() {
    const Script& script = scripts[Below(std::size(scripts))];
    text.assign(1, u'A');
    for (unsigned int left = Below(OneIn(10) ? longestText : 30); left > 0; --left) {
        text += OneIn(6) ? u' ' : static_cast<char16_t>(script.first + Below(script.count));
    }
    const bool isStyled = OneIn(2);
    return {text.c_str(),
            static_cast<unsigned int>(text.size()),
            AnyColor(),
            white,
            0,
            isStyled ? 8 + Below(80) : 40,
            static_cast<unsigned char>(isStyled && OneIn(2)),
            0,
            static_cast<unsigned char>(isStyled && OneIn(2))};
}

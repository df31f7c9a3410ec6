#include "Figure.h"

#include <GLES2/gl2.h>
#include <X11/Xlib.h>
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <png.h>

namespace {

constexpr char font[] = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";
constexpr unsigned int labelSize = 20;
constexpr unsigned int loadedSize = 40; // what plain text of the loaded size is called
constexpr unsigned int square = 8;      // of the checkerboard

void Check(const std::string& what, bool isGood) {
    if (!isGood) {
        fprintf(stderr, "zogles_doc_pictures: %s failed\n", what.c_str());
        exit(EXIT_FAILURE);
    }
}

ANativeWindow* OpenWindow(unsigned int width, unsigned int height) {
    static Display* const display = XOpenDisplay(nullptr);
    Check("the X server", display != nullptr);
    const Window window =
        XCreateSimpleWindow(display, XDefaultRootWindow(display), 0, 0, width, height, 0, 0, 0);
    XMapWindow(display, window);
    XSync(display, False);
    return reinterpret_cast<ANativeWindow*>(static_cast<uintptr_t>(window));
}

tagZoTextInfo ToTextInfo(std::u16string_view text, unsigned int size, Color color) {
    tagZoTextInfo info = {};
    info.text = text.data();
    info.length = static_cast<unsigned int>(text.size());
    info.fontSize = size;
    info.color = color;
    return info;
}

unsigned int ShowChannel(unsigned int color, unsigned int alpha, View view, unsigned int behind) {
    const unsigned int through = behind * (255 - alpha) + 127;
    switch (view) {
    case View::Blended:
        return (color * alpha + through) / 255;
    case View::Composed:
        return std::min((color * 255 + through) / 255, 255U);
    case View::Alpha:
        return alpha;
    default:
        return color;
    }
}

} // namespace

Figure::Figure(unsigned int pageWidth, unsigned int pageHeight)
    : width(pageWidth), height(pageHeight) {
    Check("binding", surface.ZoCreateGLWindowSurface(OpenWindow(width, height)) == ZO_SUCCESS);
    Check(font, surface.ZoLoadFont(font, labelSize) == ZO_SUCCESS);
    page = CreateBuffer(width, height, {255, 255, 255, 255});
    marks = CreateBuffer(width, height, {});
}

unsigned int Figure::CreateBuffer(unsigned int bufferWidth, unsigned int bufferHeight,
                                  Color color) {
    unsigned int buffer = ZO_NO_HANDLE;
    Check("a buffer", surface.ZoCreateGLFBO(&buffer, bufferWidth, bufferHeight,
                                            ZO_FORMAT_RGBA8888) == ZO_SUCCESS);
    Fill(buffer, {0, 0, bufferWidth, bufferHeight}, color);
    return buffer;
}

void Figure::Fill(unsigned int buffer, Rect rect, Color color) {
    Check("a fill", surface.ZoDrawRect(buffer, &rect, &color) == ZO_SUCCESS);
}

void Figure::Blit(unsigned int from, Rect source, unsigned int to, Rect target) {
    const tagZoBlitInfo copy = {from, to, source, target};
    Check("a blit", surface.ZoBlit(&copy) == ZO_SUCCESS);
}

void Figure::DrawText(unsigned int buffer, std::u16string_view text, unsigned int size, Color color,
                      unsigned int x, unsigned int baseline) {
    const tagZoTextInfo info = ToTextInfo(text, size, color);
    const Rect pen = {x, baseline, 0, 0};
    Check("a text", surface.ZoDrawText(buffer, &info, &pen) == ZO_SUCCESS);
}

// Blanks take no room of their own, so words are placed one by one.
void Figure::DrawLabel(unsigned int buffer, std::u16string_view text, Color color, unsigned int x,
                       unsigned int baseline, Align align) {
    std::vector<std::pair<std::u16string_view, unsigned int>> words;
    unsigned int pen = 0;
    while (!text.empty()) {
        const std::u16string_view word = text.substr(0, text.find(u' '));
        const tagZoTextInfo info = ToTextInfo(word, loadedSize, color);
        unsigned int wordWidth = 0;
        unsigned int wordHeight = 0;
        Check("measuring", surface.ZoGetTextSize(&info, &wordWidth, &wordHeight) == ZO_SUCCESS);
        words.emplace_back(word, pen);
        text.remove_prefix(std::min(text.size(), word.size() + 1));
        pen += wordWidth + (text.empty() ? 0 : labelSize / 3);
    }
    const unsigned int start = align == Align::Centre ? x - pen / 2 : x;
    for (const auto& [word, offset] : words) {
        DrawText(buffer, word, loadedSize, color, start + offset, baseline);
    }
}

void Figure::Label(std::u16string_view text, unsigned int x, unsigned int baseline) {
    DrawLabel(page, text, ink, x, baseline, Align::Centre);
}

void Figure::DashOutline(Rect rect, Color color) {
    constexpr unsigned int step = 14;
    constexpr unsigned int dash = 8;
    constexpr unsigned int thick = 2;
    for (unsigned int at = 0; at < rect.width; at += step) {
        const unsigned int length = std::min(dash, rect.width - at);
        Fill(marks, {rect.x + at, rect.y, length, thick}, color);
        Fill(marks, {rect.x + at, rect.y + rect.height - thick, length, thick}, color);
    }
    for (unsigned int at = 0; at < rect.height; at += step) {
        const unsigned int length = std::min(dash, rect.height - at);
        Fill(marks, {rect.x, rect.y + at, thick, length}, color);
        Fill(marks, {rect.x + rect.width - thick, rect.y + at, thick, length}, color);
    }
}

Pixels Figure::Read(unsigned int buffer, unsigned int readWidth, unsigned int readHeight) {
    const Rect all = {0, 0, readWidth, readHeight};
    Blit(buffer, all, ZO_WINDOW_HANDLE, all);
    return ReadWindow(readWidth, readHeight);
}

Pixels Figure::Present(unsigned int buffer, unsigned int readWidth, unsigned int readHeight) {
    const Rect all = {0, 0, readWidth, readHeight};
    Check("presentation", surface.ZoDisplayFBO(buffer, &all, &all) == ZO_SUCCESS);
    return ReadWindow(readWidth, readHeight);
}

// The library leaves the window's framebuffer bound. GL's rows start at the bottom.
Pixels Figure::ReadWindow(unsigned int readWidth, unsigned int readHeight) const {
    Pixels pixels{readWidth, readHeight,
                  std::vector<unsigned char>(size_t{readWidth} * readHeight * 4)};
    for (unsigned int y = 0; y < readHeight; ++y) {
        glReadPixels(0, static_cast<GLint>(surface.ZoGetWindowHeight() - 1 - y),
                     static_cast<GLsizei>(readWidth), 1, GL_RGBA, GL_UNSIGNED_BYTE,
                     &pixels.rgba[size_t{y} * readWidth * 4]);
    }
    return pixels;
}

void Figure::Show(const Pixels& pixels, View view, unsigned int x, unsigned int y,
                  unsigned int zoom) {
    Fill(page, {x - 1, y - 1, pixels.width * zoom + 2, pixels.height * zoom + 2}, faint);
    panels.push_back({pixels, view, x, y, zoom});
}

void Figure::Save(const std::string& path) {
    panels.insert(panels.begin(), {Read(page, width, height), View::Colors, 0, 0, 1});
    panels.push_back({Read(marks, width, height), View::Marks, 0, 0, 1});
    std::vector<unsigned char> rgb(size_t{width} * height * 3);
    for (const Panel& panel : panels) {
        for (unsigned int y = 0; y < panel.pixels.height * panel.zoom; ++y) {
            for (unsigned int x = 0; x < panel.pixels.width * panel.zoom; ++x) {
                const unsigned char* from = panel.pixels.At(x / panel.zoom, y / panel.zoom);
                if (panel.view == View::Marks && from[3] == 0) {
                    continue;
                }
                const unsigned int behind = (x / square + y / square) % 2 == 0 ? 255 : 205;
                unsigned char* to = &rgb[(size_t{panel.y + y} * width + panel.x + x) * 3];
                std::transform(from, from + 3, to, [&](unsigned char color) {
                    return static_cast<unsigned char>(
                        ShowChannel(color, from[3], panel.view, behind));
                });
            }
        }
    }
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = width;
    image.height = height;
    image.format = PNG_FORMAT_RGB;
    Check(path, png_image_write_to_file(&image, path.c_str(), 0, rgb.data(), 0, nullptr) != 0);
}

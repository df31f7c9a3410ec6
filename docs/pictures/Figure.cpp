#include "Figure.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int labelSize = 20;
constexpr int square = 8; // of the checkerboard

int ShowChannel(int color, int alpha, View view, int behind) {
    const int through = behind * (255 - alpha) + 127;
    switch (view) {
    case View::Blended:
        return (color * alpha + through) / 255;
    case View::Composed:
        return std::min((color * 255 + through) / 255, 255);
    case View::Alpha:
        return alpha;
    default:
        return color;
    }
}

unsigned char* At(Picture& picture, int x, int y) {
    return &picture.rgba[(static_cast<size_t>(y) * picture.width + static_cast<size_t>(x)) * 4];
}

} // namespace

Figure::Figure(int width, int height)
    : window(static_cast<unsigned int>(width), static_cast<unsigned int>(height)), canvas(surface),
      typesetter(canvas, labelSize) {
    Check("binding", surface.ZoCreateGLWindowSurface(window.Show()));
    canvas.LoadFont(fontFile, labelSize);
    page = CreateBuffer(width, height, {255, 255, 255, 255});
    cover = Read(page, width, height);
    std::fill(cover.rgba.begin(), cover.rgba.end(), 0);
}

unsigned int Figure::CreateBuffer(int width, int height, const Color& color) {
    const unsigned int buffer = canvas.CreateBuffer(width, height);
    canvas.Fill(buffer, {0, 0, width, height}, color);
    return buffer;
}

void Figure::DrawLabel(unsigned int buffer, std::u16string_view text, const Color& color, int x,
                       int baseline) {
    typesetter.Write(buffer, text, {labelSize, color}, x, baseline);
}

void Figure::Label(std::u16string_view text, int x, int baseline) {
    typesetter.Write(page, text, {labelSize, ink}, x, baseline, Align::Centre);
}

Picture Figure::Read(unsigned int buffer, int width, int height) {
    const Rect all{0, 0, width, height};
    canvas.Copy(buffer, all, ZO_WINDOW_HANDLE, all);
    return ReadWindow(surface, static_cast<unsigned int>(width), static_cast<unsigned int>(height));
}

Picture Figure::Present(unsigned int buffer, int width, int height) {
    canvas.Present(buffer, {0, 0, width, height});
    return ReadWindow(surface, static_cast<unsigned int>(width), static_cast<unsigned int>(height));
}

void Figure::Cover(const Rect& rect, const Color& color) {
    for (int y = rect.y; y < rect.Bottom(); ++y) {
        for (int x = rect.x; x < rect.Right(); ++x) {
            const unsigned char pixel[] = {color.r, color.g, color.b, color.a};
            std::copy(pixel, pixel + 4, At(cover, x, y));
        }
    }
}

void Figure::Show(const Picture& pixels, View view, int x, int y, int zoom) {
    const Rect panel{x, y, static_cast<int>(pixels.width) * zoom,
                     static_cast<int>(pixels.height) * zoom};
    Cover(panel.Inset(-1), faint);
    for (int row = 0; row < panel.height; ++row) {
        for (int column = 0; column < panel.width; ++column) {
            const int behind = (row / square + column / square) % 2 == 0 ? 255 : 205;
            const unsigned char* from = pixels.At(static_cast<unsigned int>(column / zoom),
                                                  static_cast<unsigned int>(row / zoom));
            std::transform(from, from + 3, At(cover, x + column, y + row), [&](int color) {
                return static_cast<unsigned char>(ShowChannel(color, from[3], view, behind));
            });
        }
    }
}

void Figure::DashOutline(const Rect& rect, const Color& color) {
    constexpr int step = 14;
    constexpr int dash = 8;
    constexpr int thick = 2;
    for (int at = 0; at < rect.width; at += step) {
        const int length = std::min(dash, rect.width - at);
        Cover({rect.x + at, rect.y, length, thick}, color);
        Cover({rect.x + at, rect.Bottom() - thick, length, thick}, color);
    }
    for (int at = 0; at < rect.height; at += step) {
        const int length = std::min(dash, rect.height - at);
        Cover({rect.x, rect.y + at, thick, length}, color);
        Cover({rect.Right() - thick, rect.y + at, thick, length}, color);
    }
}

void Figure::Save(const std::string& path) {
    Picture picture = Read(page, static_cast<int>(cover.width), static_cast<int>(cover.height));
    for (size_t i = 0; i < picture.rgba.size(); i += 4) {
        if (cover.rgba[i + 3] != 0) {
            std::copy_n(&cover.rgba[i], 4, &picture.rgba[i]);
        }
    }
    Check(path.c_str(), canvas.IsGood() ? ZO_SUCCESS : ZO_FAILURE);
    WritePng(path, picture);
}

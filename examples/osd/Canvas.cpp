// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "Canvas.h"

#include <cstdio>
#include <cstring>

namespace {

constexpr int mostReports = 10;

tagZoTextInfo ToRecord(std::u16string_view text, const TextStyle& style) {
    tagZoTextInfo info{};
    info.text = text.data();
    info.length = static_cast<unsigned int>(text.size());
    info.color = style.color;
    info.fontSize = style.fontSize;
    info.bold = style.bold ? 1 : 0;
    info.italic = style.italic ? 1 : 0;
    return info;
}

// The start of a row or column of a picture that is stretched to a length.
int Place(int start, int length, unsigned int index, unsigned int count) {
    return std::max(start + length * static_cast<int>(index) / static_cast<int>(count), 0);
}

} // namespace

Canvas::Canvas(ZoGLDrawSurface& target) : surface(target) {}

void Canvas::Check(int code, const char* operation) {
    if (code == ZO_SUCCESS) {
        return;
    }
    ++failures;
    if (failures <= mostReports) {
        fprintf(stderr, "zogles-osd: %s failed with code %d\n", operation, code);
    }
}

Rect Canvas::GetWindowRect() const {
    return {0, 0, static_cast<int>(surface.ZoGetWindowWidth()),
            static_cast<int>(surface.ZoGetWindowHeight())};
}

void Canvas::LoadFont(const std::string& path, int pixels) {
    Check(surface.ZoLoadFont(path.c_str(), static_cast<unsigned int>(pixels)), path.c_str());
}

unsigned int Canvas::CreateBuffer(int width, int height) {
    unsigned int buffer = ZO_NO_HANDLE;
    Check(surface.ZoCreateGLFBO(&buffer, static_cast<unsigned int>(width),
                                static_cast<unsigned int>(height), ZO_FORMAT_RGBA8888),
          "creating a buffer");
    return buffer;
}

void Canvas::DestroyBuffer(unsigned int buffer) {
    Check(surface.ZoDestoryGLFBO(buffer), "destroying a buffer");
}

void Canvas::Fill(unsigned int buffer, const Rect& rect, const Color& color) {
    const tagZoRectInfo rectRecord = ToRecord(rect);
    Check(surface.ZoDrawRect(buffer, &rectRecord, &color), "drawing a rectangle");
}

// Draws pixels into a buffer as rectangles, one for each run of equal colour.
void Canvas::Paint(unsigned int buffer, const Picture& picture, const Rect& rect,
                   unsigned char alpha) {
    for (unsigned int y = 0; y < picture.height; ++y) {
        const int top = Place(rect.y, rect.height, y, picture.height);
        const int bottom = Place(rect.y, rect.height, y + 1, picture.height);
        for (unsigned int x = 0, end = 0; x < picture.width; x = end) {
            const unsigned char* pixel = picture.At(x, y);
            for (end = x + 1; end < picture.width && memcmp(picture.At(end, y), pixel, 4) == 0;) {
                ++end;
            }
            const int left = Place(rect.x, rect.width, x, picture.width);
            const int right = Place(rect.x, rect.width, end, picture.width);
            if (pixel[3] != 0) {
                Fill(buffer, {left, top, right - left, bottom - top},
                     {pixel[0], pixel[1], pixel[2], alpha});
            }
        }
    }
}

void Canvas::Copy(unsigned int from, const Rect& source, unsigned int to, const Rect& target) {
    const tagZoBlitInfo info{from, to, ToRecord(source), ToRecord(target)};
    Check(surface.ZoBlit(&info), "copying between buffers");
}

void Canvas::DrawText(unsigned int buffer, std::u16string_view text, const TextStyle& style, int x,
                      int baseline) {
    const tagZoTextInfo info = ToRecord(text, style);
    const tagZoRectInfo start = ToRecord(Rect{x, baseline, 0, 0});
    Check(surface.ZoDrawText(buffer, &info, &start), "drawing a text");
}

int Canvas::MeasureText(std::u16string_view text) {
    const tagZoTextInfo info = ToRecord(text, TextStyle{});
    unsigned int width = 0;
    unsigned int height = 0;
    Check(surface.ZoGetTextSize(&info, &width, &height), "measuring a text");
    return static_cast<int>(width);
}

void Canvas::Present(unsigned int buffer, const Rect& part) {
    const tagZoRectInfo rect = ToRecord(part);
    Check(surface.ZoDisplayFBO(buffer, &rect, &rect), "presenting a buffer");
}

void Canvas::ShowPicture(const Picture& picture, const Rect& rect) {
    const tagZoBitmapInfo info = {picture.rgba.data(), ZO_FORMAT_RGBA8888, 0, 0, picture.width,
                                  picture.height,      ToRecord(rect)};
    Check(surface.ZoDisplayBitmap(&info), "showing a picture");
}

void Canvas::Refresh() {
    Check(surface.ZoRefreshOnSrceen(), "showing the frame");
}

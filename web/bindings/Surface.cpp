// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The library's class and its records, under their C++ names.

#include "platform/LogFilter.h"

#include <algorithm>
#include <emscripten/bind.h>
#include <string>
#include <zogles/ZoGLDrawSurface.h>

using emscripten::val;
using emscripten::value_object;

namespace {

// Emscripten finds the page's canvas itself: any value but null means this canvas.
int Bind(ZoGLDrawSurface& surface, bool hasWindow) {
    const uintptr_t canvas = hasWindow ? 1 : 0;
    return surface.ZoCreateGLWindowSurface(reinterpret_cast<ANativeWindow*>(canvas));
}

val CreateBuffer(ZoGLDrawSurface& surface, unsigned int width, unsigned int height, int format) {
    unsigned int handle = ZO_NO_HANDLE;
    val result = val::object();
    result.set("code", surface.ZoCreateGLFBO(&handle, width, height, format));
    result.set("handle", handle);
    return result;
}

int DrawRect(ZoGLDrawSurface& surface, unsigned int fbo, const tagZoRectInfo& rect,
             const tagZoColorRGBA& color) {
    return surface.ZoDrawRect(fbo, &rect, &color);
}

int Blit(ZoGLDrawSurface& surface, const tagZoBlitInfo& info) {
    return surface.ZoBlit(&info);
}

int DisplayBuffer(ZoGLDrawSurface& surface, unsigned int fbo, const tagZoRectInfo& src,
                  const tagZoRectInfo& dst) {
    return surface.ZoDisplayFBO(fbo, &src, &dst);
}

int DisplayBitmap(ZoGLDrawSurface& surface, const val& fields) {
    const auto pixels = fields["data"].as<std::string>();
    tagZoBitmapInfo info = {};
    info.data = pixels.empty() ? nullptr : reinterpret_cast<const unsigned char*>(pixels.data());
    info.format = fields["format"].as<int>();
    info.width = fields["width"].as<unsigned int>();
    info.height = fields["height"].as<unsigned int>();
    info.rect = fields["rect"].as<tagZoRectInfo>();
    return surface.ZoDisplayBitmap(&info);
}

int LoadFont(ZoGLDrawSurface& surface, const std::string& path, unsigned int size) {
    return surface.ZoLoadFont(path.c_str(), size);
}

// Limits `length` to the text, because the library reads that many units.
tagZoTextInfo MakeRecord(const std::u16string& text, unsigned int length) {
    tagZoTextInfo info = {};
    info.text = text.c_str();
    info.length = static_cast<unsigned int>(std::min<size_t>(length, text.size()));
    return info;
}

val MeasureText(ZoGLDrawSurface& surface, const std::u16string& text, unsigned int length) {
    const tagZoTextInfo info = MakeRecord(text, length);
    unsigned int width = 0;
    unsigned int height = 0;
    val result = val::object();
    result.set("code", surface.ZoGetTextSize(&info, &width, &height));
    result.set("width", width);
    result.set("height", height);
    return result;
}

int DrawText(ZoGLDrawSurface& surface, unsigned int handle, const val& fields,
             const tagZoRectInfo& rect) {
    const auto text = fields["text"].as<std::u16string>();
    tagZoTextInfo info = MakeRecord(text, fields["length"].as<unsigned int>());
    info.color = fields["color"].as<tagZoColorRGBA>();
    info.fontSize = fields["fontSize"].as<unsigned int>();
    info.bold = fields["bold"].as<bool>() ? 1 : 0;
    info.italic = fields["italic"].as<bool>() ? 1 : 0;
    return surface.ZoDrawText(handle, &info, &rect);
}

bool Shows(const std::string& filter, int priority, const std::string& tag) {
    return LogFilter(filter.c_str()).Shows(priority, tag.c_str());
}

} // namespace

EMSCRIPTEN_BINDINGS(zogles) {
    value_object<tagZoRectInfo>("tagZoRectInfo")
        .field("x", &tagZoRectInfo::x)
        .field("y", &tagZoRectInfo::y)
        .field("width", &tagZoRectInfo::width)
        .field("height", &tagZoRectInfo::height);
    value_object<tagZoColorRGBA>("tagZoColorRGBA")
        .field("r", &tagZoColorRGBA::r)
        .field("g", &tagZoColorRGBA::g)
        .field("b", &tagZoColorRGBA::b)
        .field("a", &tagZoColorRGBA::a);
    value_object<tagZoBlitInfo>("tagZoBlitInfo")
        .field("srcHandle", &tagZoBlitInfo::srcHandle)
        .field("dstHandle", &tagZoBlitInfo::dstHandle)
        .field("srcRect", &tagZoBlitInfo::srcRect)
        .field("dstRect", &tagZoBlitInfo::dstRect);

    emscripten::class_<ZoGLDrawSurface>("ZoGLDrawSurface")
        .constructor<>()
        .function("ZoCreateGLWindowSurface", &Bind)
        .function("ZoDestoryGLWindowSurface", &ZoGLDrawSurface::ZoDestoryGLWindowSurface)
        .function("Init", &ZoGLDrawSurface::Init)
        .function("ZoRefreshOnSrceen", &ZoGLDrawSurface::ZoRefreshOnSrceen)
        .function("ZoGetWindowWidth", &ZoGLDrawSurface::ZoGetWindowWidth)
        .function("ZoGetWindowHeight", &ZoGLDrawSurface::ZoGetWindowHeight)
        .function("ZoCreateGLFBO", &CreateBuffer)
        .function("ZoDestoryGLFBO", &ZoGLDrawSurface::ZoDestoryGLFBO)
        .function("ZoDrawRect", &DrawRect)
        .function("ZoBlit", &Blit)
        .function("ZoDisplayFBO", &DisplayBuffer)
        .function("ZoDisplayBitmap", &DisplayBitmap)
        .function("ZoLoadFont", &LoadFont)
        .function("ZoGetTextSize", &MeasureText)
        .function("ZoDrawText", &DrawText);

    emscripten::function("Shows", &Shows);
}

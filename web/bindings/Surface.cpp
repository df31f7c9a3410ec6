// The library's one class, its records and its result codes, under their own names.

#include "platform/LogFilter.h"

#include <algorithm>
#include <emscripten/bind.h>
#include <string>
#include <zogles/ZoGLDrawSurface.h>

using emscripten::allow_raw_pointers;
using emscripten::class_;
using emscripten::value_object;

namespace {

/// A code, and what an operation hands out along with it.
struct CodeAndHandle {
    int code;
    unsigned int handle;
};

struct CodeAndSize {
    int code;
    unsigned int width;
    unsigned int height;
};

/// The fields of `tagZoTextInfo` that count, with the text itself.
struct TextFields {
    std::u16string text;
    unsigned int length;
    tagZoColorRGBA color;
    unsigned int fontSize;
    bool bold;
    bool italic;
};

/// The fields of `tagZoBitmapInfo`, with the pixels themselves; without any, `data` is null.
struct BitmapFields {
    std::string data;
    int format;
    unsigned int width;
    unsigned int height;
    tagZoRectInfo rect;
};

// The record promises `length` units, so the text must hold as many.
tagZoTextInfo ToRecord(const TextFields& fields) {
    tagZoTextInfo info = {};
    info.text = fields.text.c_str();
    info.length = static_cast<unsigned int>(std::min<size_t>(fields.length, fields.text.size()));
    info.color = fields.color;
    info.fontSize = fields.fontSize;
    info.bold = fields.bold ? 1 : 0;
    info.italic = fields.italic ? 1 : 0;
    return info;
}

// The platform's window is the page's canvas, which Emscripten knows by itself: any value but null
// stands for it.
int Bind(ZoGLDrawSurface& surface, bool hasWindow) {
    const uintptr_t canvas = hasWindow ? 1 : 0;
    return surface.ZoCreateGLWindowSurface(reinterpret_cast<ANativeWindow*>(canvas));
}

CodeAndHandle CreateBuffer(ZoGLDrawSurface& surface, unsigned int width, unsigned int height,
                           int format) {
    CodeAndHandle result = {ZO_SUCCESS, ZO_NO_HANDLE};
    result.code = surface.ZoCreateGLFBO(&result.handle, width, height, format);
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

int DisplayBitmap(ZoGLDrawSurface& surface, const BitmapFields& fields) {
    tagZoBitmapInfo info = {};
    info.data =
        fields.data.empty() ? nullptr : reinterpret_cast<const unsigned char*>(fields.data.data());
    info.format = fields.format;
    info.width = fields.width;
    info.height = fields.height;
    info.rect = fields.rect;
    return surface.ZoDisplayBitmap(&info);
}

int LoadFont(ZoGLDrawSurface& surface, const std::string& path, unsigned int size) {
    return surface.ZoLoadFont(path.c_str(), size);
}

CodeAndSize MeasureText(ZoGLDrawSurface& surface, const TextFields& fields) {
    const tagZoTextInfo info = ToRecord(fields);
    CodeAndSize result = {ZO_SUCCESS, 0, 0};
    result.code = surface.ZoGetTextSize(&info, &result.width, &result.height);
    return result;
}

int DrawText(ZoGLDrawSurface& surface, unsigned int handle, const TextFields& fields,
             const tagZoRectInfo& rect) {
    const tagZoTextInfo info = ToRecord(fields);
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
    value_object<TextFields>("TextFields")
        .field("text", &TextFields::text)
        .field("length", &TextFields::length)
        .field("color", &TextFields::color)
        .field("fontSize", &TextFields::fontSize)
        .field("bold", &TextFields::bold)
        .field("italic", &TextFields::italic);
    value_object<BitmapFields>("BitmapFields")
        .field("data", &BitmapFields::data)
        .field("format", &BitmapFields::format)
        .field("width", &BitmapFields::width)
        .field("height", &BitmapFields::height)
        .field("rect", &BitmapFields::rect);
    value_object<CodeAndHandle>("CodeAndHandle")
        .field("code", &CodeAndHandle::code)
        .field("handle", &CodeAndHandle::handle);
    value_object<CodeAndSize>("CodeAndSize")
        .field("code", &CodeAndSize::code)
        .field("width", &CodeAndSize::width)
        .field("height", &CodeAndSize::height);

    class_<ZoGLDrawSurface>("ZoGLDrawSurface")
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

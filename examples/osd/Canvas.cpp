#include "Canvas.h"

#include <cstdio>

namespace {

constexpr int mostReports = 10;

const char* Describe(int code) {
    switch (code) {
    case ZO_NO_DISPLAY:
        return "EGL has no display";
    case ZO_DISPLAY_INIT_FAILED:
        return "the EGL display could not be initialised";
    case ZO_NO_CONFIG:
        return "EGL could not choose a configuration";
    case ZO_NO_CONTEXT:
        return "the OpenGL ES 2.0 context could not be created";
    case ZO_NO_WINDOW_SURFACE:
        return "the EGL window surface could not be created";
    case ZO_NO_EGL_MANAGER:
        return "no window is bound";
    case ZO_NO_FREE_FBO:
        return "all buffers are in use";
    case ZO_PROGRAM_FAILED:
        return "a shader program could not be built";
    case ZO_FREETYPE_FAILED:
        return "FreeType could not be initialised";
    case ZO_FONT_FACE_FAILED:
        return "the font file could not be opened";
    case ZO_FONT_ATLAS_EMPTY:
        return "the font shows nothing";
    case ZO_INVALID_PARAM:
        return "a parameter is invalid";
    case ZO_NO_FBO_MANAGER:
        return "no buffer was ever created";
    default:
        return "general failure";
    }
}

tagZoTextInfo ToRecord(std::u16string_view text, const TextStyle& style) {
    tagZoTextInfo info{};
    info.text = text.data();
    info.length = static_cast<unsigned int>(text.size());
    info.color = ToRecord(style.color);
    info.fontSize = style.fontSize;
    info.bold = style.bold ? 1 : 0;
    info.italic = style.italic ? 1 : 0;
    return info;
}

} // namespace

Canvas::Canvas(ZoGLDrawSurface& target) : surface(target), failures(0) {}

void Canvas::Check(int code, const char* operation) {
    if (code == ZO_SUCCESS) {
        return;
    }
    ++failures;
    if (failures <= mostReports) {
        fprintf(stderr, "zogles-osd: %s: %s (code %d)\n", operation, Describe(code), code);
    }
    if (failures == 1) {
        fprintf(stderr, "zogles-osd: set ANDROID_LOG_TAGS='*:V' to read the library's own log\n");
    }
}

Rect Canvas::GetWindowRect() const {
    return {0, 0, static_cast<int>(surface.ZoGetWindowWidth()),
            static_cast<int>(surface.ZoGetWindowHeight())};
}

void Canvas::Bind(ANativeWindow* window) {
    Check(surface.ZoCreateGLWindowSurface(window), "binding the window");
}

void Canvas::Unbind() {
    surface.ZoDestoryGLWindowSurface();
}

void Canvas::LoadFont(const std::string& path, unsigned int pixels) {
    Check(surface.ZoLoadFont(path.c_str(), pixels), path.c_str());
}

void Canvas::CreateComponents() {
    Check(surface.Init(ZO_COMPONENT_TEXT | ZO_COMPONENT_BLIT | ZO_COMPONENT_BITMAP |
                       ZO_COMPONENT_RECT | ZO_COMPONENT_FRAME | ZO_COMPONENT_FBO),
          "creating the components");
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
    const tagZoColorRGBA colorRecord = ToRecord(color);
    Check(surface.ZoDrawRect(buffer, &rectRecord, &colorRecord), "drawing a rectangle");
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

void Canvas::Present(unsigned int buffer, const Rect& source) {
    const tagZoRectInfo from = ToRecord(source);
    const tagZoRectInfo to = ToRecord(GetWindowRect());
    Check(surface.ZoDisplayFBO(buffer, &from, &to), "presenting a buffer");
}

void Canvas::PresentPixels(const unsigned char* pixels, const Rect& size) {
    tagZoBitmapInfo info{};
    info.data = pixels;
    info.format = ZO_FORMAT_RGBA8888;
    info.width = static_cast<unsigned int>(size.width);
    info.height = static_cast<unsigned int>(size.height);
    info.rect = ToRecord(GetWindowRect());
    Check(surface.ZoDisplayBitmap(&info), "presenting a bitmap");
}

void Canvas::Refresh() {
    Check(surface.ZoRefreshOnSrceen(), "showing the frame");
}

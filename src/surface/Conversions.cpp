// From the client's pixels and bytes to what GL takes. The float expressions are single precision
// and evaluated as written, so that every machine puts an edge on the same pixel.

#include "surface/Records.h"

#include <GLES2/gl2.h>
#include <cstddef>

// Clients in other languages and older binaries share these records in memory.
static_assert(sizeof(tagZoRectInfo) == 16);
static_assert(offsetof(tagZoRectInfo, y) == 4 && offsetof(tagZoRectInfo, width) == 8 &&
              offsetof(tagZoRectInfo, height) == 12);
static_assert(sizeof(tagZoColorRGBA) == 4);
static_assert(offsetof(tagZoColorRGBA, g) == 1 && offsetof(tagZoColorRGBA, b) == 2 &&
              offsetof(tagZoColorRGBA, a) == 3);
static_assert(offsetof(tagZoTextInfo, length) == sizeof(void*) &&
              offsetof(tagZoTextInfo, color) == sizeof(void*) + 4 &&
              offsetof(tagZoTextInfo, reservedColor) == sizeof(void*) + 8 &&
              offsetof(tagZoTextInfo, reservedByte) == sizeof(void*) + 12 &&
              offsetof(tagZoTextInfo, fontSize) == sizeof(void*) + 16 &&
              offsetof(tagZoTextInfo, bold) == sizeof(void*) + 20 &&
              offsetof(tagZoTextInfo, reservedStyle) == sizeof(void*) + 21 &&
              offsetof(tagZoTextInfo, italic) == sizeof(void*) + 22);
static_assert(sizeof(tagZoTextInfo) == sizeof(void*) + 24);
static_assert(offsetof(tagZoBitmapInfo, format) == sizeof(void*) &&
              offsetof(tagZoBitmapInfo, reserved0) == sizeof(void*) + 4 &&
              offsetof(tagZoBitmapInfo, reserved1) == sizeof(void*) + 8 &&
              offsetof(tagZoBitmapInfo, width) == sizeof(void*) + 12 &&
              offsetof(tagZoBitmapInfo, height) == sizeof(void*) + 16 &&
              offsetof(tagZoBitmapInfo, rect) == sizeof(void*) + 20);
static_assert(sizeof(tagZoBlitInfo) == 40);
static_assert(offsetof(tagZoBlitInfo, dstHandle) == 4 && offsetof(tagZoBlitInfo, srcRect) == 8 &&
              offsetof(tagZoBlitInfo, dstRect) == 24);
static_assert(sizeof(TagFboInfo) == 16);
static_assert(offsetof(TagFboInfo, width) == 4 && offsetof(TagFboInfo, height) == 8 &&
              offsetof(TagFboInfo, format) == 12);

namespace {

float ConvertChannel(unsigned char channel) {
    const float value = channel;
    return channel <= 1 ? value : value / 255.0f;
}

} // namespace

unsigned int ZoGLDrawSurface::ConvertFormatToGLES(int format) const {
    if (format != ZO_FORMAT_RGBA8888) {
        __android_log_print(LogError, surfaceTag, "Color format is invalid %d\n", format);
    }
    return GL_RGBA;
}

void ZoGLDrawSurface::ScreenCoordToVCoord(const tagZoRectInfo* in, tagRectInfo* out,
                                          unsigned int targetWidth,
                                          unsigned int targetHeight) const {
    if (targetWidth == 0 || targetHeight == 0) {
        return;
    }
    const float x = static_cast<float>(in->x);
    const float y = static_cast<float>(in->y);
    const float width = static_cast<float>(in->width);
    const float height = static_cast<float>(in->height);
    out->x = (x + x) / static_cast<float>(targetWidth) + -1.0f;
    out->y = 1.0f - (y + y) / static_cast<float>(targetHeight);
    out->width = (width + width) / static_cast<float>(targetWidth);
    out->height = (height + height) / static_cast<float>(targetHeight);
}

void ZoGLDrawSurface::ScreenCoordToFboCoord(const tagZoRectInfo* in, tagRectInfo* out,
                                            unsigned int targetWidth,
                                            unsigned int targetHeight) const {
    if (targetWidth == 0 || targetHeight == 0) {
        return;
    }
    out->x = static_cast<float>(in->x) / static_cast<float>(targetWidth);
    out->y = 1.0f - static_cast<float>(in->y) / static_cast<float>(targetHeight);
    out->width = static_cast<float>(in->width) / static_cast<float>(targetWidth);
    out->height = static_cast<float>(in->height) / static_cast<float>(targetHeight);
}

void ZoGLDrawSurface::ConvertGLColor(const tagZoColorRGBA* in, tagColorRGBA* out) const {
    out->r = ConvertChannel(in->r);
    out->g = ConvertChannel(in->g);
    out->b = ConvertChannel(in->b);
    out->a = ConvertChannel(in->a);
}

void ZoGLDrawSurface::SetTextInfo(const tagZoTextInfo* in, tagTextInfo* out) const {
    out->text = in->text;
    out->length = in->length;
    ConvertGLColor(&in->color, &out->color);
    ConvertGLColor(&in->reservedColor, &out->reservedColor);
    out->reservedByte = in->reservedByte;
    out->fontSize = in->fontSize;
    out->bold = in->bold;
    out->reservedStyle = in->reservedStyle;
    out->italic = in->italic;
}

void ZoGLDrawSurface::SetBitmapInfo(tagBitmapInfo* out, const tagZoBitmapInfo* in,
                                    unsigned int targetWidth, unsigned int targetHeight) const {
    out->data = in->data;
    out->width = static_cast<int>(in->width);
    out->height = static_cast<int>(in->height);
    out->format = ConvertFormatToGLES(in->format);
    ScreenCoordToVCoord(&in->rect, &out->rect, targetWidth, targetHeight);
}

// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "surface/Operations.h"

#include <GLES2/gl2.h>
#include <cfloat>
#include <cstddef>

// Excess precision can move an edge to another pixel.
static_assert(FLT_EVAL_METHOD == 0, "float expressions must be evaluated in single precision");

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
static_assert(sizeof(tagZoBitmapInfo) == (sizeof(void*) == 8 ? 48 : 40));
static_assert(sizeof(tagZoBlitInfo) == 40);
static_assert(offsetof(tagZoBlitInfo, dstHandle) == 4 && offsetof(tagZoBlitInfo, srcRect) == 8 &&
              offsetof(tagZoBlitInfo, dstRect) == 24);
static_assert(sizeof(TagFboInfo) == 16);
static_assert(offsetof(TagFboInfo, width) == 4 && offsetof(TagFboInfo, height) == 8 &&
              offsetof(TagFboInfo, format) == 12);

unsigned int ZoGLDrawSurface::ConvertFormatToGLES(int format) const {
    if (format != ZO_FORMAT_RGBA8888) {
        __android_log_print(LogError, surfaceTag, "Color format is invalid %d\n", format);
    }
    return GL_RGBA;
}

void ZoGLDrawSurface::ScreenCoordToVCoord(const tagZoRectInfo* in, tagRectInfo* out,
                                          unsigned int targetWidth,
                                          unsigned int targetHeight) const {
    if (const Size target = {targetWidth, targetHeight}; !target.IsEmpty()) {
        *out = ToVertexSpace(*in, target);
    }
}

void ZoGLDrawSurface::ScreenCoordToFboCoord(const tagZoRectInfo* in, tagRectInfo* out,
                                            unsigned int targetWidth,
                                            unsigned int targetHeight) const {
    if (const Size target = {targetWidth, targetHeight}; !target.IsEmpty()) {
        *out = ToTextureSpace(*in, target);
    }
}

void ZoGLDrawSurface::ConvertGLColor(const tagZoColorRGBA* in, tagColorRGBA* out) const {
    *out = ToGLColor(*in);
}

void ZoGLDrawSurface::SetTextInfo(const tagZoTextInfo* in, tagTextInfo* out) const {
    out->text = in->text;
    out->length = in->length;
    out->color = ToGLColor(in->color);
    out->reservedColor = ToGLColor(in->reservedColor);
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

// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// The records that the renderers work on, in GL's units.
#ifndef ZOGLES_SURFACE_RECORDS_H
#define ZOGLES_SURFACE_RECORDS_H

#include "zogles/ZoGLDrawSurface.h"

/// A rectangle in vertex space or in texture space, depending on its use.
///
/// Vertex space: the target's normalised device coordinates, -1 to 1, y upwards.
/// Texture space: 0 to 1, origin at the bottom-left corner.
///
/// In both, (x, y) is the top-left corner and the extents are positive. The bottom edge is at
/// y - height.
struct tagRectInfo {
    float x;
    float y;
    float width;
    float height;
};

/// A colour in GL's units, 0.0 to 1.0 per channel, not premultiplied.
struct tagColorRGBA {
    float r;
    float g;
    float b;
    float a;
};

/// A text request. The client owns the text.
struct tagTextInfo {
    const char16_t* text;
    unsigned int length;
    tagColorRGBA color;
    tagColorRGBA reservedColor;
    unsigned char reservedByte;
    unsigned int fontSize;
    unsigned char bold;
    unsigned char reservedStyle;
    unsigned char italic;
};

/// A bitmap request. The client owns the pixels.
struct tagBitmapInfo {
    const unsigned char* data;
    tagRectInfo rect; ///< destination in the window's vertex space
    int width;        ///< pixels
    int height;       ///< pixels
    unsigned int format;
};

#endif

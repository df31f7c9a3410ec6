// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// The surface that library and baseline draw on, and the inputs that they share.
#ifndef ZOGLES_BENCH_STAGE_H
#define ZOGLES_BENCH_STAGE_H

#include "Baseline.h"
#include "Frame.h"

#include <string>

constexpr char fontPath[] = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";
/// A font with tens of thousands of characters.
constexpr char largeFontPath[] = "/usr/share/fonts/opentype/unifont/unifont.otf";

/// Text of this many units, without spaces.
std::u16string Words(size_t length);

/// The text of a request in one colour.
tagZoTextInfo Request(const std::u16string& text, tagZoColorRGBA color);

Baseline::Color ToFloats(tagZoColorRGBA color);

/// A surface that its constructor binds, so that later members are constructed with a current context.
struct BoundSurface : ZoGLDrawSurface {
    BoundSurface();
};

/// A bound surface with a font and buffers, and a baseline in the same context.
class Stage {
public:
    /// @param font,characters the font, limited to this many characters; 0 means all
    /// @param buffers number of the library's buffers, at least two
    Stage(const char* font, unsigned int characters, int buffers);

    /// Gives both sides' buffers the same content.
    void Reset();

    /// Shows the first buffer on the window.
    void Show(bool isLibrary);

    BoundSurface surface;
    unsigned int target = ZO_NO_HANDLE; ///< the library's buffers
    unsigned int source = ZO_NO_HANDLE;
    unsigned int last = ZO_NO_HANDLE; ///< the one created last
    Baseline byHand;
    Baseline::Target handTarget;
    Baseline::Target handSource;
};

#endif

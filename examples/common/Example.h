// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Code that the examples share: the check of result codes, the options, and a text record.
#ifndef EXAMPLES_COMMON_EXAMPLE_H
#define EXAMPLES_COMMON_EXAMPLE_H

#include <string_view>
#include <zogles/ZoGLDrawSurface.h>

constexpr char fontFile[] = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";

/// Plain text of this size is drawn at the loaded size, which is the fastest.
constexpr unsigned int standardSize = 40;

/// Ends the program if a result code is not `ZO_SUCCESS`. A real program reacts to the code.
void Check(const char* what, int code);

/// The command line's options. Without `out`, an example shows its window.
struct Arguments {
    const char* file;          ///< the argument that is not an option, or null
    const char* out;           ///< the PNG file to save, or null
    unsigned int milliseconds; ///< the moment of an animation to save
};

/// Reads `[FILE] [--out FILE.png] [--at MILLISECONDS]`. Ends the program if it finds anything else.
/// @param milliseconds the moment to save without `--at`
Arguments ReadArguments(int argc, char* argv[], unsigned int milliseconds = 0);

/// A record for plain text of the standard size.
tagZoTextInfo ToText(std::u16string_view text, const tagZoColorRGBA& color);

#endif

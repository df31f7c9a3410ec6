// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// Windows and checks for the fuzz targets. A failed check ends the program.
#ifndef ZOGLES_FUZZ_SUPPORT_H
#define ZOGLES_FUZZ_SUPPORT_H

#include "zogles/ZoGLDrawSurface.h"

#include <initializer_list>

namespace fuzz {

/// One of two windows of different sizes, which exist as long as the process.
ANativeWindow* WindowOf(unsigned int number);

/// Ends the program, with a message, unless `isTrue`.
void Require(bool isTrue, const char* what, long long value);

/// Ends the program unless an operation returned one of the codes that its documentation lists.
void RequireCode(const char* operation, int code, std::initializer_list<int> documented);

/// Destroys the surface and ends the program if an object of the library is still alive.
void RequireNothingLeft(std::unique_ptr<ZoGLDrawSurface> surface);

/// Limits the number of characters and the size of a glyph that one input loads.
void LimitFreeType();

} // namespace fuzz

#endif

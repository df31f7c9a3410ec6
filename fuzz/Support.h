/// @file
/// What the fuzz targets share: windows, and the checks that end the program.
#ifndef ZOGLES_FUZZ_SUPPORT_H
#define ZOGLES_FUZZ_SUPPORT_H

#include "zogles/ZoGLDrawSurface.h"

#include <initializer_list>

namespace fuzz {

constexpr unsigned int windowCount = 2;

/// One of the windows, which live as long as the process.
ANativeWindow* WindowOf(unsigned int number);

void ResizeWindow(unsigned int number, unsigned int width, unsigned int height);

/// Ends the program, with a message, unless `isTrue`.
void Require(bool isTrue, const char* what, long long value);

/// Ends the program unless an operation returned one of the codes that its documentation lists.
void RequireCode(const char* operation, int code, std::initializer_list<int> documented);

/// Destroys the surface and ends the program if anything of the library's is still alive.
void RequireNothingLeft(std::unique_ptr<ZoGLDrawSurface> surface);

/// Bounds what FreeType does for one input: the characters of a font, and the size of a glyph.
void LimitFreeType();

} // namespace fuzz

#endif

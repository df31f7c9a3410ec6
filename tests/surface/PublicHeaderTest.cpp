// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Compiling is the test: the header needs no other one before it, and includes no header of EGL, GL,
// FreeType or X11.
#include <zogles/ZoGLDrawSurface.h>

#if defined(__gl2_h_) || defined(__gl2platform_h_) || defined(GL_RGBA) || defined(__egl_h_) ||     \
    defined(__eglplatform_h_) || defined(FT2BUILD_H_) || defined(FREETYPE_H_) ||                   \
    defined(_X11_XLIB_H_)
#error "the public header includes a header of a dependency"
#endif

#include <type_traits>

static_assert(!std::is_polymorphic_v<ZoGLDrawSurface> &&
              !std::is_copy_constructible_v<ZoGLDrawSurface>);

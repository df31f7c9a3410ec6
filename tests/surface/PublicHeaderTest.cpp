// The compiler is the test. Nothing stands before this header, so that it is seen to need nothing, and to bring along no
// header of EGL, GL, FreeType or X11.
#include <zogles/ZoGLDrawSurface.h>

#if defined(__gl2_h_) || defined(__gl2platform_h_) || defined(GL_RGBA) || defined(__egl_h_) ||     \
    defined(__eglplatform_h_) || defined(FT2BUILD_H_) || defined(FREETYPE_H_) ||                   \
    defined(_X11_XLIB_H_)
#error "the public header brings along what is the library's own business"
#endif

#include <type_traits>

static_assert(!std::is_polymorphic_v<ZoGLDrawSurface> &&
              !std::is_copy_constructible_v<ZoGLDrawSurface>);

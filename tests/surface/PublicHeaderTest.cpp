// Nothing stands before this header, so that it is seen to need nothing, and to bring along no
// header of EGL, GL, FreeType or X11.
#include <zogles/ZoGLDrawSurface.h>

#if defined(__gl2_h_) || defined(__gl2platform_h_) || defined(GL_RGBA) || defined(__egl_h_) ||     \
    defined(__eglplatform_h_) || defined(FT2BUILD_H_) || defined(FREETYPE_H_) ||                   \
    defined(_X11_XLIB_H_)
#error "the public header brings along what is the library's own business"
#endif

#include <gtest/gtest.h>
#include <type_traits>

TEST(PublicHeaderTest, RecordsAreSharedInMemory) {
    static_assert(std::is_trivial_v<tagZoRectInfo> && std::is_trivial_v<tagZoColorRGBA> &&
                  std::is_trivial_v<tagZoTextInfo> && std::is_trivial_v<tagZoBitmapInfo> &&
                  std::is_trivial_v<tagZoBlitInfo> && std::is_trivial_v<TagFboInfo>);
    static_assert(!std::is_polymorphic_v<ZoGLDrawSurface> &&
                  !std::is_copy_constructible_v<ZoGLDrawSurface>);
    const tagZoBitmapInfo bitmap = {nullptr, 9, 1, 2, 3, 4, {5, 6, 7, 8}};
    const unsigned int* words = reinterpret_cast<const unsigned int*>(&bitmap.data + 1);
    for (unsigned int i = 0; i < 9; ++i) {
        EXPECT_EQ(words[i], i == 0 ? 9 : i);
    }
    EXPECT_EQ(sizeof(tagZoBitmapInfo), sizeof(void*) == 8 ? 48U : 40U);
}

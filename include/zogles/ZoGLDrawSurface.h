// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// The public header of libzogles: records, result codes and `ZoGLDrawSurface`, which draws an
/// on-screen display with OpenGL ES 2.0 on a native window.
///
/// Coordinates are pixels from the target's top-left corner, x to the right and y down. The client
/// owns the memory that pointers in a record refer to; the library reads it only during the call.
#ifndef ZOGLES_ZOGLDRAWSURFACE_H
#define ZOGLES_ZOGLDRAWSURFACE_H

#include <memory>

/// Major version: changes when existing programs have to be rebuilt or adapted.
#define ZOGLES_VERSION_MAJOR 1
/// Minor version: adds features, stays compatible.
#define ZOGLES_VERSION_MINOR 0
/// Patch version: bug fixes only.
#define ZOGLES_VERSION_PATCH 0

#if defined(ZOGLES_STATIC)
#define ZOGLES_API
#else
/// Exports a name from the shared library. Empty if ZOGLES_STATIC is defined.
#define ZOGLES_API __attribute__((visibility("default")))
#endif

/// Exports an inline function from the shared library.
#define ZOGLES_INLINE ZOGLES_API __attribute__((used))

/// The platform's native window. On platforms without this type, the pointer is the EGL native
/// window value itself. For an X11 window:
/// `reinterpret_cast<ANativeWindow*>(static_cast<uintptr_t>(xid))`.
struct ANativeWindow;

class EGLManager;
class FBOManager;
class FontAtlas;
class FontStyleAtlas;
class OSDBitmap;
class OSDBlit;
class OSDFrame;
class OSDRect;
class OSDText;
struct tagBitmapInfo;
struct tagColorRGBA;
struct tagFrameBuffObject;
struct tagRectInfo;
struct tagTextInfo;

/// The result codes. Every failure is also written to the platform log.
enum ZoResult : int {
    ZO_SUCCESS = 0,             ///< the operation succeeded
    ZO_NO_DISPLAY = 1,          ///< EGL has no display
    ZO_DISPLAY_INIT_FAILED = 2, ///< the EGL display could not be initialised
    ZO_NO_CONFIG = 3,           ///< EGL could not choose a configuration
    ZO_NO_CONTEXT = 4,          ///< the OpenGL ES 2.0 context could not be created
    ZO_NO_WINDOW_SURFACE = 5,   ///< the EGL window surface could not be created
    ZO_NO_EGL_MANAGER = 6,      ///< `ZoRefreshOnSrceen` was called while no window is bound
    ZO_RESERVED_10 = 10,        ///< reserved, never returned
    ZO_RESERVED_11 = 11,        ///< reserved, never returned
    ZO_RESERVED_12 = 12,        ///< reserved, never returned
    ZO_RESERVED_13 = 13,        ///< reserved, never returned
    ZO_RESERVED_14 = 14,        ///< reserved, never returned
    ZO_NO_FREE_FBO = 15,        ///< all 15 off-screen buffers are in use
    ZO_PROGRAM_FAILED = 20,     ///< a shader program could not be built
    ZO_FREETYPE_FAILED = 30,    ///< FreeType could not be initialised
    ZO_FONT_FACE_FAILED = 31,   ///< the font file could not be opened
    ZO_FONT_ATLAS_EMPTY = 32,   ///< the font or text has no visible glyph, or no font is loaded
    ZO_FAILURE = 100,           ///< any other failure; the log has the details
    ZO_INVALID_PARAM = 101,  ///< a null pointer, an unknown handle, or a target of size 0 for text
    ZO_NO_FBO_MANAGER = 102, ///< the buffer cannot be destroyed: the surface has no buffer pool
};

/// Components that `ZoGLDrawSurface::Init` creates. Combine them with bitwise or.
enum ZoComponent : unsigned int {
    ZO_COMPONENT_TEXT = 0x01,   ///< text; loads the default font unless a font is loaded
    ZO_COMPONENT_BLIT = 0x02,   ///< blits between buffers
    ZO_COMPONENT_BITMAP = 0x04, ///< client bitmaps on the window
    ZO_COMPONENT_RECT = 0x08,   ///< filled rectangles
    ZO_COMPONENT_FRAME = 0x10,  ///< presentation of a buffer on the window
    ZO_COMPONENT_FBO = 0x20,    ///< the pool of off-screen buffers
};

/// The handle of the window itself. It always exists and cannot be destroyed.
constexpr unsigned int ZO_WINDOW_HANDLE = 0x10000U;

/// Not a handle: marks an unused entry. No buffer ever has this value.
constexpr unsigned int ZO_NO_HANDLE = 0xFFFFFFFFU;

/// The only colour format: red, green, blue, alpha, 8 bits each, in this byte order.
constexpr int ZO_FORMAT_RGBA8888 = 9;

/// A rectangle in pixels, from the target's top-left corner. It may extend past the target's right
/// and bottom edges: the part outside is clipped, or repeats the edge pixels if the rectangle is
/// the source of a copy.
struct tagZoRectInfo {
    unsigned int x;      ///< left edge, in pixels from the target's left edge
    unsigned int y;      ///< top edge, in pixels from the target's top edge
    unsigned int width;  ///< pixels
    unsigned int height; ///< pixels
};

/// A colour with straight (not premultiplied) alpha. Channel values from 2 to 255 mean value/255.
/// The values 0 and 1 are the intensity itself: 1 is full intensity, like 255, and 2 is the darkest
/// value above 0.
struct tagZoColorRGBA {
    unsigned char r; ///< red
    unsigned char g; ///< green
    unsigned char b; ///< blue
    unsigned char a; ///< alpha: 0 transparent, 1 and 255 opaque
};

/// A text to draw or to measure. Initialise it with zeros: `tagZoTextInfo text = {};`
///
/// Standard text (`fontSize` 40, neither bold nor italic) comes from glyphs that `ZoLoadFont` has
/// rendered, at the size that was passed to `ZoLoadFont`. All other text is styled text: its glyphs
/// are rendered again at every draw, up to the first zero unit; units after it are drawn only if
/// they also occur before it. `fontSize` 0 gives styled text of 40 pixels.
struct tagZoTextInfo {
    const char16_t* text; ///< UTF-16 code units, owned by the client; may be null if `length` is 0
    unsigned int length;  ///< number of units to draw or measure; no unit after them is read
    tagZoColorRGBA color; ///< text colour
    tagZoColorRGBA reservedColor; ///< not used
    unsigned char reservedByte;   ///< not used
    unsigned int fontSize;        ///< glyph height in pixels; 40 and 0 are special, see above
    unsigned char bold;           ///< nonzero: heavier strokes
    unsigned char reservedStyle;  ///< not used
    unsigned char italic;         ///< nonzero: slanted to the right
};

/// An image in client memory to show on the window, with straight (not premultiplied) alpha.
struct tagZoBitmapInfo {
    const unsigned char* data; ///< width * height * 4 bytes, top row first; owned by the client
    int format;                ///< ZO_FORMAT_RGBA8888; any other value is logged and ignored
    unsigned int reserved0;    ///< not read
    unsigned int reserved1;    ///< not read
    unsigned int width;        ///< bitmap width in pixels
    unsigned int height;       ///< bitmap height in pixels
    tagZoRectInfo rect;        ///< destination in window pixels; the bitmap is scaled to it
};

/// A copy from one buffer to another, or within one buffer.
struct tagZoBlitInfo {
    unsigned int srcHandle; ///< buffer to read from; the window cannot be read
    unsigned int dstHandle; ///< buffer to write to, or ZO_WINDOW_HANDLE
    tagZoRectInfo srcRect;  ///< region to read, in pixels of the source buffer
    tagZoRectInfo dstRect;  ///< region to write, in pixels of the destination
};

/// The record from which the surface restores an off-screen buffer after the window was lost.
/// Internal: no operation takes or returns it.
struct TagFboInfo {
    unsigned int handle; ///< the buffer's handle; ZO_NO_HANDLE marks an unused entry
    int width;           ///< pixels
    int height;          ///< pixels
    int format;          ///< GL pixel format of its texture
};

/// Draws an on-screen display on one native window.
///
/// Bind it to a window with `ZoCreateGLWindowSurface`, create buffers with `ZoCreateGLFBO`, draw,
/// and show each frame with `ZoRefreshOnSrceen`. When the window goes away, call
/// `ZoDestoryGLWindowSurface`. The next `ZoCreateGLWindowSurface` restores every buffer under its
/// old handle, cleared.
///
/// Threads: binding makes the surface's EGL context current on the calling thread. Make every other
/// call on that thread. Never use a surface from two threads at once.
///
/// Processes: all surfaces share EGL's default display, and releasing one surface terminates the
/// display for the whole process. Keep at most one surface bound at a time.
///
/// Errors: no operation throws, and an operation that fails draws nothing. If memory is exhausted,
/// the operation returns ZO_FAILURE, ZO_PROGRAM_FAILED while it builds a program, or a font code
/// while it opens a font; a glyph without memory is left out. Binding succeeds even if there is no
/// memory to restore the buffers; the log says so. Exhausted driver memory is not detected: a
/// bitmap or buffer without memory shows as opaque black, a glyph as a solid rectangle.
///
/// One frame, without checks of the result codes:
/// @code
/// const tagZoRectInfo all = {0, 0, surface.ZoGetWindowWidth(), surface.ZoGetWindowHeight()};
/// const tagZoColorRGBA clear = {0, 0, 0, 0};
/// surface.ZoDrawRect(buffer, &all, &clear);   // clear the buffer
/// surface.ZoDrawText(buffer, &text, &pen);    // compose the frame
/// surface.ZoDisplayFBO(buffer, &all, &all);   // copy it to the window
/// surface.ZoRefreshOnSrceen();                // show the window
/// @endcode
class ZOGLES_API ZoGLDrawSurface {
public:
    /// Creates an unbound surface of 1920 by 1080 pixels. Makes no EGL call.
    ZoGLDrawSurface();

    /// Releases EGL and everything that the surface owns. Makes no EGL call if the surface was
    /// never bound.
    ~ZoGLDrawSurface();

    /// Surfaces cannot be copied: each owns its EGL context.
    ZoGLDrawSurface(const ZoGLDrawSurface&) = delete;
    /// Surfaces cannot be assigned.
    ZoGLDrawSurface& operator=(const ZoGLDrawSurface&) = delete;

    /// Binds the surface to a window, makes its context current on the calling thread and queries
    /// the window's size.
    ///
    /// If the surface is bound already, it moves to the new window and keeps every buffer, font and
    /// component. Drawing with ZO_WINDOW_HANDLE then keeps the old window's scale; unbind first if
    /// the sizes differ. If the surface was unbound, its buffers are restored, unless a drawing
    /// operation or `Init` was called on the unbound surface in the meantime.
    /// @param window owned by the client; must stay alive until it is unbound
    /// @return ZO_SUCCESS; ZO_INVALID_PARAM for a null window, which changes nothing; a code from
    ///     ZO_NO_DISPLAY to ZO_NO_WINDOW_SURFACE, which leaves the surface unbound; or ZO_FAILURE,
    ///     usually because the context cannot be made current: call `ZoDestoryGLWindowSurface` then
    int ZoCreateGLWindowSurface(ANativeWindow* window);

    /// Unbinds the surface: releases EGL and destroys every component, font and buffer. Keeps the
    /// buffers' handles and sizes for the next binding. On an unbound surface, it only destroys
    /// what other operations have created in the meantime.
    void ZoDestoryGLWindowSurface();

    /// Creates the components whose `ZoComponent` bits are set and which do not exist yet. Ignores
    /// other bits. Stops at the first failure and keeps the components created before it.
    ///
    /// Optional: each operation creates its component on first use. Call `Init` to spend this time
    /// before the first frame.
    /// @param flags `ZoComponent` bits. If the text bit is set and no font is loaded, the
    ///     platform's default font is loaded
    /// @pre the surface is bound
    /// @return ZO_SUCCESS, ZO_PROGRAM_FAILED, a font code (30 to 32) or ZO_FAILURE
    int Init(unsigned int flags);

    /// Shows the frame drawn on the window, with `eglSwapBuffers`. The window's contents are
    /// undefined afterwards: draw each frame completely. May block until the display is ready.
    /// @return ZO_SUCCESS, even if EGL fails to show the frame; or ZO_NO_EGL_MANAGER if no window
    ///     is bound
    int ZoRefreshOnSrceen() const;

    /// The window's width as of the last binding. Bind again after a resize.
    /// @return pixels; 1920 before the first binding
    unsigned int ZoGetWindowWidth() const;

    /// The window's height as of the last binding.
    /// @return pixels; 1080 before the first binding
    unsigned int ZoGetWindowHeight() const;

    /// Creates an off-screen buffer and clears it to transparent black. A surface has up to 15
    /// buffers. The surface owns the buffer until `ZoDestoryGLFBO` and restores it after a lost
    /// window.
    /// @param handle receives the new buffer's handle; unchanged on failure
    /// @param width pixels
    /// @param height pixels; if the driver rejects the size, this is logged and drawing into the
    ///     buffer has no effect
    /// @param format ZO_FORMAT_RGBA8888; any other value is logged and ignored
    /// @return ZO_SUCCESS, ZO_NO_FREE_FBO, ZO_INVALID_PARAM for a null pointer, or ZO_FAILURE if no
    ///     window is bound
    int ZoCreateGLFBO(unsigned int* handle, unsigned int width, unsigned int height, int format);

    /// Destroys an off-screen buffer. An unknown handle, such as ZO_WINDOW_HANDLE, is logged and
    /// changes nothing. A later buffer may get the same handle.
    /// @param handle handle from `ZoCreateGLFBO`
    /// @return ZO_SUCCESS, even for an unknown handle; or ZO_NO_FBO_MANAGER if the surface has no
    ///     buffer pool, normally because no window is bound: the next binding then restores the
    ///     buffer
    int ZoDestoryGLFBO(unsigned int handle);

    /// Fills a rectangle of a target. Replaces colour and alpha, without blending: alpha 0 erases.
    /// @code
    /// const tagZoRectInfo all = {0, 0, 640, 360};
    /// const tagZoColorRGBA clear = {0, 0, 0, 0};
    /// surface.ZoDrawRect(buffer, &all, &clear);   // empties a buffer of 640 by 360
    /// @endcode
    /// @param fbo handle of a buffer, or ZO_WINDOW_HANDLE
    /// @param rect pixels of the target
    /// @param color colour and alpha
    /// @pre the surface is bound
    /// @return ZO_SUCCESS, ZO_INVALID_PARAM for a null pointer or an unknown handle,
    ///     ZO_PROGRAM_FAILED or ZO_FAILURE
    int ZoDrawRect(unsigned int fbo, const tagZoRectInfo* rect, const tagZoColorRGBA* color);

    /// Copies a region of a buffer to a region of another, with linear scaling if their sizes
    /// differ. Replaces colour and alpha, without blending. Source and destination may be the same
    /// buffer and may overlap. Outside the source buffer, its edge pixels are repeated. The window
    /// can be the destination; as a source, it is opaque black.
    /// @code
    /// const tagZoBlitInfo scroll = {list, list, {0, 40, 300, 360}, {0, 0, 300, 360}};
    /// surface.ZoBlit(&scroll);   // moves a list of 300 by 400 up by one row of 40
    /// @endcode
    /// @param info the two handles and regions
    /// @pre the surface is bound
    /// @return ZO_SUCCESS, ZO_INVALID_PARAM for a null pointer or an unknown handle,
    ///     ZO_PROGRAM_FAILED or ZO_FAILURE
    int ZoBlit(const tagZoBlitInfo* info);

    /// Clears the whole window to transparent black, then blends a region of a buffer onto it: a
    /// buffer pixel (r, g, b, a) becomes (r*a, g*a, b*a, a*a) on the window. Everything drawn on
    /// the window earlier in the frame is lost. On failure, the window is unchanged.
    /// @param fbo handle of the buffer; ZO_WINDOW_HANDLE shows as opaque black
    /// @param src region to show, in pixels of the buffer
    /// @param dst destination in pixels of the window; the region is scaled to it
    /// @pre the surface is bound
    /// @return ZO_SUCCESS, ZO_INVALID_PARAM for a null pointer or an unknown handle,
    ///     ZO_PROGRAM_FAILED or ZO_FAILURE
    int ZoDisplayFBO(unsigned int fbo, const tagZoRectInfo* src, const tagZoRectInfo* dst);

    /// Clears the whole window to transparent black, then blends an image from client memory onto
    /// it, as `ZoDisplayFBO` does. Uploads the pixels at every call and keeps no copy.
    /// @param info the image and its destination
    /// @pre the surface is bound; `info->data` has width * height * 4 bytes, or is null, which
    ///     shows an image of undefined content
    /// @return ZO_SUCCESS, ZO_INVALID_PARAM for a null pointer, ZO_PROGRAM_FAILED or ZO_FAILURE
    int ZoDisplayBitmap(const tagZoBitmapInfo* info);

    /// Loads a font for all text and renders its glyphs for standard text. If no font was loaded
    /// since the binding, the first text operation loads the platform's default font at 40 pixels.
    /// The font is lost with the window.
    /// @param path a file in any format that FreeType opens. The file stays open and mapped until
    ///     another font is loaded or the window is lost: replace it by renaming, never in place
    /// @param size glyph height in pixels for standard text and for measuring; 0 means 40
    /// @pre the surface is bound
    /// @return ZO_SUCCESS; ZO_INVALID_PARAM for a null path, which changes nothing; or a font code
    ///     (30 to 32) or ZO_FAILURE, which unload the previous font. The default font does not
    ///     replace it: until a font is loaded, standard text draws nothing with ZO_SUCCESS and
    ///     measures 30 pixels per unit, and styled text returns ZO_SUCCESS or ZO_FONT_ATLAS_EMPTY.
    ///     If only the second of the two attempts to open the file fails, standard text has the new
    ///     font
    int ZoLoadFont(const char* path, unsigned int size);

    /// Measures a text in pixels at the size passed to `ZoLoadFont`, regardless of the text's own
    /// size and style: the sum of its units' advances, and 30 for each unit without a visible glyph
    /// (a space, a line feed). A glyph that starts left of the pen and is wider than its advance
    /// counts with its bitmap's width. The height is always 50.
    /// @param info the text; only `text` and `length` are used
    /// @param width receives the width; unchanged on failure
    /// @param height receives the height; unchanged on failure
    /// @pre the surface is bound
    /// @return ZO_SUCCESS, ZO_INVALID_PARAM for a null pointer, a font code (30 to 32),
    ///     ZO_PROGRAM_FAILED or ZO_FAILURE
    int ZoGetTextSize(const tagZoTextInfo* info, unsigned int* width, unsigned int* height);

    /// Draws one line of text, blended over the target. Units without a visible glyph (a space, a
    /// line feed) are logged and do not advance the pen.
    /// @code
    /// tagZoTextInfo text = {};
    /// text.text = u"Volume";
    /// text.length = 6;
    /// text.color = {255, 255, 255, 255};
    /// text.fontSize = 40;
    /// const tagZoRectInfo pen = {20, 60, 0, 0};   // the baseline is y = 60
    /// surface.ZoDrawText(buffer, &text, &pen);
    /// @endcode
    /// @param handle handle of a buffer, or ZO_WINDOW_HANDLE
    /// @param info the text, its colour, size and style
    /// @param rect x is where the first glyph starts and y is the baseline, in pixels of the
    ///     target; width and height are ignored; only the target's edges clip the text
    /// @pre the surface is bound
    /// @return ZO_SUCCESS, ZO_INVALID_PARAM for a null pointer, an unknown handle or a target of
    ///     size 0, a font code (30 to 32), ZO_PROGRAM_FAILED or ZO_FAILURE
    int ZoDrawText(unsigned int handle, const tagZoTextInfo* info, const tagZoRectInfo* rect);

private:
    static constexpr int fboInfoCount = 16;

    // Conversions from the client's pixels and bytes to GL's units.
    unsigned int ConvertFormatToGLES(int format) const;
    void ScreenCoordToVCoord(const tagZoRectInfo* in, tagRectInfo* out, unsigned int targetWidth,
                             unsigned int targetHeight) const;
    void ScreenCoordToFboCoord(const tagZoRectInfo* in, tagRectInfo* out, unsigned int targetWidth,
                               unsigned int targetHeight) const;
    void ConvertGLColor(const tagZoColorRGBA* in, tagColorRGBA* out) const;
    void SetTextInfo(const tagZoTextInfo* in, tagTextInfo* out) const;
    void SetBitmapInfo(tagBitmapInfo* out, const tagZoBitmapInfo* in, unsigned int targetWidth,
                       unsigned int targetHeight) const;

    // Lifecycle: destroys everything that depends on the GL context, in a fixed order.
    void ResetGLSource();

    // Buffer handles and the table from which buffers are restored.
    int CreatePool();
    int EnsurePool() { return fboManager ? ZO_SUCCESS : CreatePool(); }
    inline int FindTarget(unsigned int handle, tagFrameBuffObject* target);
    int ResetFboSource();
    void FBOManagerInit(unsigned int flags);
    void SaveFboInfo(unsigned int handle, int width, int height, int format);
    void RemoveFBO(unsigned int handle);
    void InitFBO(TagFboInfo* entry) const;

    // Each creates one component if its flag is set.
    int OSDTextInit(unsigned int flags);
    int OSDBlitInit(unsigned int flags);
    int OSDBitmapInit(unsigned int flags);
    int OSDFrameInit(unsigned int flags);
    int OSDRectInit(unsigned int flags);
    int CreateAtlases();

    std::unique_ptr<EGLManager> eglManager;
    std::unique_ptr<FBOManager> fboManager;
    std::shared_ptr<FontAtlas> fontAtlas;
    std::shared_ptr<FontStyleAtlas> fontStyleAtlas;
    std::unique_ptr<OSDText> osdText;
    std::unique_ptr<OSDBlit> osdBlit;
    std::unique_ptr<OSDBitmap> osdBitmap;
    std::unique_ptr<OSDFrame> osdFrame;
    std::unique_ptr<OSDRect> osdRect;
    unsigned int windowWidth = 1920;
    unsigned int windowHeight = 1080;
    bool fontLoaded = false;
    bool surfaceCreated = false;
    TagFboInfo fboInfo[fboInfoCount];
};

#endif

/// @file
/// The one public header of libzogles: the records that clients hand over, the result codes, and
/// `ZoGLDrawSurface`, which draws an on-screen display with OpenGL ES 2.0 on a native window.
///
/// Pixels are counted from the top-left corner of a target, x to the right and y downwards. The
/// pointers in the records belong to the client and are read only while a call lasts.
#ifndef ZOGLES_ZOGLDRAWSURFACE_H
#define ZOGLES_ZOGLDRAWSURFACE_H

#include <memory>

/// Major version: programs built for another one do not run with this library.
#define ZOGLES_VERSION_MAJOR 1
/// Minor version: adds features, stays compatible.
#define ZOGLES_VERSION_MINOR 0
/// Patch version: bug fixes only.
#define ZOGLES_VERSION_PATCH 0

#if defined(ZOGLES_STATIC)
#define ZOGLES_API
#else
/// Marks what the shared library exports; nothing where ZOGLES_STATIC is defined.
#define ZOGLES_API __attribute__((visibility("default")))
#endif

/// Marks inline functions that the shared library exports all the same.
#define ZOGLES_INLINE ZOGLES_API __attribute__((used))

/// The platform's native window. Where the platform has no such type of its own, the pointer is
/// the EGL native window value itself: for X11
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

/// What the operations return. Every failure is also written to the platform log.
enum ZoResult : int {
    ZO_SUCCESS = 0,             ///< done
    ZO_NO_DISPLAY = 1,          ///< EGL has no display
    ZO_DISPLAY_INIT_FAILED = 2, ///< the EGL display could not be initialised
    ZO_NO_CONFIG = 3,           ///< EGL could not choose a configuration
    ZO_NO_CONTEXT = 4,          ///< the OpenGL ES 2.0 context could not be created
    ZO_NO_WINDOW_SURFACE = 5,   ///< the EGL window surface could not be created
    ZO_NO_EGL_MANAGER = 6,      ///< a frame was presented while no window is bound
    ZO_RESERVED_10 = 10,        ///< reserved, never returned
    ZO_RESERVED_11 = 11,        ///< reserved, never returned
    ZO_RESERVED_12 = 12,        ///< reserved, never returned
    ZO_RESERVED_13 = 13,        ///< reserved, never returned
    ZO_RESERVED_14 = 14,        ///< reserved, never returned
    ZO_NO_FREE_FBO = 15,        ///< all 15 off-screen buffers are in use
    ZO_PROGRAM_FAILED = 20,     ///< a shader program could not be built
    ZO_FREETYPE_FAILED = 30,    ///< FreeType could not be initialised
    ZO_FONT_FACE_FAILED = 31,   ///< the font file could not be opened
    ZO_FONT_ATLAS_EMPTY = 32,   ///< no visible glyph in the font or text, or no font is open
    ZO_FAILURE = 100,           ///< general failure; the log says which
    ZO_INVALID_PARAM = 101,  ///< a null pointer, an unknown handle, or a target of size 0 for text
    ZO_NO_FBO_MANAGER = 102, ///< a buffer was destroyed while there is no pool of buffers
};

/// The components that `ZoGLDrawSurface::Init` creates, to be or-ed together.
enum ZoComponent : unsigned int {
    ZO_COMPONENT_TEXT = 0x01,   ///< text, with the default font unless one was loaded
    ZO_COMPONENT_BLIT = 0x02,   ///< copies between buffers
    ZO_COMPONENT_BITMAP = 0x04, ///< client bitmaps on the window
    ZO_COMPONENT_RECT = 0x08,   ///< filled rectangles
    ZO_COMPONENT_FRAME = 0x10,  ///< presentation of a buffer on the window
    ZO_COMPONENT_FBO = 0x20,    ///< the pool of off-screen buffers
};

/// The handle that names the window's own framebuffer; it is never created nor destroyed.
constexpr unsigned int ZO_WINDOW_HANDLE = 0x10000U;

/// Marks an empty entry where handles are kept; it names no buffer.
constexpr unsigned int ZO_NO_HANDLE = 0xFFFFFFFFU;

/// The one colour format: red, green, blue and alpha in this order, 8 bits each.
constexpr int ZO_FORMAT_RGBA8888 = 9;

/// A rectangle in pixels of its target, counted from the target's top-left corner. It may reach
/// past the target's right and bottom sides: what lies outside is cut.
struct tagZoRectInfo {
    unsigned int x;      ///< left edge, pixels from the target's left side
    unsigned int y;      ///< top edge, pixels from the target's top side
    unsigned int width;  ///< pixels
    unsigned int height; ///< pixels
};

/// A colour, not premultiplied. A channel of 2 to 255 means channel/255; 0 and 1 are the intensity
/// itself, so that 1 and 255 both mean full intensity. So 2 is the darkest that is not black.
struct tagZoColorRGBA {
    unsigned char r; ///< red
    unsigned char g; ///< green
    unsigned char b; ///< blue
    unsigned char a; ///< alpha: 0 transparent, 1 and 255 opaque
};

/// A text to draw or to measure. Zero it before filling it in, so that what is not set is plain:
/// `tagZoTextInfo text = {};`
///
/// Plain text of size 40, the standard size, is as high as `ZoLoadFont` was told, and ready to draw.
/// Text of any other size, bold or italic, is rendered at every draw, and ends at its first zero
/// unit. A size of 0 is rendered at 40.
struct tagZoTextInfo {
    const char16_t* text;         ///< UTF-16 code units, owned by the client; null if empty
    unsigned int length;          ///< how many units to draw or measure; no more are ever read
    tagZoColorRGBA color;         ///< colour of the text
    tagZoColorRGBA reservedColor; ///< not used
    unsigned char reservedByte;   ///< not used
    unsigned int fontSize;        ///< glyph height in pixels; see above for 40 and 0
    unsigned char bold;           ///< nonzero: heavier strokes
    unsigned char reservedStyle;  ///< not used
    unsigned char italic;         ///< nonzero: slanted to the right
};

/// Client pixels to show on the window, not premultiplied. They are read while the call lasts.
struct tagZoBitmapInfo {
    const unsigned char* data; ///< width * height * 4 bytes, rows from the top; owned by the client
    int format;                ///< ZO_FORMAT_RGBA8888; any other value is logged and taken as that
    unsigned int reserved0;    ///< not read
    unsigned int reserved1;    ///< not read
    unsigned int width;        ///< bitmap width in pixels
    unsigned int height;       ///< bitmap height in pixels
    tagZoRectInfo rect; ///< where to show it, in window pixels; the bitmap is stretched to it
};

/// A copy from one buffer into another, or within one buffer.
struct tagZoBlitInfo {
    unsigned int srcHandle; ///< buffer to read from; the window holds no image
    unsigned int dstHandle; ///< buffer to write to, or ZO_WINDOW_HANDLE
    tagZoRectInfo srcRect;  ///< region to read, in pixels of the source buffer
    tagZoRectInfo dstRect;  ///< region to write, in pixels of the destination buffer
};

/// What the surface remembers of one off-screen buffer, so as to create it again after the window
/// was lost. Kept by the surface; no operation takes or returns one.
struct TagFboInfo {
    unsigned int handle; ///< the buffer's handle; ZO_NO_HANDLE marks an empty entry
    int width;           ///< pixels
    int height;          ///< pixels
    int format;          ///< GL pixel format of its texture
};

/// An on-screen display on one native window.
///
/// Bind it with `ZoCreateGLWindowSurface`, create buffers with `ZoCreateGLFBO`, draw, and show each
/// frame with `ZoRefreshOnSrceen`. When the window goes away, call `ZoDestoryGLWindowSurface`; after
/// the next `ZoCreateGLWindowSurface` every buffer is back under its old handle, cleared.
///
/// Thread: every call comes from the thread that bound the window, whose current EGL context the
/// surface's is from then on. One surface is never used from two threads at once.
///
/// Process: all surfaces share EGL's default display, and releasing one terminates that display for
/// the whole process. Two surfaces bound at the same time in one process disturb each other.
///
/// No operation throws. Where memory is refused, the operation logs a line and returns
/// ZO_FAILURE, or ZO_PROGRAM_FAILED if it was to build a program.
/// An operation that fails draws nothing. Exhausted driver memory is not detected: a bitmap or buffer
/// without memory shows as opaque black, a glyph as a solid rectangle.
///
/// A frame, with the result codes left out:
/// @code
/// const tagZoRectInfo all = {0, 0, surface.ZoGetWindowWidth(), surface.ZoGetWindowHeight()};
/// const tagZoColorRGBA clear = {0, 0, 0, 0};
/// surface.ZoDrawRect(buffer, &all, &clear);   // start from an empty buffer
/// surface.ZoDrawText(buffer, &text, &pen);    // whatever belongs to the frame
/// surface.ZoDisplayFBO(buffer, &all, &all);   // put it on the window
/// surface.ZoRefreshOnSrceen();                // and show the window
/// @endcode
class ZOGLES_API ZoGLDrawSurface {
public:
    /// Makes an unbound surface of 1920 by 1080 pixels. Makes no EGL call.
    ZoGLDrawSurface();

    /// Releases EGL and everything the surface owns. Makes no EGL call if it was never bound.
    ~ZoGLDrawSurface();

    /// A surface is not copied: it owns its context.
    ZoGLDrawSurface(const ZoGLDrawSurface&) = delete;
    /// A surface is not assigned either.
    ZoGLDrawSurface& operator=(const ZoGLDrawSurface&) = delete;

    /// Binds the surface to a window, makes its context current on the calling thread and takes the
    /// window's size. Called again while bound, it moves to the new window and keeps every buffer,
    /// font and component; the size that the pool holds for the window handle stays the old one.
    /// After a loss of the window, it creates the recorded buffers again, unless a drawing
    /// operation on the unbound surface has made a pool in the meantime.
    /// @param window stays the client's, who keeps it alive until it is let go of
    /// @return ZO_SUCCESS; ZO_INVALID_PARAM for a null window, with nothing changed; a code from
    ///     ZO_NO_DISPLAY to ZO_NO_WINDOW_SURFACE, with the surface unbound afterwards; or
    ///     ZO_FAILURE when the context cannot be made current: call `ZoDestoryGLWindowSurface` then
    int ZoCreateGLWindowSurface(ANativeWindow* window);

    /// Lets go of the window: releases EGL and drops every component, font and buffer. The buffers'
    /// handles and sizes are kept for the next binding. On an unbound surface it changes nothing
    /// but drops what drawing operations made in the meantime.
    void ZoDestoryGLWindowSurface();

    /// Creates the components whose `ZoComponent` bits are set and which do not exist yet, so that
    /// no later operation has to. Other bits are ignored. Stops at the first failure and keeps what
    /// was created before it.
    ///
    /// Optional: each operation creates what it needs when it is first used. With it, that time is
    /// spent before the first frame.
    /// @param flags `ZoComponent` bits, or-ed. Load your own font first where the text bit is set,
    ///     or the platform's default font is loaded
    /// @pre the surface is bound
    /// @return ZO_SUCCESS, ZO_PROGRAM_FAILED, a font code (30 to 32) or ZO_FAILURE
    int Init(unsigned int flags);

    /// Shows what was drawn on the window since the last call. What the window holds afterwards is
    /// undefined: draw each frame as a whole. It may wait for the display.
    /// @return ZO_SUCCESS, also when EGL could not show the frame, or ZO_NO_EGL_MANAGER when no
    ///     window is bound
    int ZoRefreshOnSrceen() const;

    /// Tells the window's width as of the last binding; a window that is resized later has to be
    /// bound again.
    /// @return pixels: 1920 before the first binding, then what EGL told when the window was bound
    unsigned int ZoGetWindowWidth() const;

    /// Tells the window's height as of the last binding.
    /// @return pixels: 1080 before the first binding, then what EGL told when the window was bound
    unsigned int ZoGetWindowHeight() const;

    /// Creates an off-screen buffer, transparent black all over. There can be 15 of them. The
    /// surface owns it; it lives until `ZoDestoryGLFBO`, beyond the loss of the window.
    /// @param handle receives the new buffer's handle; untouched on failure
    /// @param width pixels
    /// @param height pixels; a size that the driver cannot make is logged, and nothing drawn into
    ///     such a buffer leaves a mark
    /// @param format ZO_FORMAT_RGBA8888; any other value is logged and taken as that
    /// @return ZO_SUCCESS, ZO_NO_FREE_FBO, ZO_INVALID_PARAM for a null pointer, or ZO_FAILURE when
    ///     no window is bound
    int ZoCreateGLFBO(unsigned int* handle, unsigned int width, unsigned int height, int format);

    /// Destroys an off-screen buffer. An unknown handle is logged and changes nothing; the window
    /// handle counts as unknown. The handle may be given to a new buffer later.
    /// @param handle what `ZoCreateGLFBO` gave
    /// @return ZO_SUCCESS, or ZO_NO_FBO_MANAGER while there is no pool of buffers, that is, mostly,
    ///     while no window is bound; the buffer comes back with the next binding then
    int ZoDestoryGLFBO(unsigned int handle);

    /// Fills a rectangle of a target. Colour and alpha replace what was there: alpha 0 erases.
    /// @code
    /// const tagZoRectInfo all = {0, 0, 640, 360};
    /// const tagZoColorRGBA clear = {0, 0, 0, 0};
    /// surface.ZoDrawRect(buffer, &all, &clear);   // empties a buffer of 640 by 360
    /// @endcode
    /// @param fbo handle of a buffer, or ZO_WINDOW_HANDLE
    /// @param rect pixels of the target
    /// @param color colour and alpha, not premultiplied
    /// @pre the surface is bound
    /// @return ZO_SUCCESS, ZO_INVALID_PARAM for a null pointer or an unknown handle,
    ///     ZO_PROGRAM_FAILED or ZO_FAILURE
    int ZoDrawRect(unsigned int fbo, const tagZoRectInfo* rect, const tagZoColorRGBA* color);

    /// Copies a region of one buffer into a region of another, scaled linearly when the two differ
    /// in size. Colour and alpha replace what was there. Source and destination may be the same
    /// buffer and may overlap. A source region past the buffer's edges repeats its edge pixels. The
    /// window can be written to; it holds no image to read from, and is opaque black as a source.
    /// @code
    /// const tagZoBlitInfo scroll = {list, list, {0, 40, 300, 360}, {0, 0, 300, 360}};
    /// surface.ZoBlit(&scroll);   // a list of 300 by 400 moves up by a row of 40
    /// @endcode
    /// @param info the two buffers and their regions
    /// @pre the surface is bound
    /// @return ZO_SUCCESS, ZO_INVALID_PARAM for a null pointer or an unknown handle,
    ///     ZO_PROGRAM_FAILED or ZO_FAILURE
    int ZoBlit(const tagZoBlitInfo* info);

    /// Clears the whole window to transparent black and draws a region of a buffer on it, blended:
    /// a pixel (r, g, b, a) lands as (r*a, g*a, b*a, a*a). The call replaces everything that was
    /// drawn on the window before it in this frame. On failure the window is left as it was.
    /// @param fbo handle of the buffer; the window itself shows as opaque black
    /// @param src region to show, in pixels of the buffer
    /// @param dst where to show it, in pixels of the window; the region is stretched to it
    /// @pre the surface is bound
    /// @return ZO_SUCCESS, ZO_INVALID_PARAM for a null pointer or an unknown handle,
    ///     ZO_PROGRAM_FAILED or ZO_FAILURE
    int ZoDisplayFBO(unsigned int fbo, const tagZoRectInfo* src, const tagZoRectInfo* dst);

    /// Clears the whole window to transparent black and draws client pixels on it, blended as by
    /// `ZoDisplayFBO`. Uploads the pixels at every call; nothing is kept.
    /// @param info the pixels, and where to show them
    /// @pre the surface is bound; `info->data` holds width * height * 4 bytes, or is null for a
    ///     bitmap without defined content
    /// @return ZO_SUCCESS, ZO_INVALID_PARAM for a null pointer, ZO_PROGRAM_FAILED or ZO_FAILURE
    int ZoDisplayBitmap(const tagZoBitmapInfo* info);

    /// Loads a font file for all text drawn from now on. Without it, the first text operation loads
    /// the platform's default font at 40 pixels. A loaded font is dropped with the window.
    /// @param path a file of any format that FreeType opens; the path is not kept, but the file
    ///     stays open and mapped until another font is loaded or the window is lost: replace it by
    ///     renaming, never in place
    /// @param size glyph height in pixels for text of the standard style (40, neither bold nor
    ///     italic) and for measuring; 0 means 40
    /// @pre the surface is bound
    /// @return ZO_SUCCESS; ZO_INVALID_PARAM for a null path, with nothing changed; a font code (30 to
    ///     32) or ZO_FAILURE: the font loaded before is gone then. Until another is loaded, text draws
    ///     nothing: plain text with ZO_SUCCESS, measuring 30 a unit, and styled text with that or with
    ///     ZO_FONT_ATLAS_EMPTY
    int ZoLoadFont(const char* path, unsigned int size);

    /// Measures a text in pixels at the size given to `ZoLoadFont`, whatever it asks for: the sum
    /// of its units' advances, with 30 for each unit that the font cannot show (a space, a line
    /// feed). The height is always 50.
    /// @param info the text; only `text` and `length` count
    /// @param width receives the width; untouched on failure
    /// @param height receives the height; untouched on failure
    /// @pre the surface is bound
    /// @return ZO_SUCCESS, ZO_INVALID_PARAM for a null pointer, a font code (30 to 32),
    ///     ZO_PROGRAM_FAILED or ZO_FAILURE
    int ZoGetTextSize(const tagZoTextInfo* info, unsigned int* width, unsigned int* height);

    /// Draws one line of text, blended over what the target holds. Units that the font cannot show
    /// (a space, a line feed) are logged and take no room.
    /// @code
    /// tagZoTextInfo text = {};
    /// text.text = u"Volume";
    /// text.length = 6;
    /// text.color = {255, 255, 255, 255};
    /// text.fontSize = 40;
    /// const tagZoRectInfo pen = {20, 60, 0, 0};   // letters stand on y = 60
    /// surface.ZoDrawText(buffer, &text, &pen);
    /// @endcode
    /// @param handle handle of a buffer, or ZO_WINDOW_HANDLE
    /// @param info the text, its colour, size and style
    /// @param rect its x is where the first glyph starts and its y is the baseline, in pixels of
    ///     the target; width and height are not used and nothing is clipped to them
    /// @pre the surface is bound
    /// @return ZO_SUCCESS, ZO_INVALID_PARAM for a null pointer, an unknown handle or a target of
    ///     size 0, a font code (30 to 32), ZO_PROGRAM_FAILED or ZO_FAILURE
    int ZoDrawText(unsigned int handle, const tagZoTextInfo* info, const tagZoRectInfo* rect);

private:
    static constexpr int fboInfoCount = 16;

    // Conversions from the client's pixels and bytes to what GL takes.
    unsigned int ConvertFormatToGLES(int format) const;
    void ScreenCoordToVCoord(const tagZoRectInfo* in, tagRectInfo* out, unsigned int targetWidth,
                             unsigned int targetHeight) const;
    void ScreenCoordToFboCoord(const tagZoRectInfo* in, tagRectInfo* out, unsigned int targetWidth,
                               unsigned int targetHeight) const;
    void ConvertGLColor(const tagZoColorRGBA* in, tagColorRGBA* out) const;
    void SetTextInfo(const tagZoTextInfo* in, tagTextInfo* out) const;
    void SetBitmapInfo(tagBitmapInfo* out, const tagZoBitmapInfo* in, unsigned int targetWidth,
                       unsigned int targetHeight) const;

    // Lifecycle: drops everything that depends on the GL context, in a fixed order.
    void ResetGLSource();

    // Buffer handles and the table that outlives the context.
    int CreatePool();
    int EnsurePool() { return fboManager ? ZO_SUCCESS : CreatePool(); }
    inline int FindTarget(unsigned int handle, tagFrameBuffObject* target);
    int ResetFboSource();
    void FBOManagerInit(unsigned int flags);
    void SaveFboInfo(unsigned int handle, int width, int height, int format);
    void RemoveFBO(unsigned int handle);
    void InitFBO(TagFboInfo* entry) const;

    // Each creates the component of its flag; does nothing when the flag is clear.
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

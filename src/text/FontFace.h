/// @file
/// Opening a font file with FreeType, and loading its glyphs.
#ifndef ZOGLES_TEXT_FONTFACE_H
#define ZOGLES_TEXT_FONTFACE_H

#include <ft2build.h>
#include FT_FREETYPE_H

/// The size, in pixels, that text of size 0 gets.
constexpr unsigned int defaultFontSize = 40;

/// Opens the first face of a font file with a FreeType instance of its own, or logs under `tag`.
/// @return ZO_SUCCESS; ZO_FREETYPE_FAILED; or ZO_FONT_FACE_FAILED, with `library` open all the same
int OpenFace(const char* tag, const char* path, FT_Library& library, FT_Face& face);

/// Closes face and library, those that are open, and leaves both null.
void CloseFace(FT_Library& library, FT_Face& face);

/// Sets the glyph height for what is loaded next, or logs under `tag` and keeps what is set.
/// @param size pixels; 0 means the default size
void SetPixelSize(const char* tag, FT_Face face, unsigned int size);

/// Loads and renders a character with strokes heavier by one pixel into the face's glyph slot. The
/// advance stays the font's.
/// @return 0, or FreeType's error
FT_Error LoadBoldChar(FT_Face face, FT_ULong code);

#endif

// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// Opens font files with FreeType and loads their glyphs.
#ifndef ZOGLES_TEXT_FONTFACE_H
#define ZOGLES_TEXT_FONTFACE_H

#include <ft2build.h>
#include FT_FREETYPE_H

/// The size in pixels for text of size 0.
constexpr unsigned int defaultFontSize = 40;

/// Opens the first face of a font file with a new FreeType library. Logs a failure under `tag`.
/// @return ZO_SUCCESS; ZO_FREETYPE_FAILED; or ZO_FONT_FACE_FAILED, with `library` still open
int OpenFace(const char* tag, const char* path, FT_Library& library, FT_Face& face);

/// Closes the face and the library if they are open, and sets both to null.
void CloseFace(FT_Library& library, FT_Face& face);

/// Sets the height of the glyphs loaded next. On failure, logs under `tag` and keeps the old
/// height.
/// @param size pixels; 0 means the default size
void SetPixelSize(const char* tag, FT_Face face, unsigned int size);

/// Loads and renders a character with strokes one pixel heavier into the face's glyph slot. The
/// advance does not change.
/// @return 0, or FreeType's error
FT_Error LoadBoldChar(FT_Face face, FT_ULong code);

#endif

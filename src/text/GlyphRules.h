/// @file
/// The rules that measuring and drawing of text share.
#ifndef ZOGLES_TEXT_GLYPHRULES_H
#define ZOGLES_TEXT_GLYPHRULES_H

#include "platform/Log.h"
#include "text/Glyph.h"

#include <cstdint>

constexpr char textTag[] = "OSDText";

/// Text of this size, in pixels, comes from the standard atlas unless it is bold or italic.
constexpr unsigned int standardFontSize = 40;

/// The glyph of a unit that leaves a mark, or null. A space has a glyph, but leaves none.
inline const tagGlyphInfo* FindShown(const GlyphMap::UnitReader& standard, char16_t unit) {
    const tagGlyphInfo* glyph = standard.Lookup(unit);
    const bool isShown =
        glyph != nullptr && glyph->bitmapWidth != 0.0f && glyph->bitmapHeight != 0.0f;
    return isShown ? glyph : nullptr;
}

/// Says that the font cannot show a unit.
inline void LogAbsent(char16_t unit) {
    __android_log_print(LogError, textTag, "Char %lu is not exit\n",
                        static_cast<unsigned long>(unit));
}

/// Whether a glyph's bitmap starts left of the pen and is wider than its advance. Such a glyph is
/// drawn from the pen on and measured by its bitmap.
inline bool IsOverhanging(const tagGlyphInfo& glyph) {
    return glyph.bitmapLeft < 0.0f && glyph.advanceX > 0.0f && glyph.advanceX < glyph.bitmapWidth;
}

/// Truncates toward zero; what does not fit 32 bits wraps, as unsigned sums do.
inline unsigned int TruncateToUnsigned(float value) {
    return static_cast<unsigned int>(static_cast<std::uint64_t>(value));
}

#endif

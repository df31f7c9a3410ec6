// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// The glyphs of an atlas, and the map from character codes to them.
#ifndef ZOGLES_TEXT_GLYPH_H
#define ZOGLES_TEXT_GLYPH_H

#include "zogles/ZoGLDrawSurface.h"

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <map>
#include <memory>
#include <utility>
#include <vector>

/// One glyph of an atlas: metrics in pixels, and the top-left corner of its bitmap in the atlas.
struct tagGlyphInfo {
    float advanceX;     ///< how far the pen moves to the right, whole pixels
    float advanceY;     ///< how far the pen moves up, whole pixels
    float bitmapWidth;  ///< pixels; 0 for a glyph without a visible shape, such as a space
    float bitmapHeight; ///< pixels
    float bitmapLeft;   ///< from the pen to the bitmap's left edge, pixels
    float bitmapTop;    ///< from the baseline up to the bitmap's top row, pixels
    float texX;         ///< 0 to 1 across the atlas
    float texY;         ///< 0 to 1 down the atlas
};
static_assert(sizeof(tagGlyphInfo) == 8 * sizeof(float));

/// An ordered map from character code to glyph.
///
/// Copying takes constant time: copies share one table until one of them is written to. Looking up
/// a UTF-16 unit takes a few instructions for any font. Iterators are constant and valid
/// until the next write; references are valid until the next write or copy.
class ZOGLES_API GlyphMap {
public:
    using key_type = unsigned long;
    using mapped_type = tagGlyphInfo;
    using value_type = std::pair<const key_type, mapped_type>;

    /// Visits the glyphs by ascending code.
    class const_iterator;
    using iterator = const_iterator;

    /// The glyph of a code. Inserts an all-zero record if the code is absent.
    tagGlyphInfo& operator[](unsigned long code);

    const_iterator find(unsigned long code) const;

    /// @throws std::out_of_range for an absent code
    const tagGlyphInfo& at(unsigned long code) const;

    size_t count(unsigned long code) const;
    const_iterator begin() const;
    const_iterator end() const;
    size_t size() const { return table ? table->entries.size() - 1 : 0; }
    bool empty() const { return size() == 0; }
    void clear() { table.reset(); }

    /// A view for looking up UTF-16 units in an inner loop, valid until the map is written to or
    /// destroyed.
    struct Units;
    Units ReadUnits() const;

    /// Whether both maps share one table, so that one look-up serves both.
    bool SharesTableWith(const GlyphMap& other) const { return table == other.table; }

private:
    static constexpr unsigned long pageSize = 256;
    static constexpr unsigned long unitPages = 0x10000 / pageSize;

    struct __attribute__((visibility("hidden"))) Table {
        std::uint32_t* MakeIndex(unsigned long code);

        /// In order of insertion. Entry 0 is all zero and represents every absent code.
        std::vector<value_type> entries = std::vector<value_type>(1);
        /// Page by page, the entry of each code. The first page is all zero and represents every
        /// absent page.
        std::vector<std::uint32_t> indices = std::vector<std::uint32_t>(pageSize);
        /// Where each page starts, by code / pageSize.
        std::map<unsigned long, std::uint32_t> pages;
        /// The same for the pages of UTF-16 units.
        std::uint32_t startOfUnits[unitPages] = {};
    };

    std::shared_ptr<Table> table;
};

class GlyphMap::const_iterator {
public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = GlyphMap::value_type;
    using difference_type = std::ptrdiff_t;
    using pointer = const value_type*;
    using reference = const value_type&;

    const_iterator() = default;
    reference operator*() const { return table->entries[table->indices[page->second + slot]]; }
    pointer operator->() const { return &**this; }
    const_iterator& operator++();
    const_iterator operator++(int);
    friend bool operator==(const const_iterator& a, const const_iterator& b) {
        return a.table == b.table && a.page == b.page && a.slot == b.slot;
    }
    friend bool operator!=(const const_iterator& a, const const_iterator& b) { return !(a == b); }

private:
    friend class GlyphMap;
    using Page = std::map<unsigned long, std::uint32_t>::const_iterator;
    __attribute__((visibility("hidden")))
    const_iterator(const Table* fromTable, Page atPage, unsigned long atSlot);

    const Table* table = nullptr; ///< null for a map without glyphs
    Page page;
    unsigned long slot = 0;
};

struct GlyphMap::Units {
    /// The glyph of a unit, or an all-zero record.
    const tagGlyphInfo& operator[](char16_t unit) const {
        return entries[indices[starts[unit / pageSize] + unit % pageSize]].second;
    }

    const std::uint32_t* starts;
    const std::uint32_t* indices;
    const value_type* entries;
};

#endif

/// @file
/// What is known of each glyph in an atlas, and the map from character codes to it.
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
    float bitmapWidth;  ///< pixels; 0 for a glyph that leaves no mark
    float bitmapHeight; ///< pixels
    float bitmapLeft;   ///< from the pen to the bitmap's left edge, pixels
    float bitmapTop;    ///< from the baseline up to the bitmap's top row, pixels
    float texX;         ///< 0 to 1 across the atlas
    float texY;         ///< 0 to 1 down the atlas
};
static_assert(sizeof(tagGlyphInfo) == 8 * sizeof(float));

/// An ordered map from character code to glyph.
///
/// A copy costs the same however many glyphs there are: copies share one table until one of them is
/// written to. Look-up takes a few instructions in the basic plane, whatever the font.
/// Iterators are constant. They last until the next write, references until the next write or copy.
class ZOGLES_API GlyphMap {
public:
    using key_type = unsigned long;
    using mapped_type = tagGlyphInfo;
    using value_type = std::pair<const unsigned long, tagGlyphInfo>;

    /// Walks the glyphs by ascending code.
    class const_iterator;
    using iterator = const_iterator;

    GlyphMap() = default;
    ~GlyphMap() = default;
    GlyphMap(const GlyphMap&) = default;
    GlyphMap(GlyphMap&&) = default;
    GlyphMap& operator=(GlyphMap&&) = default;

    /// Taking over the table that is shared already, as a draw after a draw does, costs no atomic
    /// count.
    // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): equal tables cover the map itself
    GlyphMap& operator=(const GlyphMap& other) {
        // cppcheck-suppress duplicateConditionalAssign; the comparison is what saves the count
        if (table != other.table) {
            table = other.table;
        }
        return *this;
    }

    /// The glyph of a code, inserted all zero where there is none.
    tagGlyphInfo& operator[](unsigned long code);

    const_iterator find(unsigned long code) const;

    /// @throws std::out_of_range for an absent code
    const tagGlyphInfo& at(unsigned long code) const;

    size_t count(unsigned long code) const { return Lookup(code) == nullptr ? 0 : 1; }
    const_iterator begin() const;
    const_iterator end() const;
    size_t size() const { return table ? table->entries.size() - 1 : 0; }
    bool empty() const { return size() == 0; }
    void clear() { table.reset(); }

    /// The glyph of a code, or null: `find` for inner loops.
    inline const tagGlyphInfo* Lookup(unsigned long code) const;

    /// What an inner loop needs to look up units of the basic plane; lasts until the map is written
    /// to or destroyed.
    class UnitReader;
    UnitReader ReadUnits() const;

    /// Whether both maps still read the same table, so that one look-up answers for both.
    bool SharesTableWith(const GlyphMap& other) const { return table == other.table; }

private:
    static constexpr unsigned long pageSize = 256;
    static constexpr unsigned long basicPages = 256;

    struct __attribute__((visibility("hidden"))) Page {
        std::uint32_t entry[pageSize]; ///< index into the entries, 0 for none
    };

    struct __attribute__((visibility("hidden"))) Table {
        Table();

        const value_type* FindEntry(unsigned long code) const;
        const value_type* FirstEntryFrom(unsigned long code) const;
        std::uint32_t PageOf(unsigned long code) const;
        std::uint32_t MakePageOf(unsigned long code);

        std::vector<value_type> entries; ///< in order of insertion; the first is nobody's
        std::vector<Page> pages;         ///< the first is the empty page
        std::uint32_t basic[basicPages]; ///< the pages of the basic plane, 0 for the empty one
        std::map<unsigned long, std::uint32_t> higher; ///< the pages of the other planes, by number
    };

    void Detach();

    std::shared_ptr<Table> table;
};

class GlyphMap::const_iterator {
public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = GlyphMap::value_type;
    using difference_type = std::ptrdiff_t;
    using pointer = const value_type*;
    using reference = const value_type&;

    const_iterator() : table(nullptr), entry(nullptr) {}

    reference operator*() const { return *entry; }
    pointer operator->() const { return entry; }
    const_iterator& operator++();
    const_iterator operator++(int) {
        const const_iterator before = *this;
        ++*this;
        return before;
    }
    friend bool operator==(const const_iterator& a, const const_iterator& b) {
        return a.entry == b.entry;
    }
    friend bool operator!=(const const_iterator& a, const const_iterator& b) { return !(a == b); }

private:
    friend class GlyphMap;
    const_iterator(const Table* fromTable, const value_type* atEntry)
        : table(fromTable), entry(atEntry) {}

    const Table* table;
    const value_type* entry; ///< null past the last
};

class GlyphMap::UnitReader {
public:
    /// The glyph of a unit, or null.
    const tagGlyphInfo* Lookup(char16_t unit) const {
        const std::uint32_t index = pages[pageOf[unit / pageSize]].entry[unit % pageSize];
        return index == 0 ? nullptr : &entries[index].second;
    }

private:
    friend class GlyphMap;
    UnitReader(const std::uint32_t* basic, const Page* allPages, const value_type* allEntries)
        : pageOf(basic), pages(allPages), entries(allEntries) {}

    const std::uint32_t* pageOf;
    const Page* pages;
    const value_type* entries;
};

inline std::uint32_t GlyphMap::Table::PageOf(unsigned long code) const {
    const unsigned long number = code / pageSize;
    if (number < basicPages) {
        return basic[number];
    }
    const auto found = higher.find(number);
    return found == higher.end() ? 0 : found->second;
}

inline const GlyphMap::value_type* GlyphMap::Table::FindEntry(unsigned long code) const {
    const std::uint32_t index = pages[PageOf(code)].entry[code % pageSize];
    return index == 0 ? nullptr : &entries[index];
}

inline const tagGlyphInfo* GlyphMap::Lookup(unsigned long code) const {
    const value_type* entry = table ? table->FindEntry(code) : nullptr;
    return entry == nullptr ? nullptr : &entry->second;
}

#endif

// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "text/Glyph.h"

#include <algorithm>
#include <stdexcept>

// Texts with up to this many distinct characters need no second allocation.
constexpr size_t usualText = 64;

// Returns the index slot of a code; a slot of 0 means no entry. Adds the page if it is missing.
std::uint32_t* GlyphMap::Table::MakeIndex(unsigned long code) {
    const unsigned long number = code / pageSize;
    auto page = pages.find(number);
    if (page == pages.end()) {
        const auto start = static_cast<std::uint32_t>(indices.size());
        indices.resize(start + pageSize); // before the page is registered, because this can throw
        page = pages.emplace(number, start).first;
        if (number < unitPages) {
            startOfUnits[number] = start;
        }
    }
    return &indices[page->second + code % pageSize];
}

tagGlyphInfo& GlyphMap::operator[](unsigned long code) {
    if (!table || table.use_count() > 1) { // other copies keep the old table
        table = table ? std::make_shared<Table>(*table) : std::make_shared<Table>();
        table->entries.reserve(usualText);
    }
    std::uint32_t* index = table->MakeIndex(code);
    if (*index == 0) {
        table->entries.emplace_back(code, tagGlyphInfo());
        *index = static_cast<std::uint32_t>(table->entries.size() - 1);
    }
    return table->entries[*index].second;
}

GlyphMap::Units GlyphMap::ReadUnits() const {
    static constexpr std::uint32_t zeros[std::max(pageSize, unitPages)] = {};
    static constexpr value_type absent = {};
    return table ? Units{table->startOfUnits, table->indices.data(), table->entries.data()}
                 : Units{zeros, zeros, &absent};
}

GlyphMap::const_iterator GlyphMap::find(unsigned long code) const {
    if (!table) {
        return end();
    }
    const auto page = table->pages.find(code / pageSize);
    const bool isThere =
        page != table->pages.end() && table->indices[page->second + code % pageSize] != 0;
    return isThere ? const_iterator(table.get(), page, code % pageSize) : end();
}

const tagGlyphInfo& GlyphMap::at(unsigned long code) const {
    const const_iterator glyph = find(code);
    if (glyph == end()) {
        throw std::out_of_range("GlyphMap::at");
    }
    return glyph->second;
}

size_t GlyphMap::count(unsigned long code) const {
    return find(code) == end() ? 0 : 1;
}

GlyphMap::const_iterator GlyphMap::begin() const {
    return table ? const_iterator(table.get(), table->pages.begin(), 0) : end();
}

GlyphMap::const_iterator GlyphMap::end() const {
    return table ? const_iterator(table.get(), table->pages.end(), 0) : const_iterator();
}

GlyphMap::const_iterator& GlyphMap::const_iterator::operator++() {
    *this = const_iterator(table, page, slot + 1);
    return *this;
}

GlyphMap::const_iterator GlyphMap::const_iterator::operator++(int) {
    const const_iterator before = *this;
    ++*this;
    return before;
}

// Points to the first glyph at or after the slot.
GlyphMap::const_iterator::const_iterator(const Table* fromTable, Page atPage, unsigned long atSlot)
    : table(fromTable), page(atPage), slot(atSlot) {
    for (; page != table->pages.end(); ++page, slot = 0) {
        for (; slot < pageSize; ++slot) {
            if (table->indices[page->second + slot] != 0) {
                return;
            }
        }
    }
}

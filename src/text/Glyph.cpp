#include "text/Glyph.h"

#include <stdexcept>

GlyphMap::Table::Table() : entries(1), pages(1), basic() {}

std::uint32_t GlyphMap::Table::MakePageOf(unsigned long code) {
    const unsigned long number = code / pageSize;
    std::uint32_t& page = number < basicPages ? basic[number] : higher[number];
    if (page == 0) {
        pages.emplace_back();
        page = static_cast<std::uint32_t>(pages.size() - 1);
    }
    return page;
}

// The entry with the lowest code that is not below `code`, or null.
const GlyphMap::value_type* GlyphMap::Table::FirstEntryFrom(unsigned long code) const {
    const auto search = [this](std::uint32_t page, unsigned long slot) -> const value_type* {
        while (slot < pageSize && pages[page].entry[slot] == 0) {
            ++slot;
        }
        return slot == pageSize ? nullptr : &entries[pages[page].entry[slot]];
    };
    unsigned long number = code / pageSize;
    unsigned long slot = code % pageSize;
    for (; number < basicPages; ++number, slot = 0) {
        const value_type* entry = basic[number] == 0 ? nullptr : search(basic[number], slot);
        if (entry != nullptr) {
            return entry;
        }
    }
    for (auto page = higher.lower_bound(number); page != higher.end(); ++page) {
        const value_type* entry = search(page->second, page->first == number ? slot : 0);
        if (entry != nullptr) {
            return entry;
        }
    }
    return nullptr;
}

GlyphMap::const_iterator& GlyphMap::const_iterator::operator++() {
    const unsigned long next = entry->first + 1;
    entry = next == 0 ? nullptr : table->FirstEntryFrom(next); // no code comes after the highest
    return *this;
}

void GlyphMap::Detach() {
    if (!table) {
        table = std::make_shared<Table>();
    } else if (table.use_count() > 1) {
        table = std::make_shared<Table>(*table);
    }
}

tagGlyphInfo& GlyphMap::operator[](unsigned long code) {
    Detach();
    const std::uint32_t page = table->MakePageOf(code);
    std::uint32_t& index = table->pages[page].entry[code % pageSize];
    if (index == 0) {
        table->entries.emplace_back(code, tagGlyphInfo());
        index = static_cast<std::uint32_t>(table->entries.size() - 1);
    }
    return table->entries[index].second;
}

GlyphMap::UnitReader GlyphMap::ReadUnits() const {
    // Without a table, every unit leads to an entry of 0 of an empty page.
    static constexpr Page nothing = {};
    if (!table) {
        return {nothing.entry, &nothing, nullptr};
    }
    return {table->basic, table->pages.data(), table->entries.data()};
}

GlyphMap::const_iterator GlyphMap::find(unsigned long code) const {
    return {table.get(), table ? table->FindEntry(code) : nullptr};
}

const tagGlyphInfo& GlyphMap::at(unsigned long code) const {
    const tagGlyphInfo* glyph = Lookup(code);
    if (glyph == nullptr) {
        throw std::out_of_range("GlyphMap::at");
    }
    return *glyph;
}

GlyphMap::const_iterator GlyphMap::begin() const {
    return {table.get(), table ? table->FirstEntryFrom(0) : nullptr};
}

GlyphMap::const_iterator GlyphMap::end() const {
    return {table.get(), nullptr};
}

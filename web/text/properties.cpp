#include "web/text/properties.h"

#include <array>
#include <iterator>

namespace galley::web {

namespace {

/// The first code point of a range, in the upper 21 bits, and below it whether it takes U+FE0F, its
/// width in 2 bits, and its class in 6. A range ends where the next one begins.
constexpr std::uint32_t s_ranges[] = {
#include "web/text/properties.inc"
};

constexpr unsigned s_pageBits = 8;
constexpr std::uint32_t s_pageSize = 1U << s_pageBits;
constexpr std::size_t s_pages = 0x110000 >> s_pageBits;

constexpr std::uint32_t firstOf(std::uint32_t range) { return range >> 11; }

/// What is said of the code points of a range.
constexpr std::uint16_t valueOf(std::uint32_t range) {
    return static_cast<std::uint16_t>(range & 0x7FF);
}

/// The last range that begins at a code point or before it, from one on that does.
constexpr std::size_t rangeAt(std::size_t range, std::uint32_t codePoint) {
    while (range + 1 < std::size(s_ranges) && firstOf(s_ranges[range + 1]) <= codePoint) ++range;
    return range;
}

/// Goes through all pages of code points. Tells of each its number, the range that its first code
/// point is in, and whether that is the range of all.
template <class Visit>
constexpr void forEachPage(Visit const& visit) {
    std::size_t range = 0;
    for (std::uint32_t page = 0; page < s_pages; ++page) {
        range = rangeAt(range, page * s_pageSize);
        std::size_t const last = rangeAt(range, (page + 1) * s_pageSize - 1);
        visit(page, range, last == range);
    }
}

/// Pages of several ranges.
constexpr std::size_t s_mixedPages = [] {
    std::size_t count = 0;
    forEachPage([&](std::uint32_t, std::size_t, bool isUniform) { count += isUniform ? 0 : 1; });
    return count;
}();

/// Of a page of one range, most of which are of ideographs and syllables, the value of all; the bit
/// is in none.
constexpr std::uint16_t s_uniform = 0x8000;

struct Table {
    /// The value of all its code points, with `s_uniform`, or which of the pages below it is.
    std::array<std::uint16_t, s_pages> pages = {};
    std::array<std::uint16_t, s_mixedPages* s_pageSize> values = {};
};

constexpr Table s_table = [] {
    Table table;
    std::uint16_t mixed = 0;
    forEachPage([&](std::uint32_t page, std::size_t range, bool isUniform) {
        table.pages[page] =
            isUniform ? static_cast<std::uint16_t>(valueOf(s_ranges[range]) | s_uniform) : mixed;
        if (isUniform) return;
        for (std::uint32_t i = 0; i < s_pageSize; ++i) {
            range = rangeAt(range, page * s_pageSize + i);
            table.values[mixed * s_pageSize + i] = valueOf(s_ranges[range]);
        }
        ++mixed;
    });
    return table;
}();

}  // namespace

Properties propertiesOf(char32_t codePoint) {
    std::uint32_t const page = s_table.pages[codePoint >> s_pageBits];
    std::uint32_t const value =
        (page & s_uniform) != 0
            ? page
            : s_table.values[page << s_pageBits | (codePoint & (s_pageSize - 1))];
    return {static_cast<LineClass>(value & 0x3F), static_cast<EastAsianWidth>(value >> 6 & 3),
            (value >> 8 & 1) != 0};
}

}  // namespace galley::web

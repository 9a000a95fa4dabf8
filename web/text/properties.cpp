#include "web/text/properties.h"

#include <algorithm>
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
constexpr std::size_t s_pages = 0x110000 >> s_pageBits;

constexpr std::uint32_t firstOf(std::uint32_t range) { return range >> 11; }

/// For each page of code points the range that its first one is in, and one more for the end.
constexpr auto s_pageRanges = [] {
    std::array<std::uint16_t, s_pages + 1> ranges = {};
    std::uint16_t range = 0;
    for (std::uint32_t page = 0; page < s_pages; ++page) {
        std::uint32_t const first = page << s_pageBits;
        while (range + 1U < std::size(s_ranges) && firstOf(s_ranges[range + 1]) <= first) ++range;
        ranges[page] = range;
    }
    ranges[s_pages] = range;
    return ranges;
}();

}  // namespace

Properties propertiesOf(char32_t codePoint) {
    std::size_t const page = codePoint >> s_pageBits;
    std::uint32_t const* const first = s_ranges + s_pageRanges[page];
    std::uint32_t const* const last = s_ranges + s_pageRanges[page + 1];
    auto const isBefore = [](std::uint32_t one, std::uint32_t range) {
        return one < firstOf(range);
    };
    // Most pages of ideographs and syllables are in one range.
    std::uint32_t const range =
        first == last ? *first
                      : *std::prev(std::upper_bound(first + 1, last + 1, codePoint, isBefore));
    return {static_cast<LineClass>(range & 0x3F), static_cast<EastAsianWidth>(range >> 6 & 3),
            (range >> 8 & 1) != 0};
}

}  // namespace galley::web

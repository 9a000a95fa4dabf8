#include "web/text/properties.h"

#include <algorithm>
#include <iterator>

namespace galley::web {

namespace {

/// The first code point of a range, in the upper 21 bits, and below it whether it takes U+FE0F, its
/// width in 2 bits, and its class in 6. A range ends where the next one begins.
constexpr std::uint32_t s_ranges[] = {
#include "web/text/properties.inc"
};

}  // namespace

Properties propertiesOf(char32_t codePoint) {
    std::uint32_t const last = static_cast<std::uint32_t>(codePoint) << 11 | 0x7FF;
    std::uint32_t const range = *std::prev(std::ranges::upper_bound(s_ranges, last));
    return {static_cast<LineClass>(range & 0x3F), static_cast<EastAsianWidth>(range >> 6 & 3),
            (range >> 8 & 1) != 0};
}

}  // namespace galley::web

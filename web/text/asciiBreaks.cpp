#include "web/text/asciiBreaks.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "web/text/asciiPairs.h"
#include "web/text/properties.h"
#include "web/text/utf8.h"

namespace galley::web {

namespace {

/// For each ASCII character, those behind it that may begin a line: 1 bit each.
using Pairs = std::array<std::array<std::uint64_t, 2>, 128>;

constexpr std::uint64_t bitOf(char c) {
    return std::uint64_t{1} << (static_cast<unsigned>(c) & 63U);
}

constexpr bool has(Pairs const& pairs, char before, char behind) {
    auto const& row = pairs[static_cast<unsigned char>(before)];
    return (row[static_cast<unsigned char>(behind) >> 6] & bitOf(behind)) != 0;
}

template <std::size_t Count>
constexpr Pairs spread(AsciiPairs const (&rows)[Count]) {
    Pairs pairs = {};
    for (AsciiPairs const& row : rows) {
        for (char const before : row.before) {
            for (char const behind : row.behind) {
                auto& bits = pairs[static_cast<unsigned char>(before)];
                bits[static_cast<unsigned char>(behind) >> 6] |= bitOf(behind);
            }
        }
    }
    return pairs;
}

constexpr Pairs s_normal = spread(s_normalPairs);
constexpr Pairs s_breakAll = spread(s_breakAllPairs);

constexpr bool isBreaking(char c) { return s_breaking.find(c) != std::string_view::npos; }

constexpr bool areAllNamed() {
    for (char before = '!'; before <= '~'; ++before) {
        for (char behind = '!'; behind <= '~'; ++behind) {
            bool const isNamed = isBreaking(before) || isBreaking(behind);
            if (has(s_normal, before, behind) && !isNamed) return false;
        }
    }
    return true;
}
static_assert(areAllNamed());

/// Opens something, or parts words.
bool opens(char32_t c) {
    constexpr std::u32string_view characters = U" \t\r\n(,/<=[`{|";
    if (c < 0x80) return characters.find(c) != std::u32string_view::npos;
    constexpr LineClass classes[] = {LineClass::BA, LineClass::BK, LineClass::GL,
                                     LineClass::OP, LineClass::PI, LineClass::ZW};
    return std::ranges::find(classes, propertiesOf(c).lineClass) != std::end(classes);
}

}  // namespace

bool hyphensBeginWord(std::string_view text, std::size_t at, char32_t before) {
    std::size_t const last = at - 1;
    bool const areTwo = last > 0 && text[last - 1] == '-';
    std::size_t const first = areTwo ? last - 1 : last;
    bool const isQuoted = first > 0 && (text[first - 1] == '"' || text[first - 1] == '\'');
    std::size_t const begin = isQuoted ? first - 1 : first;
    return opens(begin > 0 ? decodeAt(text, startBefore(text, begin)).value : before);
}

bool breaksInAscii(std::string_view text, std::size_t at, bool isBreakAll, char32_t before) {
    char const last = text[at - 1];
    char const next = text[at];
    if (!has(isBreakAll ? s_breakAll : s_normal, last, next)) return false;
    if (last != '-') return true;
    char32_t const beforeDash = at > 1 ? static_cast<unsigned char>(text[at - 2]) : before;
    // Else it is the sign of a number.
    bool const isDash = isBreakAll || next < '0' || next > '9' || isAlphanumeric(beforeDash);
    return isDash && !hyphensBeginWord(text, at, before);
}

}  // namespace galley::web

#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "web/text/asciiBreaks.h"
#include "web/text/bytes.h"
#include "web/text/utf8.h"

namespace galley::web {

/// A letter of Latin, Greek or Cyrillic beyond ASCII that is one code point of two bytes: it takes
/// a cell, is printed as it is, and lines break around it as around a letter of ASCII.
constexpr bool isCommonLetter(char32_t c) {
    bool const isLatin = c >= 0xC0 && c <= 0x24F && c != 0xD7 && c != 0xF7;
    bool const isGreek = c >= 0x388 && c <= 0x3FF && c != 0x38B && c != 0x38D && c != 0x3A2;
    bool const isCyrillic = (c >= 0x400 && c <= 0x481) || (c >= 0x48A && c <= 0x52F);
    return isLatin || isGreek || isCyrillic;
}

inline constexpr std::size_t s_letterBytes = 2;

/// Their first byte, and for each such byte a bit for each second one of a letter.
///@{
inline constexpr unsigned char s_firstLead = 0xC3;
inline constexpr unsigned char s_lastLead = 0xD4;
inline constexpr auto s_commonLetters = [] {
    std::array<std::uint64_t, s_lastLead - s_firstLead + 1> letters = {};
    for (char32_t c = s_firstLead % 0x20 * 0x40; c < (s_lastLead % 0x20 + 1) * 0x40; ++c) {
        std::uint64_t const bit = isCommonLetter(c) ? 1 : 0;
        letters[c / 0x40 - s_firstLead % 0x20] |= bit << c % 0x40;
    }
    return letters;
}();
///@}

/// Whether one begins at a byte of the text, or at its end.
inline bool isLetterAt(std::string_view text, std::size_t at) {
    if (!isPairAt(text, at)) return false;
    auto const first = static_cast<unsigned char>(text[at]);
    if (first < s_firstLead || first > s_lastLead) return false;
    return (s_commonLetters[first - s_firstLead] >>
                (static_cast<unsigned char>(text[at + 1]) & 0x3FU) &
            1U) != 0;
}

/// Cells of a text of printable ASCII and such letters.
inline std::size_t cellsOfLetters(std::string_view text) {
    constexpr unsigned char s_ofFirsts = 0xC0;
    constexpr unsigned char s_second = 0x80;
    std::size_t cells = text.size();
    std::size_t i = 0;
    for (; text.size() - i >= sizeof(Bytes); i += sizeof(Bytes)) {
        cells -= countOf((bytesAt(text.data() + i) & s_ofFirsts) == s_second);
    }
    for (; i < text.size(); ++i) {
        if ((static_cast<unsigned char>(text[i]) & s_ofFirsts) == s_second) --cells;
    }
    return cells;
}

/// The bytes of so many cells at the start of such a text, all of it where it has no more.
inline std::size_t bytesOfCells(std::string_view text, std::size_t cells) {
    std::size_t bytes = std::min(cells, text.size());
    std::size_t known = cellsOfLetters(text.substr(0, bytes));
    while (known < cells && bytes < text.size()) {
        std::string_view const more = text.substr(bytes, cells - known);
        known += cellsOfLetters(more);
        bytes += more.size();
    }
    // Not within a letter.
    bool const isWithin = bytes > 0 && isPairAt(text, bytes - 1);
    return bytes + (isWithin ? 1 : 0);
}

/// Whether no line breaks between a character of ASCII and such a letter behind it, or before it: a
/// few of those of which that is so (UAX #14: LB13, LB14, LB19, LB23, LB28, LB29).
///@{
constexpr bool joinsLetterBehind(char c) {
    return isAlphanumeric(static_cast<unsigned char>(c)) ||
           std::string_view("([{\"',.:;").find(c) != std::string_view::npos;
}
constexpr bool joinsLetterBefore(char c) {
    return isAlphanumeric(static_cast<unsigned char>(c)) ||
           std::string_view(")]}\"',.:;!?").find(c) != std::string_view::npos;
}
///@}

}  // namespace galley::web

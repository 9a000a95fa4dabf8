#pragma once

#include <cstddef>
#include <string_view>

namespace galley::web {

/// Bytes of a character that `isIdeographAt` knows.
inline constexpr std::size_t s_ideographBytes = 3;
/// Cells of such a character.
inline constexpr int s_ideographCells = 2;

/// Cells of a text of nothing but these.
inline int cellsOfIdeographs(std::string_view text) {
    return static_cast<int>(text.size() / s_ideographBytes) * s_ideographCells;
}

/// Whether it is written without spaces, wide, and a letter by itself: unified ideographs of the
/// first plane, kana and Hangul syllables. Lines break between any two of them.
constexpr bool isIdeograph(char32_t c) {
    return (c >= 0x4E00 && c <= 0x9FFF) || (c >= 0x3400 && c <= 0x4DBF) ||
           (c >= 0x3041 && c <= 0x3096) || (c >= 0x30A1 && c <= 0x30FA) || c == 0x30FC ||
           (c >= 0xAC00 && c <= 0xD7A3);
}

/// Whether one begins at a byte of the text, or at its end.
inline bool isIdeographAt(std::string_view text, std::size_t at) {
    if (text.size() - at < s_ideographBytes) return false;
    auto const byte = [&](std::size_t i) {
        return static_cast<char32_t>(static_cast<unsigned char>(text[at + i]));
    };
    bool const isEncoded =
        (byte(0) & 0xF0) == 0xE0 && (byte(1) & 0xC0) == 0x80 && (byte(2) & 0xC0) == 0x80;
    return isEncoded &&
           isIdeograph((byte(0) & 0xF) << 12 | (byte(1) & 0x3F) << 6 | (byte(2) & 0x3F));
}

}  // namespace galley::web

#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "web/text/utf8.h"

namespace galley::web {

/// What is written without spaces, and wide: unified ideographs of the first plane, kana and
/// syllables of Hangul, and the punctuation among them. Lines break between any two of these, but
/// neither behind an opening mark nor before a closing one.
enum class Ideograph : std::uint8_t { none, letter, opening, closing };

/// Bytes and cells of such a character.
///@{
inline constexpr std::size_t s_ideographBytes = 3;
inline constexpr int s_ideographCells = 2;
///@}

constexpr Ideograph ideographOf(char32_t c) {
    constexpr std::u32string_view s_opening = U"〈《「『【〔〖〘〚（［｛｟";
    constexpr std::u32string_view s_closing = U"、。〉》」』】〕〗〙〛！），．：；？］｝｠";
    bool const isLetter = (c >= 0x4E00 && c <= 0x9FFF) || (c >= 0x3400 && c <= 0x4DBF) ||
                          (c >= 0x3041 && c <= 0x3096) || (c >= 0x30A1 && c <= 0x30FA) ||
                          c == 0x30FC || (c >= 0xAC00 && c <= 0xD7A3);
    if (isLetter) return Ideograph::letter;
    if (c < s_closing.front() || c > s_closing.back()) return Ideograph::none;
    if (s_opening.find(c) != std::u32string_view::npos) return Ideograph::opening;
    return s_closing.find(c) != std::u32string_view::npos ? Ideograph::closing : Ideograph::none;
}

/// What begins at a byte of the text; none at its end.
inline Ideograph ideographAt(std::string_view text, std::size_t at) {
    return isCommonAt(text, at) ? ideographOf(decodeCommonAt(text, at)) : Ideograph::none;
}

/// Whether a line may break between two of them.
constexpr bool breaksBetween(Ideograph before, Ideograph behind) {
    return before != Ideograph::opening && behind != Ideograph::closing;
}

/// Cells of a text of nothing but these.
inline int cellsOfIdeographs(std::string_view text) {
    return static_cast<int>(text.size() / s_ideographBytes) * s_ideographCells;
}

}  // namespace galley::web

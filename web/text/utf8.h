#pragma once

#include <cstddef>
#include <string_view>

namespace galley::web {

inline constexpr char32_t s_replacementCharacter = 0xFFFD;
/// May stand before a text, and is no part of it.
inline constexpr std::string_view s_byteOrderMark = "\xEF\xBB\xBF";

/// Whether terminals may take it for more than a character; white space is among these.
constexpr bool isControl(char32_t c) { return c < 0x20 || (c >= 0x7F && c < 0xA0); }

/// What begins at a byte of UTF-8.
struct CodePoint {
    /// U+FFFD for an ill-formed part.
    char32_t value = s_replacementCharacter;
    /// Bytes, 1 to 4.
    unsigned length = 1;
    bool isWellFormed = false;
};

/// What `decodeAt` reads, whatever it is.
CodePoint decodeAnyAt(std::string_view text, std::size_t at);

/// Whether a well-formed character of two bytes begins at a byte of the text, or at its end.
inline bool isPairAt(std::string_view text, std::size_t at) {
    if (text.size() - at < 2) return false;
    auto const first = static_cast<unsigned char>(text[at]);
    auto const second = static_cast<unsigned char>(text[at + 1]);
    return first >= 0xC2 && first <= 0xDF && (second & 0xC0U) == 0x80;
}

/// Whether a well-formed character of three bytes begins at a byte of the text, or at its end: but
/// for those with the two first bytes behind which not all is well-formed.
inline bool isCommonAt(std::string_view text, std::size_t at) {
    if (text.size() - at < 3) return false;
    auto const byte = [&](std::size_t i) { return static_cast<unsigned char>(text[at + i]); };
    return byte(0) > 0xE0 && byte(0) <= 0xEF && byte(0) != 0xED && (byte(1) & 0xC0) == 0x80 &&
           (byte(2) & 0xC0) == 0x80;
}

/// The character there.
inline char32_t decodeCommonAt(std::string_view text, std::size_t at) {
    auto const byte = [&](std::size_t i) {
        return static_cast<char32_t>(static_cast<unsigned char>(text[at + i]));
    };
    return (byte(0) & 0xF) << 12 | (byte(1) & 0x3F) << 6 | (byte(2) & 0x3F);
}

/// Reads what begins at byte `at` of a text that is longer. An ill-formed part is a maximal one:
/// what could begin a character and does not go on as one, at least one byte.
inline CodePoint decodeAt(std::string_view text, std::size_t at) {
    if (isCommonAt(text, at)) return {decodeCommonAt(text, at), 3, true};
    return decodeAnyAt(text, at);
}

/// Where the code point begins that ends before byte `at`, which is not 0. Of an ill-formed part
/// only the last byte is seen.
std::size_t startBefore(std::string_view text, std::size_t at);

/// The first byte, at `from` or behind it, of an ill-formed part; npos without one. `from` is where
/// a code point begins. The next part is behind `decodeAt` of this one.
std::size_t findIllFormed(std::string_view text, std::size_t from = 0);

/// The first byte, at `from` or behind it, that is none of ASCII; the text's size without one.
std::size_t skipAscii(std::string_view text, std::size_t from);

inline bool isAscii(char byte) { return static_cast<unsigned char>(byte) < 0x80; }

}  // namespace galley::web

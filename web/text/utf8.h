#pragma once

#include <cstddef>
#include <string_view>

namespace galley::web {

inline constexpr char32_t s_replacementCharacter = 0xFFFD;

/// What begins at a byte of UTF-8.
struct CodePoint {
    /// U+FFFD for an ill-formed part.
    char32_t value = s_replacementCharacter;
    /// Bytes, 1 to 4.
    unsigned length = 1;
    bool isWellFormed = false;
};

/// Reads what begins at byte `at` of a text that is longer. An ill-formed part is a maximal one:
/// what could begin a character and does not go on as one, at least one byte.
CodePoint decodeAt(std::string_view text, std::size_t at);

/// Where the code point begins that ends before byte `at`, which is not 0. Of an ill-formed part
/// only the last byte is seen.
std::size_t startBefore(std::string_view text, std::size_t at);

/// The first byte, at `from` or behind it, of an ill-formed part; npos without one. `from` is where
/// a code point begins. The next part is behind `decodeAt` of this one.
std::size_t findIllFormed(std::string_view text, std::size_t from = 0);

inline bool isAscii(char byte) { return static_cast<unsigned char>(byte) < 0x80; }

}  // namespace galley::web

#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

namespace galley::web {

constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }

constexpr bool isNewline(char c) { return c == '\n' || c == '\r' || c == '\f'; }

constexpr bool isWhitespace(char c) { return c == ' ' || c == '\t' || isNewline(c); }

constexpr char toLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

constexpr bool isLetter(char c) { return toLower(c) >= 'a' && toLower(c) <= 'z'; }

constexpr bool startsNames(char c) {
    return isLetter(c) || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}

constexpr bool continuesNames(char c) { return startsNames(c) || isDigit(c) || c == '-'; }

/// The value of a hexadecimal digit, or -1.
constexpr int hexDigit(char c) {
    if (isDigit(c)) return c - '0';
    char const letter = toLower(c);
    return letter >= 'a' && letter <= 'f' ? letter - 'a' + 10 : -1;
}

/// Whether two words differ in nothing but the case of ASCII letters.
constexpr bool isSameWord(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return toLower(x) == toLower(y); });
}

/// Appends a code point as UTF-8; U+FFFD for 0, surrogates and what is no code point.
void appendUtf8(std::string& text, std::uint32_t codePoint);

/// The text with a U+FFFD for each control of ASCII and of Latin-1, and for each ill-formed part.
std::string printable(std::string_view text);

}  // namespace galley::web

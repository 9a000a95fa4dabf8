#pragma once

#include <cstddef>
#include <string_view>

namespace galley::web {

inline bool isPrintableAscii(char byte) { return byte > ' ' && byte <= '~'; }

/// Whether it is a letter or a digit of ASCII.
constexpr bool isAlphanumeric(char32_t c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

/// Printable ASCII: where a line may break, one of these is before the place or behind it, unless
/// `word-break` is `break-all`.
inline constexpr std::string_view s_breaking = "(-<?[{";

/// Whether a line may break between the printable ASCII characters at `at - 1` and `at`, as in
/// Chromium, but never behind hyphens that begin a word. `before` stands before the text.
bool breaksInAscii(std::string_view text, std::size_t at, bool isBreakAll, char32_t before = ' ');

/// Whether one hyphen or two, the last of them at `at - 1`, begin a word, as those of options do:
/// before them, and before a quotation mark there, are white space, or what opens or parts. A third
/// one makes a dash of them.
bool hyphensBeginWord(std::string_view text, std::size_t at, char32_t before = ' ');

}  // namespace galley::web

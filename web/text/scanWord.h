#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "web/text/asciiBreaks.h"
#include "web/text/bytes.h"

namespace galley::web {

/// Printable ASCII around which no line breaks.
inline constexpr auto s_plain = [] {
    std::array<bool, 256> arePlain = {};
    for (char c = '!'; c <= '~'; ++c) {
        arePlain[static_cast<unsigned char>(c)] = s_breaking.find(c) == std::string_view::npos;
    }
    return arePlain;
}();

inline bool isPlain(char byte) { return s_plain[static_cast<unsigned char>(byte)]; }

inline Mask areNotPlain(Bytes bytes) {
    static_assert(s_breaking.size() == 6);
    auto const are = [&](std::size_t i) {
        return bytes == static_cast<unsigned char>(s_breaking[i]);
    };
    return (bytes - static_cast<unsigned char>('!') > '~' - '!') | are(0) | are(1) | are(2) |
           are(3) | are(4) | are(5);
}

/// The first byte at `from` or behind it that is not plain, where a word may end. The text's size
/// without one.
inline std::size_t scanPlain(std::string_view text, std::size_t from) {
    for (; text.size() - from >= 16; from += 16) {
        unsigned const count = firstOf(areNotPlain(bytesAt(text.data() + from)));
        if (count < 16) return from + count;
    }
    while (from < text.size() && isPlain(text[from])) ++from;
    return from;
}

/// The first byte at `from` or behind it that is neither printable ASCII nor a blank. The text's
/// size without one.
inline std::size_t scanPrintable(std::string_view text, std::size_t from) {
    for (; text.size() - from >= 16; from += 16) {
        Bytes const bytes = bytesAt(text.data() + from);
        unsigned const count = firstOf(bytes - static_cast<unsigned char>(' ') > '~' - ' ');
        if (count < 16) return from + count;
    }
    while (from < text.size() && (isPrintableAscii(text[from]) || text[from] == ' ')) ++from;
    return from;
}

/// The first byte at `start` or behind it that is neither plain nor a blank, or that is a blank and
/// has another one behind it. The text's size without one.
inline std::size_t scanWords(std::string_view text, std::size_t const start) {
    std::size_t from = start;
    for (; text.size() - from > 16; from += 16) {
        Bytes const bytes = bytesAt(text.data() + from);
        Mask const areBlanks = bytes == static_cast<unsigned char>(' ');
        Mask const areBeforeBlanks =
            bytesAt(text.data() + from + 1) == static_cast<unsigned char>(' ');
        Mask const areOthers = areNotPlain(bytes) & ~areBlanks;
        unsigned const count = firstOf(areOthers | (areBlanks & areBeforeBlanks));
        if (count < 16) return from + count;
    }
    if (text.size() > start + 16) {
        // The last bytes, some of which have been looked at, and those before each.
        std::size_t const last = text.size() - 16;
        Bytes const bytes = bytesAt(text.data() + last);
        Mask const areBlanks = bytes == static_cast<unsigned char>(' ');
        Mask const areBehindBlanks =
            bytesAt(text.data() + last - 1) == static_cast<unsigned char>(' ');
        Mask const areSeconds = areBlanks & areBehindBlanks;
        unsigned const count = firstOf((areNotPlain(bytes) & ~areBlanks) | areSeconds);
        bool const isSecond = count < 16 && text[last + count] == ' ';
        return last + count - (isSecond ? 1 : 0);
    }
    for (; from < text.size(); ++from) {
        bool const isBlank = text[from] == ' ';
        if (isBlank && from + 1 < text.size() && text[from + 1] == ' ') return from;
        if (!isBlank && !isPlain(text[from])) return from;
    }
    return from;
}

}  // namespace galley::web

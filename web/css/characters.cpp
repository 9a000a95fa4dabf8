#include "web/css/characters.h"

#include "web/text/utf8.h"

namespace galley::web {

namespace {

constexpr std::string_view s_replacement = "\xEF\xBF\xBD";

char byte(std::uint32_t bits) { return static_cast<char>(bits); }

}  // namespace

void appendUtf8(std::string& text, std::uint32_t codePoint) {
    bool const isSurrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    if (codePoint == 0 || isSurrogate || codePoint > 0x10FFFF) {
        text += s_replacement;
    } else if (codePoint < 0x80) {
        text += byte(codePoint);
    } else {
        unsigned const trailing = codePoint < 0x800 ? 1 : codePoint < 0x10000 ? 2 : 3;
        // The lead has a bit set for each byte.
        text += byte((0xFF00U >> (trailing + 1) & 0xFFU) | codePoint >> (6 * trailing));
        for (unsigned i = trailing; i-- > 0;) text += byte(0x80U | (codePoint >> (6 * i) & 0x3FU));
    }
}

std::string printable(std::string_view text) {
    std::string clean;
    for (std::size_t at = 0; at < text.length();) {
        CodePoint const c = decodeAt(text, at);
        bool const isPrintable = c.isWellFormed && !isControl(c.value);
        clean += isPrintable ? text.substr(at, c.length) : s_replacement;
        at += c.length;
    }
    return clean;
}

}  // namespace galley::web

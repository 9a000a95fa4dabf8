#include "web/css/characters.h"

namespace galley::web {

namespace {

constexpr std::string_view s_replacement = "\xEF\xBF\xBD";

char byte(std::uint32_t bits) { return static_cast<char>(bits); }

bool isControl(char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }

/// U+0080 to U+009F are two bytes long.
bool isLatinControl(std::string_view text) {
    return text.length() >= 2 && text[0] == '\xC2' && static_cast<unsigned char>(text[1]) < 0xA0;
}

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

std::string withoutControls(std::string_view text) {
    std::string printable;
    for (std::size_t i = 0; i < text.length(); ++i) {
        bool const isLatin = isLatinControl(text.substr(i));
        if (isLatin || isControl(text[i])) {
            printable += s_replacement;
        } else {
            printable += text[i];
        }
        if (isLatin) ++i;
    }
    return printable;
}

}  // namespace galley::web

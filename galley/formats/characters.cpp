#include "galley/formats/characters.h"

#include <string>

#include "base/append.h"
#include "galley/terminal/columns.h"

namespace galley {

using CLI::XML::append;

namespace {

/// What stands for a well-formed character of several bytes. Not every one may stand in XML.
std::string reference(std::string_view character) {
    // The first byte has as many leading ones as there are bytes, and then a zero.
    unsigned code = static_cast<unsigned char>(character[0]) & (0x7FU >> character.length());
    for (char const byte : character.substr(1)) {
        code = code << 6 | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    bool const isAllowed = code >= 0xA0 && code != 0xFFFE && code != 0xFFFF;
    return "&#" + std::to_string(isAllowed ? code : 0xFFFDU) + ";";
}

/// What stands for a byte that is a character by itself, or belongs to none; empty where that is
/// the byte itself.
std::string_view replacement(char byte) {
    switch (byte) {
        case '&':
            return "&amp;";
        case '<':
            return "&lt;";
        case '>':
            return "&gt;";
        default:
            return byte >= ' ' && byte <= '~' ? "" : "&#65533;";
    }
}

}  // namespace

void appendEscaped(String& out, std::string_view text) {
    /// Bytes that are in `out`.
    std::size_t done = 0;
    for (std::size_t i = 0; i < text.length();) {
        std::size_t const length = lengthAt(text, i);
        std::string const other =
            length > 1 ? reference(text.substr(i, length)) : std::string(replacement(text[i]));
        if (!other.empty()) {
            append(out, text.substr(done, i - done), other);
            done = i + length;
        }
        i += length;
    }
    append(out, text.substr(done));
}

}  // namespace galley

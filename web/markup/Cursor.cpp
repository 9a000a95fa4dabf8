#include "web/markup/Cursor.h"

#include <algorithm>
#include <array>

#include "web/css/characters.h"
#include "web/text/bytes.h"
#include "web/text/utf8.h"

namespace galley::web {

namespace {

/// Unlike in sheets, a form feed is none.
constexpr bool isSpace(char c) { return c == ' ' || c == '\n' || c == '\t' || c == '\r'; }

/// All characters outside of ASCII are taken.
constexpr bool startsName(char c) { return startsNames(c) || c == ':'; }
constexpr bool continuesName(char c) { return continuesNames(c) || c == ':' || c == '.'; }

/// Whether a byte does.
constexpr auto s_continuesName = [] {
    std::array<bool, 256> continues = {};
    for (unsigned byte = 0; byte < continues.size(); ++byte)
        continues[byte] = continuesName(static_cast<char>(byte));
    return continues;
}();

/// The number of each byte.
constexpr Bytes s_places = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};

}  // namespace

Cursor::Text Cursor::takeText() {
    std::size_t const start = at;
    Bytes all = {};
    Mask areAmpersands = {};
    auto const take = [&](Bytes bytes) {
        all |= bytes;
        areAmpersands |= bytes == static_cast<unsigned char>('&');
    };
    for (; source.size() - at >= sizeof(Bytes); at += sizeof(Bytes)) {
        Bytes const bytes = bytesAt(source.data() + at);
        Mask const areEnds = bytes == static_cast<unsigned char>('<');
        if (isAny(areEnds)) {
            unsigned const count = firstOf(areEnds);
            Mask const areBefore = s_places < static_cast<unsigned char>(count);
            take(bytes & reinterpret_cast<Bytes>(areBefore));
            at += count;
            break;
        }
        take(bytes);
    }
    Text text = {{}, !isAny(all >= 0x80), isAny(areAmpersands)};
    for (; at < source.size() && source[at] != '<'; ++at) {
        text.isAscii = text.isAscii && isAscii(source[at]);
        text.hasAmpersand = text.hasAmpersand || source[at] == '&';
    }
    text.bytes = source.substr(start, at - start);
    return text;
}

std::string_view Cursor::takeUntil(char end) {
    std::size_t const start = at;
    at = std::min(source.find(end, at), source.size());
    return source.substr(start, at - start);
}

bool Cursor::skipThrough(std::string_view end) { return goTo(source.find(end, at)) && take(end); }

bool Cursor::skipUntilAnyOf(std::string_view bytes) {
    return goTo(source.find_first_of(bytes, at));
}

bool Cursor::skipWhitespace() {
    std::size_t const start = at;
    while (!atEnd() && isSpace(peek())) ++at;
    return at > start;
}

std::string_view Cursor::takeName() {
    std::size_t const start = at;
    if (!atEnd() && startsName(peek())) ++at;
    if (at == start) return {};
    while (!atEnd() && s_continuesName[static_cast<unsigned char>(peek())]) ++at;
    return source.substr(start, at - start);
}

bool Cursor::goTo(std::size_t found) {
    if (found == std::string_view::npos) return false;
    at = found;
    return true;
}

}  // namespace galley::web

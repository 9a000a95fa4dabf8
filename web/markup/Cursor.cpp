#include "web/markup/Cursor.h"

#include <algorithm>

#include "web/css/characters.h"

namespace galley::web {

namespace {

/// Unlike in sheets, a form feed is none.
constexpr bool isSpace(char c) { return c == ' ' || c == '\n' || c == '\t' || c == '\r'; }

/// All characters outside of ASCII are taken.
constexpr bool startsName(char c) { return startsNames(c) || c == ':'; }
constexpr bool continuesName(char c) { return continuesNames(c) || c == ':' || c == '.'; }

}  // namespace

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
    while (at > start && !atEnd() && continuesName(peek())) ++at;
    return source.substr(start, at - start);
}

bool Cursor::goTo(std::size_t found) {
    if (found == std::string_view::npos) return false;
    at = found;
    return true;
}

}  // namespace galley::web

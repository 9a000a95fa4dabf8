#include "web/css/ValueReader.h"

#include <algorithm>
#include <utility>

#include "web/css/characters.h"

namespace galley::web {

Token const& ValueReader::take() {
    Token const& token = tokens.front();
    drop(1);
    return token;
}

bool ValueReader::take(Token::Kind kind) {
    if (!isNext(kind)) return false;
    drop(1);
    return true;
}

bool ValueReader::takeDelimiter(char c) {
    if (atEnd() || !peek().isDelimiter(c)) return false;
    drop(1);
    return true;
}

bool ValueReader::takeWord(std::string_view word) {
    if (!isNext(Token::Kind::identifier) || !isSameWord(peek().text, word)) return false;
    drop(1);
    return true;
}

void ValueReader::ignore() {
    warnAbout(peek());
    drop(peek().extent);
}

void ValueReader::warnAbout(Token const& token) const {
    warn(*problems, token.offset,
         quoted(token.source) + " has no effect as a value of " + quoted(property));
}

void ValueReader::warnOfOpacity(Token const& token) const {
    warn(*problems, token.offset,
         "colour in " + quoted(property) + " is shown opaque, as all colours are");
}

void ValueReader::warnOfNoStyle() const {
    warn(*problems, peek().offset,
         quoted(property) + " has no style such as 'solid', and does not show");
}

void ValueReader::drop(std::size_t count) {
    tokens = tokens.subspan(std::min(count, tokens.size()));
    skipWhitespace();
}

void ValueReader::skipWhitespace() {
    while (isNext(Token::Kind::whitespace)) tokens = tokens.subspan(1);
}

}  // namespace galley::web

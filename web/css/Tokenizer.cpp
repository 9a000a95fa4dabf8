#include "web/css/Tokenizer.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include "web/css/characters.h"
#include "web/css/pairBlocks.h"
#include "web/text/utf8.h"
#include "web/wording.h"

namespace galley::web {

namespace {

using Kind = Token::Kind;

struct Punctuation {
    char character;
    Kind kind;
};

constexpr Punctuation s_punctuation[] = {
    {':', Kind::colon},           {';', Kind::semicolon},        {',', Kind::comma},
    {'(', Kind::openParenthesis}, {')', Kind::closeParenthesis}, {'[', Kind::openBracket},
    {']', Kind::closeBracket},    {'{', Kind::openBrace},        {'}', Kind::closeBrace},
};

double toNumber(std::string_view digits) {
    bool const isNegative = digits.starts_with('-');
    if (digits.starts_with('+') || isNegative) digits.remove_prefix(1);
    double number = 0;
    auto const [end, fault] =
        std::from_chars(digits.data(), digits.data() + digits.length(), number);
    // As large as that, or as small: an exponent tells.
    if (fault == std::errc::result_out_of_range) {
        bool const isTiny = digits.find("e-") != std::string_view::npos ||
                            digits.find("E-") != std::string_view::npos;
        number = isTiny ? 0 : std::numeric_limits<double>::max();
    }
    return isNegative ? -number : number;
}

}  // namespace

std::vector<Token> Tokenizer::run() {
    std::vector<Token> tokens;
    skip(s_byteOrderMark);
    while (skipComment()) {
    }
    while (!atEnd()) {
        tokens.push_back(next());
        while (skipComment()) {
        }
    }
    pairBlocks(tokens);
    return tokens;
}

void Tokenizer::warnOfRest(std::vector<Problem>& problems) const {
    if (isCut) warn(problems, s_longest, "sheets are read up to 4 MiB; the rest has no effect");
}

Token Tokenizer::next() {
    Token token;
    token.offset = position;
    token.kind = readToken(token);
    token.source = source.substr(token.offset, position - token.offset);
    return token;
}

Kind Tokenizer::readToken(Token& token) {
    if (isWhitespace(peek())) {
        while (!atEnd() && isWhitespace(peek())) ++position;
        return Kind::whitespace;
    }
    if (peek() == '"' || peek() == '\'') return readString(token);
    if (startsNumber()) return readNumber(token);
    if (skip("<!--") || skip("-->")) return Kind::commentMark;
    if (startsName(0)) return readNamed(token);
    if (peek() == '@' && startsName(1)) {
        ++position;
        token.text = readName();
        return Kind::atKeyword;
    }
    if (peek() == '#' && (continuesNames(peek(1)) || startsEscape(1))) {
        token.isName = startsName(1);
        ++position;
        token.text = readName();
        return Kind::hash;
    }
    return readPunctuation(token);
}

Kind Tokenizer::readPunctuation(Token& token) {
    char const c = source[position++];
    auto const* const found = std::find_if(std::begin(s_punctuation), std::end(s_punctuation),
                                           [c](Punctuation const& p) { return p.character == c; });
    return found == std::end(s_punctuation) ? token.kind : found->kind;
}

Kind Tokenizer::readString(Token& token) {
    char const quote = source[position++];
    while (!atEnd() && peek() != quote) {
        if (isNewline(peek())) return Kind::badString;
        if (peek() == '\\' && isNewline(peek(1))) {
            if (!skip("\\\r\n")) position += 2;
        } else if (peek() == '\\') {
            ++position;
            if (!atEnd()) readEscape(token.text);
        } else {
            token.text += source[position++];
        }
    }
    if (!atEnd()) ++position;
    return Kind::string;
}

void Tokenizer::skipDigits() {
    while (isDigit(peek())) ++position;
}

Kind Tokenizer::readNumber(Token& token) {
    std::size_t const start = position;
    if (peek() == '+' || peek() == '-') ++position;
    skipDigits();
    if (peek() == '.' && isDigit(peek(1))) {
        ++position;
        skipDigits();
    }
    std::size_t const sign = peek(1) == '+' || peek(1) == '-' ? 1 : 0;
    if (toLower(peek()) == 'e' && isDigit(peek(1 + sign))) {
        position += 1 + sign;
        skipDigits();
    }
    token.number = toNumber(source.substr(start, position - start));
    if (skip("%")) return Kind::percentage;
    if (!startsName(0)) return Kind::number;
    token.text = readName();
    return Kind::dimension;
}

Kind Tokenizer::readNamed(Token& token) {
    token.text = readName();
    if (!skip("(")) return Kind::identifier;
    if (!isSameWord(token.text, "url")) return Kind::function;
    std::size_t ahead = 0;
    while (isWhitespace(peek(ahead))) ++ahead;
    bool const isQuoted = peek(ahead) == '"' || peek(ahead) == '\'';
    return isQuoted ? Kind::function : readUrl(token);
}

Kind Tokenizer::readUrl(Token& token) {
    token.text.clear();
    while (!atEnd() && !skip(")")) {
        if (startsEscape(0)) {
            ++position;
            readEscape(token.text);
        } else {
            token.text += source[position++];
        }
    }
    return Kind::url;
}

std::string Tokenizer::readName() {
    std::string name;
    while (continuesNames(peek()) || startsEscape(0)) {
        if (peek() == '\\') {
            ++position;
            readEscape(name);
        } else {
            name += source[position++];
        }
    }
    return name;
}

void Tokenizer::readEscape(std::string& text) {
    if (atEnd() || hexDigit(peek()) < 0) {
        if (atEnd()) return appendUtf8(text, 0);
        text += source[position++];
        return;
    }
    std::uint32_t codePoint = 0;
    for (int i = 0; i < 6 && hexDigit(peek()) >= 0; ++i) {
        codePoint = codePoint * 16 + static_cast<std::uint32_t>(hexDigit(source[position++]));
    }
    // One white space ends the digits.
    if (!skip("\r\n") && isWhitespace(peek())) ++position;
    appendUtf8(text, codePoint);
}

bool Tokenizer::skipComment() {
    if (!skip("/*")) return false;
    std::size_t const end = source.find("*/", position);
    if (end == std::string_view::npos) commentStart = position - 2;
    position = end == std::string_view::npos ? source.length() : end + 2;
    return true;
}

bool Tokenizer::skip(std::string_view text) {
    if (!source.substr(position).starts_with(text)) return false;
    position += text.length();
    return true;
}

char Tokenizer::peek(std::size_t ahead) const {
    return position + ahead < source.length() ? source[position + ahead] : '\0';
}

bool Tokenizer::startsEscape(std::size_t ahead) const {
    return peek(ahead) == '\\' && !isNewline(peek(ahead + 1));
}

bool Tokenizer::startsName(std::size_t ahead) const {
    if (peek(ahead) == '-' && (peek(ahead + 1) == '-' || startsName(ahead + 1))) return true;
    return startsNames(peek(ahead)) || startsEscape(ahead);
}

bool Tokenizer::startsNumber() const {
    std::size_t const sign = peek() == '+' || peek() == '-' ? 1 : 0;
    return isDigit(peek(sign)) || (peek(sign) == '.' && isDigit(peek(sign + 1)));
}

}  // namespace galley::web

#include "web/css/SelectorParser.h"

#include <algorithm>
#include <utility>

#include "web/css/keywords.h"
#include "web/css/parseSelectors.h"

namespace galley::web {

namespace {

using Kind = Token::Kind;
using Part = SimpleSelector::Kind;

/// A pseudo-class or pseudo-element of CSS that is none of ours.
struct Pseudo {
    std::string_view name;
};

constexpr Pseudo s_ignoredPseudos[] = {
    {"active"},
    {"after"},
    {"any-link"},
    {"before"},
    {"checked"},
    {"default"},
    {"dir"},
    {"disabled"},
    {"empty"},
    {"enabled"},
    {"first-letter"},
    {"first-line"},
    {"first-of-type"},
    {"focus"},
    {"focus-visible"},
    {"focus-within"},
    {"has"},
    {"hover"},
    {"is"},
    {"lang"},
    {"last-of-type"},
    {"link"},
    {"marker"},
    {"not"},
    {"nth-last-child"},
    {"nth-last-of-type"},
    {"nth-of-type"},
    {"only-child"},
    {"only-of-type"},
    {"placeholder"},
    {"root"},
    {"selection"},
    {"target"},
    {"visited"},
    {"where"},
};

}  // namespace

SelectorParser::Outcome SelectorParser::parse() {
    do {
        if (!parseCompound()) return Outcome::wrong;
    } while (parseCombinator());
    if (!tokens.empty()) return Outcome::wrong;
    return isKnown ? Outcome::known : Outcome::unknown;
}

Selector SelectorParser::take() {
    std::reverse(compounds.begin(), compounds.end());
    return Selector(std::move(compounds));
}

bool SelectorParser::parseCompound() {
    compounds.emplace_back().isChild = isParent;
    std::size_t const before = tokens.size();
    if (isNextDelimiter('*')) {
        skip();
    } else if (isNext(Kind::identifier)) {
        add({Part::type, skip().text, {}});
    }
    while (isPart()) {
        if (!parsePart()) return false;
    }
    return tokens.size() < before;
}

bool SelectorParser::parseCombinator() {
    bool const isApart = isNext(Kind::whitespace);
    skipBlanks();
    bool const isSibling = isNextDelimiter('+') || isNextDelimiter('~');
    isParent = isNextDelimiter('>');
    if (isSibling) isKnown = false;
    if (isSibling || isParent) {
        skip();
        skipBlanks();
    }
    return isApart || isSibling || isParent;
}

bool SelectorParser::isPart() const {
    return isNext(Kind::hash) || isNext(Kind::colon) || isNext(Kind::openBracket) ||
           isNextDelimiter('.');
}

bool SelectorParser::parsePart() {
    Token const& token = skip();
    switch (token.kind) {
        case Kind::hash:
            return add({Part::id, token.text, {}}) && token.isName;
        case Kind::openBracket:
            isKnown = false;
            return true;
        case Kind::colon:
            return parsePseudo();
        default:
            return parseClass();
    }
}

bool SelectorParser::parseClass() {
    return isNext(Kind::identifier) && add({Part::className, skip().text, {}});
}

bool SelectorParser::parsePseudo() {
    bool const isElement = isNext(Kind::colon);
    if (isElement) skip();
    if (!isNext(Kind::identifier) && !isNext(Kind::function)) return false;
    Token const* const name = tokens.data();
    skip();
    std::span<Token const> const block(name, name->extent);
    if (!isElement && parsePseudoClass(*name, block)) return true;
    isKnown = false;
    return findWord(s_ignoredPseudos, name->text) != nullptr || name->text.starts_with('-');
}

bool SelectorParser::parsePseudoClass(Token const& name, std::span<Token const> arguments) {
    bool const isFunction = name.kind == Kind::function;
    if (!isFunction && isSameWord(name.text, "first-child")) {
        return add({Part::nthChild, {}, {0, 1}});
    }
    if (!isFunction && isSameWord(name.text, "last-child")) return add({Part::lastChild, {}, {}});
    if (!isFunction || !isSameWord(name.text, "nth-child")) return false;
    Nth nth;
    // Between the parentheses.
    std::size_t const length = name.extent - (name.isClosed ? 2 : 1);
    return parseNth(arguments.subspan(1, length), nth) && add({Part::nthChild, {}, nth});
}

bool SelectorParser::add(SimpleSelector part) {
    compounds.back().parts.push_back(std::move(part));
    return true;
}

Token const& SelectorParser::skip() {
    Token const& token = tokens.front();
    tokens = tokens.subspan(std::min(token.extent, tokens.size()));
    return token;
}

void SelectorParser::skipBlanks() {
    while (isNext(Kind::whitespace)) skip();
}

}  // namespace galley::web

#include "web/css/SheetParser.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "web/css/Tokenizer.h"
#include "web/css/characters.h"
#include "web/css/parseSelectors.h"

namespace galley::web {

namespace {

using Kind = Token::Kind;

/// Rules in rules in rules, with one in each, would otherwise take the whole stack.
constexpr unsigned s_deepest = 32;

/// At-rules of CSS that are none here.
constexpr std::string_view s_otherRules[] = {
    "container", "counter-style", "font-face", "font-feature-values",
    "import",    "keyframes",     "layer",     "namespace",
    "page",      "property",      "supports",
};

/// Tokens of an at-rule before its block or its semicolon.
std::size_t lengthOfPrelude(std::span<Token const> tokens) {
    std::size_t i = 0;
    while (i < tokens.size() && tokens[i].kind != Kind::semicolon &&
           tokens[i].kind != Kind::openBrace) {
        i += tokens[i].extent;
    }
    return std::min(i, tokens.size());
}

}  // namespace

Sheet SheetParser::parse(std::string_view text) {
    Tokenizer tokenizer(text);
    std::vector<Token> const tokens = tokenizer.run();
    parseRules(tokens, 0, 0);
    tokenizer.warnOfRest(problems);
    if (tokenizer.unclosedComment()) {
        warn(problems, *tokenizer.unclosedComment(), "missing '*/' behind '/*'");
    }
    return std::move(sheet);
}

void SheetParser::parseRules(Tokens tokens, std::size_t condition, unsigned depth) {
    while (!tokens.empty()) {
        Kind const kind = tokens.front().kind;
        if (kind == Kind::whitespace || kind == Kind::commentMark) {
            tokens = tokens.subspan(1);
        } else if (kind == Kind::atKeyword) {
            tokens = parseAtRule(tokens, condition, depth);
        } else {
            tokens = parseRule(tokens, condition);
        }
    }
}

SheetParser::Tokens SheetParser::parseRule(Tokens tokens, std::size_t condition) {
    std::size_t const length = lengthBefore(tokens, Kind::openBrace);
    Tokens const prelude = trimmed(tokens.first(length));
    if (length == tokens.size()) {
        warn(problems, tokens.front().offset, "missing '{' behind " + quoted(excerpt(prelude)));
        return {};
    }
    tokens = tokens.subspan(length);
    std::vector<Selector> selectors = parseSelectors(prelude, tokens.front().offset, problems);
    Tokens const content = contentOf(tokens);
    if (!selectors.empty()) {
        sheet.rules.push_back({std::move(selectors), declarations.parse(content), condition});
    }
    return tokens.subspan(std::min(tokens.front().extent, tokens.size()));
}

SheetParser::Tokens SheetParser::parseAtRule(Tokens tokens, std::size_t condition, unsigned depth) {
    Token const& name = tokens.front();
    std::size_t const end = lengthOfPrelude(tokens);
    bool const hasBlock = end < tokens.size() && tokens[end].kind == Kind::openBrace;
    if (isSameWord(name.text, "media")) {
        if (hasBlock) {
            parseMedia(tokens.subspan(1, end - 1), tokens.subspan(end), condition, depth);
        } else {
            warn(problems, name.offset, "missing '{' behind " + quoted(name.source));
        }
    } else if (!isSameWord(name.text, "charset")) {
        bool const isKnown =
            std::any_of(std::begin(s_otherRules), std::end(s_otherRules),
                        [&name](std::string_view known) { return isSameWord(name.text, known); });
        warn(problems, name.offset,
             isKnown ? quoted(name.source) + " is not supported"
                     : "unknown at-rule " + quoted(name.source));
    }
    std::size_t const length = hasBlock ? end + tokens[end].extent : end + 1;
    return tokens.subspan(std::min(length, tokens.size()));
}

void SheetParser::parseMedia(Tokens prelude, Tokens block, std::size_t condition, unsigned depth) {
    if (depth == s_deepest) {
        warn(problems, block.front().offset, "'@media' is too deep inside of others");
        return;
    }
    sheet.conditions.push_back({MediaList::parse(prelude, problems), condition});
    parseRules(contentOf(block), sheet.conditions.size(), depth + 1);
}

SheetParser::Tokens SheetParser::contentOf(Tokens tokens) {
    Token const& brace = tokens.front();
    if (!brace.isClosed) warn(problems, brace.offset, "missing '}' behind '{'");
    return tokens.subspan(1, brace.extent - (brace.isClosed ? 2 : 1));
}

}  // namespace galley::web

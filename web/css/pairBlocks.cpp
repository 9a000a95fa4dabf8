#include "web/css/pairBlocks.h"

namespace galley::web {

namespace {

using Kind = Token::Kind;

/// What closes a block that the token opens, else the kind itself.
Kind closingKind(Kind kind) {
    switch (kind) {
        case Kind::function:
        case Kind::openParenthesis:
            return Kind::closeParenthesis;
        case Kind::openBracket:
            return Kind::closeBracket;
        case Kind::openBrace:
            return Kind::closeBrace;
        default:
            return kind;
    }
}

}  // namespace

void pairBlocks(std::vector<Token>& tokens) {
    std::vector<std::size_t> open;
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        Kind const kind = tokens[i].kind;
        if (closingKind(kind) != kind) {
            open.push_back(i);
        } else if (!open.empty() && closingKind(tokens[open.back()].kind) == kind) {
            tokens[open.back()].extent = i + 1 - open.back();
            tokens[open.back()].isClosed = true;
            open.pop_back();
        }
    }
    for (std::size_t const i : open) tokens[i].extent = tokens.size() - i;
}

}  // namespace galley::web

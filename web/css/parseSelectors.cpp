#include "web/css/parseSelectors.h"

#include "web/css/DeclarationParser.h"
#include "web/css/SelectorParser.h"

namespace galley::web {

namespace {

using Kind = Token::Kind;
using Tokens = std::span<Token const>;

}  // namespace

std::vector<Selector> parseSelectors(Tokens tokens, std::size_t end,
                                     std::vector<Problem>& problems) {
    using Outcome = SelectorParser::Outcome;
    std::vector<Selector> selectors;
    for (bool isLast = false; !isLast;) {
        std::size_t const length = lengthBefore(tokens, Kind::comma);
        isLast = length == tokens.size();
        std::size_t const behind = isLast ? end : tokens[length].offset;
        Tokens const part = trimmed(tokens.first(length));
        if (!isLast) tokens = tokens.subspan(length + 1);
        if (part.empty()) {
            warn(problems, behind, "missing selector");
            return {};
        }
        SelectorParser parser(part);
        Outcome const outcome = parser.parse();
        if (outcome == Outcome::known) {
            selectors.push_back(parser.take());
            continue;
        }
        std::string const name = quoted(excerpt(part));
        bool const isWrong = outcome == Outcome::wrong;
        warn(problems, part.front().offset,
             isWrong ? name + " is no selector" : "selector " + name + " has no effect");
        if (isWrong) return {};
    }
    return selectors;
}

}  // namespace galley::web

#include "web/css/parseSelectors.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "web/css/DeclarationParser.h"
#include "web/css/characters.h"
#include "web/css/keywords.h"

namespace galley::web {

namespace {

using Kind = Token::Kind;
using Tokens = std::span<Token const>;

/// Pseudo-classes and pseudo-elements that are none of ours.
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

/// Reads one selector of a list.
class SelectorParser {
public:
    enum class Outcome {
        known,
        /// A selector, of a kind that is not known here.
        unknown,
        wrong,
    };

    explicit SelectorParser(Tokens selector) : tokens(selector) {}

    Outcome parse() {
        do {
            if (!parseCompound()) return Outcome::wrong;
        } while (!tokens.empty() && parseCombinator());
        if (!tokens.empty()) return Outcome::wrong;
        return isKnown ? Outcome::known : Outcome::unknown;
    }

    Selector take() {
        std::reverse(compounds.begin(), compounds.end());
        return Selector(std::move(compounds));
    }

private:
    void skipBlanks() {
        while (!tokens.empty() && tokens.front().kind == Kind::whitespace) skip(1);
    }

    void skip(std::size_t count) { tokens = tokens.subspan(std::min(count, tokens.size())); }

    /// Reads what parts two compounds. What the left one asks is asked of an ancestor.
    bool parseCombinator() {
        bool const isApart = tokens.front().kind == Kind::whitespace;
        skipBlanks();
        if (tokens.empty()) return false;
        bool const isSibling = tokens.front().isDelimiter('+') || tokens.front().isDelimiter('~');
        bool const isChild = tokens.front().isDelimiter('>');
        isParent = isChild;
        if (isSibling) isKnown = false;
        if (isSibling || isChild) {
            skip(1);
            skipBlanks();
        }
        return isApart || isSibling || isChild;
    }

    bool parseCompound() {
        CompoundSelector compound;
        compound.isChild = std::exchange(isParent, false);
        std::size_t const before = tokens.size();
        if (!tokens.empty() && tokens.front().isDelimiter('*')) {
            skip(1);
        } else if (!tokens.empty() && tokens.front().kind == Kind::identifier) {
            compound.parts.push_back({SimpleSelector::Kind::type, tokens.front().text, {}});
            skip(1);
        }
        while (isPart()) {
            if (!parsePart(compound)) return false;
        }
        compounds.push_back(std::move(compound));
        return tokens.size() < before;
    }

    bool isPart() const {
        if (tokens.empty()) return false;
        Kind const kind = tokens.front().kind;
        return kind == Kind::hash || kind == Kind::colon || kind == Kind::openBracket ||
               tokens.front().isDelimiter('.');
    }

    bool parsePart(CompoundSelector& compound) {
        Token const& token = tokens.front();
        switch (token.kind) {
            case Kind::hash:
                skip(1);
                compound.parts.push_back({SimpleSelector::Kind::id, token.text, {}});
                return token.isName;
            case Kind::openBracket:
                isKnown = false;
                skip(token.extent);
                return true;
            case Kind::colon:
                skip(1);
                return parsePseudo(compound);
            default:
                skip(1);
                return parseClass(compound);
        }
    }

    bool parseClass(CompoundSelector& compound) {
        if (tokens.empty() || tokens.front().kind != Kind::identifier) return false;
        compound.parts.push_back({SimpleSelector::Kind::className, tokens.front().text, {}});
        skip(1);
        return true;
    }

    bool parsePseudo(CompoundSelector& compound) {
        bool const isElement = !tokens.empty() && tokens.front().kind == Kind::colon;
        if (isElement) skip(1);
        if (tokens.empty()) return false;
        Token const& name = tokens.front();
        bool const isFunction = name.kind == Kind::function;
        if (!isFunction && name.kind != Kind::identifier) return false;
        Tokens const arguments = tokens.subspan(1, name.extent - (name.isClosed ? 2 : 1));
        skip(name.extent);
        auto const add = [&compound](SimpleSelector::Kind kind, Nth nth) {
            compound.parts.push_back({kind, {}, nth});
            return true;
        };
        if (!isElement && !isFunction && isSameWord(name.text, "first-child")) {
            return add(SimpleSelector::Kind::nthChild, {0, 1});
        }
        if (!isElement && !isFunction && isSameWord(name.text, "last-child")) {
            return add(SimpleSelector::Kind::lastChild, {});
        }
        if (!isElement && isFunction && isSameWord(name.text, "nth-child")) {
            Nth nth;
            return parseNth(arguments, nth) && add(SimpleSelector::Kind::nthChild, nth);
        }
        isKnown = false;
        return findWord(s_ignoredPseudos, name.text) != nullptr || name.text.starts_with('-');
    }

    Tokens tokens;
    /// From the left to the right.
    std::vector<CompoundSelector> compounds;
    /// Whether the compound before is to match the parent of the next one.
    bool isParent = false;
    bool isKnown = true;
};

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

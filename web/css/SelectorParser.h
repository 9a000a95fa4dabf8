#pragma once

#include <span>
#include <vector>

#include "web/css/Selector.h"
#include "web/css/Token.h"

namespace galley::web {

/// Reads one selector of a list.
class SelectorParser {
public:
    enum class Outcome {
        known,
        /// A selector of CSS, but of a kind that is not known here.
        unknown,
        wrong,
    };

    /// The tokens, without white space around them, must outlive the parser.
    explicit SelectorParser(std::span<Token const> selector) : tokens(selector) {}

    Outcome parse();

    /// Takes what was read, once that is known.
    Selector take();

private:
    bool parseCompound();
    /// Reads what parts two compounds; false where nothing does.
    bool parseCombinator();
    /// What is not a name at the beginning of a compound.
    bool isPart() const;
    bool parsePart();
    bool parseClass();
    bool parsePseudo();
    bool parsePseudoClass(Token const& name, std::span<Token const> arguments);
    bool add(SimpleSelector part);

    bool isNext(Token::Kind kind) const { return !tokens.empty() && tokens.front().kind == kind; }
    bool isNextDelimiter(char c) const { return !tokens.empty() && tokens.front().isDelimiter(c); }
    /// Steps behind the next token, or the block that it opens.
    Token const& skip();
    void skipBlanks();

    std::span<Token const> tokens;
    /// From the left to the right.
    std::vector<CompoundSelector> compounds;
    /// Whether the compound before is to match the parent of the next one.
    bool isParent = false;
    bool isKnown = true;
};

}  // namespace galley::web

#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "web/Problem.h"
#include "web/css/Declarations.h"
#include "web/css/Token.h"
#include "web/suggest.h"

namespace galley::web {

/// Reads what is between the braces of a rule, or in a `style` attribute. What is wrong or without
/// effect is left out, with a warning; about fonts there is one only, the first.
class DeclarationParser {
public:
    /// Warnings are appended to `found`. Both must outlive the parser.
    DeclarationParser(std::vector<Problem>& found, Suggester& suggester)
        : problems(found), suggestion(suggester) {}

    DeclarationBlock parse(std::span<Token const> tokens);

    /// Reads the value of a property that is known, without `!important`.
    void declare(Declarations& declarations, Property const& property,
                 std::span<Token const> value);

    /// Which of the problems is that about fonts.
    std::optional<std::size_t> const& fontProblem() const { return aboutFonts; }

private:
    void parseDeclaration(std::span<Token const> tokens, DeclarationBlock& block);
    void warnAboutUnknown(Token const& name);
    std::string valueMeant(Property const& property, std::span<Token const> value);

    std::vector<Problem>& problems;
    Suggester& suggestion;
    std::optional<std::size_t> aboutFonts;
};

/// Tokens without the white space around them.
std::span<Token const> trimmed(std::span<Token const> tokens);

/// The source of the tokens, as it is to be quoted: no more than its beginning.
std::string excerpt(std::span<Token const> tokens);

/// How many of the tokens are before the first of that kind that is in no block; all without one.
std::size_t lengthBefore(std::span<Token const> tokens, Token::Kind kind);

}  // namespace galley::web

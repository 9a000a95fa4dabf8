#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "web/css/DeclarationParser.h"
#include "web/css/Sheet.h"

namespace galley::web {

/// Reads one sheet.
class SheetParser {
public:
    /// Warnings are appended to `found`, which must outlive the parser.
    explicit SheetParser(std::vector<Problem>& found)
        : problems(found), declarations(found, suggester) {}

    Sheet parse(std::string_view text);

private:
    using Tokens = std::span<Token const>;

    /// Reads rules and at-rules, to the end. They are for `condition`, as in `Rule`.
    void parseRules(Tokens tokens, std::size_t condition, unsigned depth);
    /// Reads a rule and returns what follows it.
    Tokens parseRule(Tokens tokens, std::size_t condition);
    Tokens parseAtRule(Tokens tokens, std::size_t condition, unsigned depth);
    void parseMedia(Tokens prelude, Tokens block, std::size_t condition, unsigned depth);
    /// What is between the braces of the block that the first token opens.
    Tokens contentOf(Tokens tokens);

    std::vector<Problem>& problems;
    Suggester suggester;
    DeclarationParser declarations;
    Sheet sheet;
};

}  // namespace galley::web

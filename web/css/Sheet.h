#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "web/Problem.h"
#include "web/css/Declarations.h"
#include "web/css/MediaList.h"
#include "web/css/Selector.h"

namespace galley::web {

/// Declarations for the elements that one of the selectors matches.
struct Rule {
    std::vector<Selector> selectors;
    DeclarationBlock block;
    /// One past the place of its innermost condition in the sheet; 0 if it always holds.
    std::size_t condition = 0;
};

/// A style sheet. It holds nothing of its source, never changes, and any number of threads may use
/// it at the same time.
class Sheet {
public:
    /// Never fails: what is wrong or without effect is left out, with a warning in the order of the
    /// source.
    static Sheet parse(std::string_view text, std::vector<Problem>& problems);

    /// Whether `:last-child` is in it, which cannot be told before the parent has been read.
    bool asksForLastChild() const;

    /// The rules whose conditions hold, in their order. They live as long as the sheet, wherever it
    /// is moved.
    std::vector<Rule const*> rulesFor(Media const& media) const;

private:
    friend class SheetParser;

    struct Condition {
        MediaList list;
        /// Of the rule around it, as in `Rule`. It comes before.
        std::size_t outer = 0;
    };

    std::vector<Rule> rules;
    std::vector<Condition> conditions;
};

}  // namespace galley::web

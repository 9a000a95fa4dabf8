#pragma once

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "web/css/Sheet.h"

namespace galley::web {

/// Where declarations come from, in ascending order of precedence.
enum class Origin : std::uint8_t { defaults, author };

/// A rule under one of its selectors.
struct IndexedRule {
    Selector const* selector;
    DeclarationBlock const* block;
    /// Origin, specificity and place among all rules, in this order: greater comes before others.
    std::uint64_t precedence;

    Origin origin() const { return static_cast<Origin>(precedence >> 62U); }
};

/// Finds rules by what they ask about an element itself, so that few have to be tried.
class RuleIndex {
public:
    /// The sheet must outlive the index. Of an origin, later sheets come after earlier ones.
    void add(Sheet const& sheet, Media const& media, Origin origin);

    /// Replaces `found` by the rules for an element, in ascending order of precedence.
    void find(Element const& element, std::vector<IndexedRule>& found) const;

private:
    using Rules = std::vector<IndexedRule>;
    using RulesByName = std::unordered_map<std::string_view, Rules>;

    Rules& rulesLike(CompoundSelector const& subject);

    /// A rule is in one of them only. Names are those of the selectors.
    RulesByName byId;
    RulesByName byClass;
    RulesByName byType;
    Rules ofAll;
    std::uint32_t count = 0;
};

}  // namespace galley::web

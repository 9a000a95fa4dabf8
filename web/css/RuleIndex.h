#pragma once

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
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
    bool operator<(IndexedRule const& other) const { return precedence < other.precedence; }
};

/// Finds rules by what they ask about an element itself, so that few have to be tried.
class RuleIndex {
public:
    using Rules = std::vector<IndexedRule>;

    /// The sheet must outlive the index. Of an origin, later sheets come after earlier ones.
    void add(Sheet const& sheet, Media const& media, Origin origin);

    /// Appends the rules for an element, in any order: to `matching` those that match, wherever
    /// among its siblings it and the elements around it are; to `placed` those that may, depending
    /// on that.
    void find(Element const& element, Rules& matching, Rules& placed) const;

    /// Whether any rule asks for an identifier.
    bool asksFor(std::string_view id) const { return ids.contains(id); }

private:
    using RulesByName = std::unordered_map<std::string_view, Rules>;

    Rules& rulesLike(CompoundSelector const& subject);
    Rules* fewestOfClasses(CompoundSelector const& subject);

    /// A rule is in one of them only. Names are those of the selectors.
    RulesByName byId;
    RulesByName byClass;
    RulesByName byType;
    Rules ofAll;
    std::unordered_set<std::string_view> ids;
    std::uint32_t count = 0;
};

}  // namespace galley::web

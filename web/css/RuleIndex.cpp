#include "web/css/RuleIndex.h"

#include <algorithm>

namespace galley::web {

namespace {

std::string_view nameIn(CompoundSelector const& compound, SimpleSelector::Kind kind) {
    for (SimpleSelector const& part : compound.parts) {
        if (part.kind == kind) return part.name;
    }
    return {};
}

void addMatching(std::vector<IndexedRule> const& rules, Element const& element,
                 std::vector<IndexedRule>& found) {
    std::copy_if(rules.begin(), rules.end(), std::back_inserter(found),
                 [&element](IndexedRule const& rule) { return rule.selector->matches(element); });
}

template <class RulesByName>
void addNamed(RulesByName const& rules, std::string_view name, Element const& element,
              std::vector<IndexedRule>& found) {
    if (name.empty() || rules.empty()) return;
    auto const named = rules.find(name);
    if (named != rules.end()) addMatching(named->second, element, found);
}

}  // namespace

void RuleIndex::add(Sheet const& sheet, Media const& media, Origin origin) {
    for (Rule const* const rule : sheet.rulesFor(media)) {
        ++count;
        for (Selector const& selector : rule->selectors) {
            std::uint64_t const precedence = static_cast<std::uint64_t>(origin) << 62U |
                                             std::uint64_t{selector.specificity()} << 32U | count;
            rulesLike(selector.subject()).push_back({&selector, &rule->block, precedence});
        }
    }
}

void RuleIndex::find(Element const& element, std::vector<IndexedRule>& found) const {
    found.clear();
    addMatching(ofAll, element, found);
    addNamed(byType, element.name, element, found);
    addNamed(byId, valueOf(element, "id"), element, found);
    std::string_view classes = valueOf(element, "class");
    for (auto name = takeWord(classes); !name.empty(); name = takeWord(classes)) {
        addNamed(byClass, name, element, found);
    }
    std::sort(found.begin(), found.end(), [](IndexedRule const& a, IndexedRule const& b) {
        return a.precedence < b.precedence;
    });
}

RuleIndex::Rules& RuleIndex::rulesLike(CompoundSelector const& subject) {
    using Kind = SimpleSelector::Kind;
    if (auto const id = nameIn(subject, Kind::id); !id.empty()) return byId[id];
    if (auto const name = nameIn(subject, Kind::className); !name.empty()) return byClass[name];
    if (auto const type = nameIn(subject, Kind::type); !type.empty()) return byType[type];
    return ofAll;
}

}  // namespace galley::web

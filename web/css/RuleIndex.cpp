#include "web/css/RuleIndex.h"

namespace galley::web {

namespace {

std::string_view nameIn(CompoundSelector const& compound, SimpleSelector::Kind kind) {
    for (SimpleSelector const& part : compound.parts) {
        if (part.kind == kind) return part.name;
    }
    return {};
}

}  // namespace

void RuleIndex::add(Sheet const& sheet, Media const& media, Origin origin) {
    for (Rule const* const rule : sheet.rulesFor(media)) {
        ++count;
        for (Selector const& selector : rule->selectors) {
            std::uint64_t const precedence = static_cast<std::uint64_t>(origin) << 62U |
                                             std::uint64_t{selector.specificity()} << 32U | count;
            rulesLike(selector.subject()).push_back({&selector, &rule->block, precedence});
            for (CompoundSelector const& compound : selector.all()) {
                for (SimpleSelector const& part : compound.parts) {
                    if (part.kind == SimpleSelector::Kind::id) ids.insert(part.name);
                }
            }
        }
    }
}

void RuleIndex::find(Element const& element, Rules& matching, Rules& placed) const {
    auto const add = [&](Rules const& rules) {
        for (IndexedRule const& rule : rules) {
            if (rule.selector->asksForPlace()) {
                placed.push_back(rule);
            } else if (rule.selector->matches(element)) {
                matching.push_back(rule);
            }
        }
    };
    auto const addNamed = [&add](RulesByName const& rules, std::string_view name) {
        auto const named = rules.find(name);
        if (named != rules.end()) add(named->second);
    };
    add(ofAll);
    addNamed(byType, element.name);
    addNamed(byId, valueOf(element, "id"));
    for (std::string_view const name : classesOf(element)) addNamed(byClass, name);
}

RuleIndex::Rules& RuleIndex::rulesLike(CompoundSelector const& subject) {
    using Kind = SimpleSelector::Kind;
    if (auto const id = nameIn(subject, Kind::id); !id.empty()) return byId[id];
    if (Rules* const rules = fewestOfClasses(subject)) return *rules;
    if (auto const type = nameIn(subject, Kind::type); !type.empty()) return byType[type];
    return ofAll;
}

/// The shortest list for one of the classes, so that a class that many rules ask for does not
/// gather them all; null without classes.
RuleIndex::Rules* RuleIndex::fewestOfClasses(CompoundSelector const& subject) {
    Rules* fewest = nullptr;
    for (SimpleSelector const& part : subject.parts) {
        if (part.kind != SimpleSelector::Kind::className) continue;
        Rules& rules = byClass[part.name];
        if (fewest == nullptr || rules.size() < fewest->size()) fewest = &rules;
    }
    return fewest;
}

}  // namespace galley::web

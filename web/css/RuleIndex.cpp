#include "web/css/RuleIndex.h"

#include <algorithm>
#include <functional>

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
    for (Rules const* const ofClass : rulesOfClasses(element)) add(*ofClass);
}

std::vector<RuleIndex::Rules const*> RuleIndex::rulesOfClasses(Element const& element) const {
    std::vector<Rules const*> found;
    std::string_view classes = valueOf(element, "class");
    for (auto name = takeWord(classes); !name.empty(); name = takeWord(classes)) {
        auto const named = byClass.find(name);
        if (named != byClass.end()) found.push_back(&named->second);
    }
    // A class may be there any number of times.
    std::sort(found.begin(), found.end(), std::less<>());
    found.erase(std::unique(found.begin(), found.end()), found.end());
    return found;
}

RuleIndex::Rules& RuleIndex::rulesLike(CompoundSelector const& subject) {
    using Kind = SimpleSelector::Kind;
    if (auto const id = nameIn(subject, Kind::id); !id.empty()) return byId[id];
    if (auto const name = nameIn(subject, Kind::className); !name.empty()) return byClass[name];
    if (auto const type = nameIn(subject, Kind::type); !type.empty()) return byType[type];
    return ofAll;
}

}  // namespace galley::web

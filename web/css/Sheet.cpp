#include "web/css/Sheet.h"

#include <algorithm>

#include "web/css/SheetParser.h"

namespace galley::web {

Sheet Sheet::parse(std::string_view text, std::vector<Problem>& problems) {
    return SheetParser(problems).parse(text);
}

bool Sheet::asksForLastChild() const {
    return std::any_of(rules.begin(), rules.end(), [](Rule const& rule) {
        return std::any_of(rule.selectors.begin(), rule.selectors.end(),
                           [](Selector const& selector) { return selector.asksForLastChild(); });
    });
}

std::vector<Rule const*> Sheet::rulesFor(Media const& media) const {
    std::vector<bool> holds = {true};
    for (Condition const& condition : conditions) {
        holds.push_back(holds[condition.outer] && condition.list.matches(media));
    }
    std::vector<Rule const*> found;
    for (Rule const& rule : rules) {
        if (holds[rule.condition]) found.push_back(&rule);
    }
    return found;
}

}  // namespace galley::web

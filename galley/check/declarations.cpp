#include "galley/check/declarations.h"

#include <algorithm>
#include <iterator>
#include <set>

#include "galley/check/values.h"
#include "galley/check/wording.h"
#include "web/suggest.h"

namespace galley {

namespace {

std::string_view nameOf(PropertyEntry const& entry) { return entry.property.name; }

void checkOne(Declaration const& declaration, bool isOfRule, Findings& findings) {
    auto const [name, value, namePosition, valuePosition] = declaration;
    auto const* const entry = std::find_if(
        std::begin(s_properties), std::end(s_properties),
        [&declaration](PropertyEntry const& e) { return nameOf(e) == declaration.name; });
    if (entry == std::end(s_properties)) {
        std::string_view const suggestion = web::suggest(name, s_properties, nameOf);
        std::string const verdict = suggestion.empty() ? " has no effect" : " is no property";
        warn(findings, namePosition, quoted(name) + verdict + didYouMean(suggestion, ""));
    } else if (isOfRule && entry->value == Value::Display) {
        warn(findings, namePosition,
             quoted(name) + " has no effect in a sheet, only as an attribute");
    } else {
        std::string const warning = warningAbout(entry->value, value);
        if (!warning.empty()) warn(findings, valuePosition, warning);
    }
}

/// Of several declarations of the same property the last one counts.
void checkAll(std::vector<Declaration> const& declarations, bool isOfRule, Findings& findings) {
    std::set<std::string_view> later;
    for (std::size_t i = declarations.size(); i-- > 0;) {
        Declaration const& declaration = declarations[i];
        if (later.insert(declaration.name).second) {
            checkOne(declaration, isOfRule, findings);
        } else {
            warn(findings, declaration.namePosition,
                 "a later " + quoted(declaration.name) + " replaces this one");
        }
    }
}

}  // namespace

void checkAttributes(std::vector<Declaration> const& attributes, Findings& findings) {
    checkAll(attributes, false, findings);
}

void checkRule(std::vector<Declaration> const& declarations, Findings& findings) {
    checkAll(declarations, true, findings);
}

}  // namespace galley

#include "web/css/Cascade.h"

#include <algorithm>
#include <functional>
#include <iterator>

#include "web/css/computeStyle.h"

namespace galley::web {

namespace {

void append(std::string& key, void const* address) {
    key.append(reinterpret_cast<char const*>(&address), sizeof address);
}

}  // namespace

Cascade::Cascade(Sheet const& defaults, std::span<Sheet const* const> authors, Media const& media,
                 std::vector<Problem>& found)
    : attributes(found) {
    initial.cells = media.cells;
    rules.add(defaults, media, Origin::defaults);
    for (Sheet const* const sheet : authors) rules.add(*sheet, media, Origin::author);
}

Style const* Cascade::styleOf(Element const& element) {
    if (attributes.size() >= s_many) {
        // Families have the addresses of what the attributes declare.
        forgetFamilies();
        attributes.clear();
    }
    attributes.read(element, ofAttributes);
    Style const& parent = element.parent == nullptr ? initial : *element.parent->style;
    Family& family = familyOf(element, parent);
    if (!family.placed.empty()) return placedStyle(element, parent, family);
    if (family.style == nullptr) family.style = addStyle(parent, collect(family.matching));
    return family.style;
}

void Cascade::letGo(std::span<Style const* const> inUse) {
    if (!isFull()) return;
    std::vector<Style const*> kept(inUse.begin(), inUse.end());
    std::sort(kept.begin(), kept.end(), std::less<>());
    // Families have the addresses of parents' styles.
    forgetFamilies();
    std::erase_if(styles, [&kept](std::unique_ptr<Style const> const& style) {
        return !std::binary_search(kept.begin(), kept.end(), style.get(), std::less<>());
    });
}

void Cascade::forgetFamilies() {
    bareFamilies.fill({});
    families.clear();
}

Cascade::Family& Cascade::familyOf(Element const& element, Style const& parent) {
    bool const isBare = element.attributes.empty();
    auto const letter = static_cast<unsigned char>(element.name.back());
    BareFamily& bare = bareFamilies[letter % bareFamilies.size()];
    if (isBare && bare.parent == &parent && bare.name == element.name) return *bare.family;
    key.clear();
    append(key, &parent);
    // No name has a zero byte.
    key.append(element.name).append(1, '\0');
    key.append(valueOf(element, "class")).append(1, '\0');
    std::string_view const id = valueOf(element, "id");
    if (rules.asksFor(id)) key.append(id);
    key.append(1, '\0');
    for (Declarations const* const declarations : ofAttributes.presentational) {
        append(key, declarations);
    }
    append(key, ofAttributes.style);
    auto const [found, isNew] = families.try_emplace(key);
    if (isNew) rules.find(element, found->second.matching, found->second.placed);
    if (isBare) bare = {&found->second, &parent, std::string(element.name)};
    return found->second;
}

Style const* Cascade::placedStyle(Element const& element, Style const& parent, Family& family) {
    RuleIndex::Rules matching = family.matching;
    std::copy_if(family.placed.begin(), family.placed.end(), std::back_inserter(matching),
                 [&element](IndexedRule const& rule) { return rule.selector->matches(element); });
    DeclarationList const declared = collect(matching);
    Style const*& style = family.styles[declared];
    if (style == nullptr) style = addStyle(parent, declared);
    return style;
}

Cascade::DeclarationList Cascade::collect(RuleIndex::Rules& matching) const {
    std::sort(matching.begin(), matching.end());
    auto const author = std::find_if(matching.begin(), matching.end(), [](IndexedRule const& rule) {
        return rule.origin() == Origin::author;
    });
    DeclarationList list;
    auto const add = [&list](Declarations const& declarations) {
        if (!declarations.isEmpty()) list.push_back(&declarations);
    };
    // What is important has the reverse order of origins.
    for (auto rule = matching.begin(); rule != author; ++rule) add(rule->block->normal);
    for (Declarations const* const hint : ofAttributes.presentational) add(*hint);
    for (auto rule = author; rule != matching.end(); ++rule) add(rule->block->normal);
    if (ofAttributes.style != nullptr) add(ofAttributes.style->normal);
    for (auto rule = author; rule != matching.end(); ++rule) add(rule->block->important);
    if (ofAttributes.style != nullptr) add(ofAttributes.style->important);
    for (auto rule = matching.begin(); rule != author; ++rule) add(rule->block->important);
    return list;
}

Style const* Cascade::addStyle(Style const& parent, DeclarationList const& declared) {
    styles.push_back(std::make_unique<Style const>(computeStyle(parent, declared)));
    return styles.back().get();
}

}  // namespace galley::web

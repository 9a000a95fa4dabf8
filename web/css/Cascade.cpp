#include "web/css/Cascade.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "web/css/computeStyle.h"

namespace galley::web {

namespace {

/// Values of attributes that are remembered, and styles that are kept without being in use: half a
/// kilobyte each.
constexpr std::size_t s_many = 4096;

void add(std::vector<Declarations const*>& list, Declarations const& declarations) {
    if (!declarations.isEmpty()) list.push_back(&declarations);
}

}  // namespace

Cascade::Cascade(Sheet const& defaults, std::span<Sheet const* const> authors, Media const& media,
                 std::vector<Problem>& found)
    : attributes(found) {
    rules.add(defaults, media, Origin::defaults);
    for (Sheet const* const sheet : authors) rules.add(*sheet, media, Origin::author);
}

Style const* Cascade::styleOf(Element const& element) {
    if (attributes.size() >= s_many) {
        // Sources have the addresses of what the attributes declare.
        shared.clear();
        attributes.clear();
    }
    collect(element);
    auto const found = shared.find(source);
    if (found != shared.end()) return found->second;
    styles.push_back(std::make_unique<Style const>(computeStyle(*source.parent, source.declared)));
    return shared.emplace(source, styles.back().get()).first->second;
}

void Cascade::letGo(std::span<Style const* const> inUse) {
    if (styles.size() < s_many) return;
    std::vector<Style const*> kept(inUse.begin(), inUse.end());
    std::sort(kept.begin(), kept.end(), std::less<>());
    // Sources have the addresses of parents' styles.
    shared.clear();
    std::erase_if(styles, [&kept](std::unique_ptr<Style const> const& style) {
        return !std::binary_search(kept.begin(), kept.end(), style.get(), std::less<>());
    });
}

void Cascade::collect(Element const& element) {
    rules.find(element, matching);
    attributes.read(element, declared);
    source.parent = element.parent == nullptr ? &initial : element.parent->style;
    std::vector<Declarations const*>& list = source.declared;
    list.clear();
    auto const author = std::find_if(matching.begin(), matching.end(), [](IndexedRule const& rule) {
        return rule.origin() == Origin::author;
    });
    // Precedence ascends here, and what is important has the reverse order of origins.
    for (auto rule = matching.begin(); rule != author; ++rule) add(list, rule->block->normal);
    for (Declarations const* const declarations : declared.presentational) add(list, *declarations);
    for (auto rule = author; rule != matching.end(); ++rule) add(list, rule->block->normal);
    if (declared.style != nullptr) add(list, declared.style->normal);
    for (auto rule = author; rule != matching.end(); ++rule) add(list, rule->block->important);
    if (declared.style != nullptr) add(list, declared.style->important);
    for (auto rule = matching.begin(); rule != author; ++rule) add(list, rule->block->important);
}

std::size_t Cascade::SourceHash::operator()(Source const& source) const {
    // FNV-1a over addresses.
    std::size_t hash = 0xCBF29CE484222325U;
    auto const mix = [&hash](void const* address) {
        hash = (hash ^ std::hash<void const*>()(address)) * 0x100000001B3U;
    };
    mix(source.parent);
    for (Declarations const* const declarations : source.declared) mix(declarations);
    return hash;
}

}  // namespace galley::web

#include "web/css/Selector.h"

#include <algorithm>
#include <utility>

#include "web/css/characters.h"

namespace galley::web {

namespace {

using PartKind = SimpleSelector::Kind;

/// Takes the first word of those that white space parts; empty where there is none.
std::string_view takeWord(std::string_view& words) {
    std::size_t start = 0;
    while (start < words.length() && isWhitespace(words[start])) ++start;
    std::size_t end = start;
    while (end < words.length() && !isWhitespace(words[end])) ++end;
    std::string_view const word = words.substr(start, end - start);
    words.remove_prefix(end);
    return word;
}

bool hasClass(Element const& element, std::string_view name) {
    auto const& classes = classesOf(element);
    return std::binary_search(classes.begin(), classes.end(), name);
}

/// Specificity has three digits; none overflows into the next.
unsigned specificityOf(std::vector<CompoundSelector> const& compounds) {
    unsigned ids = 0;
    unsigned classes = 0;
    unsigned types = 0;
    for (CompoundSelector const& compound : compounds) {
        for (SimpleSelector const& part : compound.parts) {
            ++(part.kind == PartKind::id ? ids : part.kind == PartKind::type ? types : classes);
        }
    }
    auto const digit = [](unsigned count) { return std::min(count, 1023U); };
    return digit(ids) << 20 | digit(classes) << 10 | digit(types);
}

bool hasPart(std::vector<CompoundSelector> const& compounds, PartKind kind) {
    return std::any_of(
        compounds.begin(), compounds.end(), [kind](CompoundSelector const& compound) {
            return std::any_of(compound.parts.begin(), compound.parts.end(),
                               [kind](SimpleSelector const& part) { return part.kind == kind; });
        });
}

}  // namespace

bool Nth::has(unsigned index) const {
    long const steps = static_cast<long>(index) - offset;
    if (step == 0) return steps == 0;
    return steps % step == 0 && steps / step >= 0;
}

bool SimpleSelector::matches(Element const& element) const {
    switch (kind) {
        case PartKind::type:
            return element.name == name;
        case PartKind::className:
            return hasClass(element, name);
        case PartKind::id:
            return valueOf(element, "id") == name;
        case PartKind::nthChild:
            return nth.has(element.index);
        case PartKind::lastChild:
            return element.isLast;
    }
    return false;
}

bool CompoundSelector::matches(Element const& element) const {
    return std::all_of(parts.begin(), parts.end(),
                       [&element](SimpleSelector const& part) { return part.matches(element); });
}

Selector::Selector(std::vector<CompoundSelector> parts)
    : compounds(std::move(parts)),
      weight(specificityOf(compounds)),
      isPlaced(hasPart(compounds, PartKind::nthChild) || hasPart(compounds, PartKind::lastChild)) {}

bool Selector::matches(Element const& element) const {
    // Compounds between two descendant combinators are a chain from child to parent. That each is
    // found as deep as it can be leaves most room to what is left of it.
    Element const* bottom = &element;
    for (std::size_t first = 0; first < compounds.size();) {
        std::size_t i = first;
        Element const* at = bottom;
        while (at != nullptr && compounds[i].matches(*at)) {
            at = at->parent;
            if (!compounds[i++].isChild) break;
        }
        bool const isWhole = i > first && !compounds[i - 1].isChild;
        if (isWhole) {
            first = i;
            bottom = at;
        } else {
            if (first == 0 || bottom == nullptr) return false;
            bottom = bottom->parent;
        }
    }
    return true;
}

bool Selector::asksForLastChild() const { return hasPart(compounds, PartKind::lastChild); }

std::string_view valueOf(Element const& element, std::string_view name) {
    auto const found =
        std::find_if(element.attributes.begin(), element.attributes.end(),
                     [name](Attribute const& attribute) { return attribute.name == name; });
    return found == element.attributes.end() ? std::string_view() : found->value;
}

std::vector<std::string_view> const& classesOf(Element const& element) {
    if (element.classes) return *element.classes;
    std::vector<std::string_view>& classes = element.classes.emplace();
    std::string_view words = valueOf(element, "class");
    for (auto name = takeWord(words); !name.empty(); name = takeWord(words)) {
        classes.push_back(name);
    }
    std::sort(classes.begin(), classes.end());
    classes.erase(std::unique(classes.begin(), classes.end()), classes.end());
    return classes;
}

}  // namespace galley::web

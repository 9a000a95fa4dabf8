#include "web/css/Declarations.h"

#include "web/css/keywords.h"

namespace galley::web {

namespace {

enum class Default { initial, inherited, either };

constexpr Keyword<Default> s_defaults[] = {
    {"initial", Default::initial},
    {"inherit", Default::inherited},
    {"unset", Default::either},
};

}  // namespace

bool Declarations::declare(Property const& property, ValueReader value) {
    auto source = Default::initial;
    ValueReader rest = value;
    if (readKeyword<s_defaults>(rest, source)) {
        if (!rest.atEnd()) return false;
        bool const isParents =
            source == Default::inherited || (source == Default::either && property.isInherited);
        if (!isParents) property.copy({}, ownValues());
        add(property, isParents);
        return true;
    }
    Style read = values != nullptr ? *values : Style();
    if (value.atEnd() || !property.read(value, read) || !value.atEnd()) return false;
    property.copy(read, ownValues());
    add(property, false);
    return true;
}

void Declarations::applyTo(Style& style, Style const& parent) const {
    for (auto const [property, isParents] : entries) {
        property->copy(isParents ? parent : *values, style);
    }
}

Style& Declarations::ownValues() {
    if (values == nullptr) values = std::make_unique<Style>();
    return *values;
}

void Declarations::add(Property const& property, bool isParents) {
    // The last one says it all, and there are no more of them than there are properties.
    std::erase_if(entries, [&](Entry const& entry) { return entry.property == &property; });
    entries.push_back({&property, isParents});
}

}  // namespace galley::web

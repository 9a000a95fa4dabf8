#include "xml/render/Look.h"

#include <string_view>

#include "xml/css/getNodeStyle.h"
#include "xml/dom/nodes.h"
#include "xml/render/keywords.h"

namespace CLI::XML {

namespace {

using Attributes = Canvas::Attributes;

/// The flag that an inline element's name adds.
struct ElementFlag {
    std::string_view name;
    std::uint8_t flag;
};

constexpr ElementFlag s_elementFlags[] = {
    {"b", Attributes::Bold},   {"strong", Attributes::Inverse}, {"i", Attributes::Faint},
    {"em", Attributes::Faint}, {"mark", Attributes::Blink},
};

/// The value of a property; null where it is missing or empty.
String const* find(DomNode const* node, StyleProperty const& property) {
    String const* const value = findStyle(node, property);
    return value != nullptr && value->length() > 0 ? value : nullptr;
}

std::optional<std::uint8_t> findColor(DomNode const* node, StyleProperty const& property) {
    String const* const name = find(node, property);
    if (name == nullptr) return std::nullopt;
    return Attributes::color(*name);
}

}  // namespace

Look::Look(DomNode const* node)
    : background(findColor(node, Property::s_backgroundColor)),
      foreground(findColor(node, Property::s_color)),
      border(findColor(node, Property::s_borderColor)) {
    String const* const fontStyle = find(node, Property::s_fontStyle);
    if (fontStyle == nullptr) return;
    // What is no font style takes all flags away.
    keptFlags = 0;
    for (FontStyle const& style : s_fontStyles) {
        if (fontStyle->view() != style.value) continue;
        keptFlags = style.keepsFlags ? 0xFF : 0;
        addedFlags = style.added;
    }
}

Attributes Look::ofBackground(Attributes attributes) const {
    attributes.background = background.value_or(attributes.background);
    return attributes;
}

Attributes Look::ofBorder(Attributes attributes) const {
    attributes.foreground = border.value_or(attributes.foreground);
    return attributes;
}

Attributes Look::ofContent(Attributes attributes) const {
    attributes.foreground = foreground.value_or(attributes.foreground);
    attributes.flags = static_cast<std::uint8_t>((attributes.flags & keptFlags) | addedFlags);
    return attributes;
}

std::uint8_t flagOfElement(DomNode const* node) {
    DomElement const* const element = asElement(node);
    if (element == nullptr) return 0;
    for (ElementFlag const& candidate : s_elementFlags) {
        if (element->name.view() == candidate.name) return candidate.flag;
    }
    return 0;
}

}  // namespace CLI::XML

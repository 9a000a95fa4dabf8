#include "xml/layout/ElementStyle.h"

#include "xml/css/getNodeStyle.h"

namespace CLI::XML {

void readEdges(DomNode const* node, Dimensions& box) {
    auto const cells = [node](StyleProperty const& property, std::int32_t fallback) {
        String const* const value = findStyle(node, property);
        return value != nullptr ? value->toInteger() : fallback;
    };
    std::int32_t const margin = cells(Property::s_margin, 0);
    box.margin = {cells(Property::s_marginLeft, margin), cells(Property::s_marginRight, margin),
                  cells(Property::s_marginTop, margin), cells(Property::s_marginBottom, margin)};
    std::int32_t const border = cells(Property::s_borderWidth, 0);
    box.border = {
        cells(Property::s_borderLeftWidth, border), cells(Property::s_borderRightWidth, border),
        cells(Property::s_borderTopWidth, border), cells(Property::s_borderBottomWidth, border)};
    std::int32_t const padding = cells(Property::s_padding, 0);
    box.padding = {cells(Property::s_paddingLeft, padding),
                   cells(Property::s_paddingRight, padding), cells(Property::s_paddingTop, padding),
                   cells(Property::s_paddingBottom, padding)};
}

ElementStyle::ElementStyle(ZRLWPtr<DomElement> styled) : element(std::move(styled)) {
    DomElement const* const node = element.object;
    flag = flagOfElement(node);
    if (!hasStyle(node)) return;
    readEdges(node, *this);
    look = Look(node);
    hasBeneath = hasBorder() || look.hasBackground();
    isStyled = hasEdges() || look.hasBackground();
}

ElementStyle const& ElementStyles::of(ZRLWPtr<DomElement> const& element) {
    if (element->attributes.count > 0) return single.emplace_back(element);
    for (ElementStyle const& style : shared) {
        if (style.element.object == element.object) return style;
    }
    return shared.emplace_back(element);
}

}  // namespace CLI::XML

#include "xml/layout/ElementStyle.h"

#include "xml/layout/edges.h"

namespace CLI::XML {

ElementStyle::ElementStyle(ZRLWPtr<DomElement> styled) : element(std::move(styled)) {
    DomElement const* const node = element.object;
    flag = flagOfElement(node);
    if (!hasStyle(node)) return;
    readEdges(node, box);
    look = Look(node);
    hasBeneath = box.hasBorder() || look.hasBackground();
    isStyled = box.hasEdges() || look.hasBackground();
}

ElementStyle const& ElementStyles::of(ZRLWPtr<DomElement> const& element) {
    if (element->attributes.count > 0) return single.emplace_back(element);
    for (auto const& [node, style] : known) {
        if (node == element.object) return *style;
    }
    known.emplace_back(element.object, &shared.emplace_back(element));
    return *known.back().second;
}

}  // namespace CLI::XML

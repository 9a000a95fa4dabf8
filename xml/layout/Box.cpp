#include "xml/layout/Box.h"

#include "base/releaseTree.h"
#include "xml/dom/DomElement.h"

namespace CLI::XML {

Box::Box(DomNode* rendered, Type boxType) : ZR::RefCounted(nullptr), node(rendered), type(boxType) {
    initEdges();
}

Box::Box(Box const& other) : Box(other.node, other.type) {}

Box::~Box() {
    releaseTree(*this, [](Box* child) { return child->children.count > 0 ? child : nullptr; });
}

void Box::layout(Dimensions const& containing) { Walk::run(layOut(containing, {})); }

ZRLWPtr<Box> Box::split(int) { return {}; }

void Box::initEdges() {
    dimensions.padding = dimensions.border = dimensions.margin = EdgeSizes();
    // Only an element has a style, and most boxes are words.
    if (asElement(node) == nullptr) return;
    // Qualified, since it is called while the box is being constructed.
    auto const cells = [this](char const* side, char const* allSides) {
        return Box::getStyleInt2(side, allSides, 0);
    };
    EdgeSizes& margin = dimensions.margin;
    margin.left = cells("margin-left", "margin");
    margin.right = cells("margin-right", "margin");
    margin.top = cells("margin-top", "margin");
    margin.bottom = cells("margin-bottom", "margin");
    EdgeSizes& border = dimensions.border;
    border.left = cells("border-left-width", "border-width");
    border.right = cells("border-right-width", "border-width");
    border.top = cells("border-top-width", "border-width");
    border.bottom = cells("border-bottom-width", "border-width");
    EdgeSizes& padding = dimensions.padding;
    padding.left = cells("padding-left", "padding");
    padding.right = cells("padding-right", "padding");
    padding.top = cells("padding-top", "padding");
    padding.bottom = cells("padding-bottom", "padding");
}

}  // namespace CLI::XML

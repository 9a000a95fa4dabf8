#include "xml/layout/Box.h"

#include <typeinfo>
#include <utility>

#include "base/releaseTree.h"
#include "xml/css/getNodeStyle.h"
#include "xml/dom/DomElement.h"
#include "xml/layout/TableBox.h"

namespace CLI::XML {

Box::Box(DomNode* rendered, Type boxType) : ZR::RefCounted(nullptr), type(boxType), node(rendered) {
    // Most boxes are words, and most elements have no style.
    if (hasStyle(node)) initEdges();
}

Box::Box(Box const& other) : Box(other.node, other.type) {
    isRun = other.isRun;
    runBegin = other.runBegin;
    if (other.holdsNode) holdNode();
}

Box::~Box() {
    if (children.count > 0) {
        releaseTree(*this, [](Box* child) { return child->children.count > 0 ? child : nullptr; });
    }
    if (holdsNode) node->release();
}

void Box::holdNode() {
    node->addRef();
    holdsNode = true;
}

bool Box::isOfForeignClass() const {
    std::type_info const& actual = typeid(*this);
    switch (type) {
        case Block:
            return actual != typeid(BlockBox);
        case Line:
            return actual != typeid(LineBox);
        case Inline:
            return actual != typeid(InlineBox);
        case Table:
            return actual != typeid(TableBox);
        case Row:
            return actual != typeid(RowBox);
        case Cell:
            return actual != typeid(CellBox);
    }
    return true;
}

bool Box::isLaidOutByItsOwn(Dimensions const& containing, LayoutPass& pass) {
    bool const isAsked = std::exchange(pass.isOutermost, false);
    if (isAsked || !isForeign()) return false;
    layout(containing);
    isSettled = false;
    isMeasured = false;
    return true;
}

void Box::layout(Dimensions const& containing) {
    Walk::run(layOut(containing, {.isOutermost = true}));
}

ZRLWPtr<Box> Box::split(int) { return {}; }

void Box::initEdges() {
    dimensions.padding = dimensions.border = dimensions.margin = EdgeSizes();
    auto const cells = [this](StyleProperty const& side, StyleProperty const& allSides) {
        String const* const value = findStyle(node, side, allSides);
        return value != nullptr ? value->toInteger() : 0;
    };
    EdgeSizes& margin = dimensions.margin;
    margin.left = cells(Property::s_marginLeft, Property::s_margin);
    margin.right = cells(Property::s_marginRight, Property::s_margin);
    margin.top = cells(Property::s_marginTop, Property::s_margin);
    margin.bottom = cells(Property::s_marginBottom, Property::s_margin);
    EdgeSizes& border = dimensions.border;
    border.left = cells(Property::s_borderLeftWidth, Property::s_borderWidth);
    border.right = cells(Property::s_borderRightWidth, Property::s_borderWidth);
    border.top = cells(Property::s_borderTopWidth, Property::s_borderWidth);
    border.bottom = cells(Property::s_borderBottomWidth, Property::s_borderWidth);
    EdgeSizes& padding = dimensions.padding;
    padding.left = cells(Property::s_paddingLeft, Property::s_padding);
    padding.right = cells(Property::s_paddingRight, Property::s_padding);
    padding.top = cells(Property::s_paddingTop, Property::s_padding);
    padding.bottom = cells(Property::s_paddingBottom, Property::s_padding);
}

}  // namespace CLI::XML

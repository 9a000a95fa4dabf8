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
    auto const cells = [this](StyleProperty const& property, std::int32_t fallback) {
        String const* const value = findStyle(node, property);
        return value != nullptr ? value->toInteger() : fallback;
    };
    std::int32_t const margin = cells(Property::s_margin, 0);
    dimensions.margin = {
        cells(Property::s_marginLeft, margin), cells(Property::s_marginRight, margin),
        cells(Property::s_marginTop, margin), cells(Property::s_marginBottom, margin)};
    std::int32_t const border = cells(Property::s_borderWidth, 0);
    dimensions.border = {
        cells(Property::s_borderLeftWidth, border), cells(Property::s_borderRightWidth, border),
        cells(Property::s_borderTopWidth, border), cells(Property::s_borderBottomWidth, border)};
    std::int32_t const padding = cells(Property::s_padding, 0);
    dimensions.padding = {
        cells(Property::s_paddingLeft, padding), cells(Property::s_paddingRight, padding),
        cells(Property::s_paddingTop, padding), cells(Property::s_paddingBottom, padding)};
}

}  // namespace CLI::XML

// What boxes have in common: their style, their copies, their end.

#include "xml/layout/Box.h"

#include "base/releaseTree.h"
#include "xml/css/getNodeStyle.h"
#include "xml/dom/nodes.h"
#include "xml/layout/ElementStyle.h"
#include "xml/layout/boxes.h"

namespace CLI::XML {

namespace {

/// A new box for the same node.
template <class BoxClass>
ZRLWPtr<Box> cloneOf(BoxClass const& box) {
    return ZR::MovePtr<Box>(new BoxClass(box));
}

}  // namespace

Box::Box(DomNode* rendered, Type boxType) : ZR::RefCounted(nullptr), type(boxType), node(rendered) {
    // Most boxes are words, and most elements have no style.
    if (hasStyle(node)) initEdges();
}

Box::Box(Box const& other) : Box(other.node, other.type) {}

Box::~Box() {
    if (children.count > 0) {
        releaseTree(*this, [](Box* child) { return child->children.count > 0 ? child : nullptr; });
    }
}

ZRLWPtr<Box> BlockBox::clone() { return cloneOf(*this); }
ZRLWPtr<Box> TableBox::clone() { return cloneOf(*this); }
ZRLWPtr<Box> LineBox::clone() { return cloneOf(*this); }
ZRLWPtr<Box> RowBox::clone() { return cloneOf(*this); }
ZRLWPtr<Box> InlineBox::clone() { return cloneOf(*this); }
ZRLWPtr<Box> CellBox::clone() { return cloneOf(*this); }

void Box::initEdges() { readEdges(node, dimensions); }

String Box::getStyle(String const& property, String const& defaultValue) const {
    return getStyle2(property, property, defaultValue);
}

String Box::getStyle2(String const& property, String const& fallbackProperty,
                      String const& defaultValue) const {
    String value = defaultValue;
    if (!getNodeStyle(node, property, value)) getNodeStyle(node, fallbackProperty, value);
    return value;
}

int Box::getStyleInt2(String const& property, String const& fallbackProperty,
                      int defaultValue) const {
    String value;
    bool const found =
        getNodeStyle(node, property, value) || getNodeStyle(node, fallbackProperty, value);
    return found ? value.toInteger() : defaultValue;
}

}  // namespace CLI::XML

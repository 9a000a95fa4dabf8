// How a box builds the boxes below it from the children of its node.

#include <iterator>

#include "base/Walk.h"
#include "xml/dom/nodes.h"
#include "xml/layout/boxes.h"
#include "xml/layout/children.h"

namespace CLI::XML {

namespace {

using MakeBox = ZRLWPtr<Box> (*)(DomNode*);

template <class BoxClass>
ZRLWPtr<Box> make(DomNode* node) {
    return ZR::MovePtr<Box>(new BoxClass(node));
}

/// What becomes of a child, by its display kind from `DomNode::Block` to `DomNode::TableCell`;
/// null where the child is refused.
using ChildRules = MakeBox[DomNode::None];

/// By the type of the parent.
constexpr ChildRules s_childRules[] = {
    {make<BlockBox>, make<InlineBox>, make<TableBox>, nullptr, nullptr},
    {},  // a line has no node
    {make<BlockBox>, make<InlineBox>, nullptr, nullptr, nullptr},
    {nullptr, nullptr, nullptr, make<RowBox>, nullptr},
    {nullptr, nullptr, nullptr, nullptr, make<CellBox>},
    {make<BlockBox>, make<InlineBox>, nullptr, nullptr, nullptr},
};

/// The type of the box for an element, by its display kind.
constexpr Box::Type s_types[DomNode::None] = {Box::Block, Box::Inline, Box::Table, Box::Row,
                                              Box::Cell};

MakeBox ruleFor(Box::Type parent, DomNode::Display childDisplay) {
    auto const type = static_cast<std::size_t>(parent);
    auto const display = static_cast<std::size_t>(childDisplay);
    bool const isKnown = type < std::size(s_childRules) && display < DomNode::None;
    return isKnown ? s_childRules[type][display] : nullptr;
}

Walk createBoxes(Box& box, XCode& result) {
    result = testExpression(box.node);
    DomElement const* const element = asElement(box.node);
    if (element == nullptr) co_return;
    for (ZRLWPtr<DomNode> const& child : element->children) {
        if (child->display == DomNode::None) continue;
        Box* const made = addBox(box, *child);
        if (made == nullptr) {
            result = refuse(*element, asElement(child.object));
            co_return;
        }
        if (child->kind == DomNode::Element) co_await createBoxes(*made, result);
        if (!result) co_return;
    }
}

XCode createAllBoxes(Box& box) {
    XCode result;
    Walk::run(createBoxes(box, result));
    return result;
}

}  // namespace

Box* addBox(Box& parent, DomNode& child) {
    MakeBox const make = ruleFor(parent.type, child.display);
    if (make == nullptr) return nullptr;
    ZRLWPtr<Box> const made = make(&child);
    bool const isInline = child.display == DomNode::Inline;
    (isInline ? *parent.getOrCreateLineBox() : parent).children.add(made);
    return made.object;
}

XCode refuse(DomElement const& parent, DomElement const* child) {
    return testExpression(false).setStringF("Cannot layout '%s' within '%s'",
                                            child != nullptr ? child->name.c_str() : "text",
                                            parent.name.c_str());
}

bool mayHold(DomNode::Display parent, DomNode::Display child) {
    return ruleFor(s_types[parent], child) != nullptr;
}

XCode BlockBox::createChildren() { return createAllBoxes(*this); }
XCode TableBox::createChildren() { return createAllBoxes(*this); }
XCode LineBox::createChildren() { return createAllBoxes(*this); }
XCode RowBox::createChildren() { return createAllBoxes(*this); }
XCode InlineBox::createChildren() { return createAllBoxes(*this); }

ZRLWPtr<Box> BlockBox::getOrCreateLineBox() {
    if (children.count == 0 || children[children.count - 1]->type != Line) {
        children.add(ZR::MovePtr<Box>(new LineBox));
    }
    return children[children.count - 1];
}

ZRLWPtr<Box> LineBox::getOrCreateLineBox() { return ZRLWPtr<Box>::share(this); }
ZRLWPtr<Box> InlineBox::getOrCreateLineBox() { return ZRLWPtr<Box>::share(this); }

}  // namespace CLI::XML

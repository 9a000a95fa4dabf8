// How a box builds the boxes below it from the children of its node.

#include <iterator>

#include "xml/dom/DomElement.h"
#include "xml/layout/BlockBox.h"
#include "xml/layout/TableBox.h"

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

constexpr ChildRules s_inBlock = {make<BlockBox>, make<InlineBox>, make<TableBox>, nullptr,
                                  nullptr};
constexpr ChildRules s_inTable = {nullptr, nullptr, nullptr, make<RowBox>, nullptr};
constexpr ChildRules s_inRow = {nullptr, nullptr, nullptr, nullptr, make<CellBox>};
constexpr ChildRules s_inInline = {make<BlockBox>, make<InlineBox>, nullptr, nullptr, nullptr};

MakeBox ruleFor(DomNode const& child, ChildRules const& rules) {
    auto const display = static_cast<std::size_t>(child.display);
    return display < std::size(rules) ? rules[display] : nullptr;
}

XCode refuse(DomNode const& child, DomElement const& parent) {
    DomElement const* const element = asElement(&child);
    return testExpression(false).setStringF("Cannot layout '%s' within '%s'",
                                            element != nullptr ? element->name.c_str() : "text",
                                            parent.name.c_str());
}

XCode createChildrenOf(Box& box, ChildRules const& rules) {
    if (box.node == nullptr) return testExpression(false);
    DomElement const* const element = asElement(box.node);
    if (element == nullptr) return XCode();
    for (ZRLWPtr<DomNode> const& child : element->children) {
        if (child->display == DomNode::None) continue;
        MakeBox const makeChild = ruleFor(*child, rules);
        if (makeChild == nullptr) return refuse(*child, *element);
        ZRLWPtr<Box> const made = makeChild(child.object);
        if (child->display == DomNode::Inline) {
            box.getOrCreateLineBox()->children.add(made);
        } else {
            box.children.add(made);
        }
        XCode result = made->createChildren();
        if (!result) return result;
    }
    return XCode();
}

}  // namespace

XCode BlockBox::createChildren() { return createChildrenOf(*this, s_inBlock); }
XCode TableBox::createChildren() { return createChildrenOf(*this, s_inTable); }
XCode RowBox::createChildren() { return createChildrenOf(*this, s_inRow); }
XCode InlineBox::createChildren() { return createChildrenOf(*this, s_inInline); }
XCode LineBox::createChildren() { return testExpression(false); }

ZRLWPtr<Box> BlockBox::getOrCreateLineBox() {
    if (children.count == 0 || children[children.count - 1]->type != Line) {
        children.add(ZR::MovePtr<Box>(new LineBox));
    }
    return children[children.count - 1];
}

ZRLWPtr<Box> LineBox::getOrCreateLineBox() { return ZRLWPtr<Box>::share(this); }
ZRLWPtr<Box> InlineBox::getOrCreateLineBox() { return ZRLWPtr<Box>::share(this); }

}  // namespace CLI::XML

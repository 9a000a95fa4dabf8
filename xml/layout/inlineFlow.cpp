// How the boxes of a line, and those of an inline element on it, stand side by side.

#include <utility>

#include "xml/dom/DomText.h"
#include "xml/layout/InlineBox.h"
#include "xml/layout/LineBox.h"
#include "xml/layout/placement.h"

namespace CLI::XML {

namespace {

bool isNegative(EdgeSizes const& edges) { return edges.left < 0 || edges.right < 0; }

bool takesLessThanItsContent(Dimensions const& d) {
    return isNegative(d.padding) || isNegative(d.border) || isNegative(d.margin);
}

template <class Gap>
Walk layoutRightwards(Box& box, Dimensions const& containing, LayoutPass pass) {
    constexpr Gap gapBetween;
    if (box.isLaidOutByItsOwn(containing, pass)) co_return;
    if (pass.again && box.isSettled) co_return;
    // A block keeps the breaks that it got at any width behind the boxes before it.
    if (box.type != Box::Line && box.holdsBlock) pass.isLimited = false;
    RightwardRow row(box.dimensions);
    bool holdsBlock = false;
    bool areAllSettled = true;
    bool mayShrink = false;
    bool isFull = false;
    unsigned i = 0;
    while (i < box.children.count && !isFull) {
        Box& child = *box.children.data[i++];
        if (asText(child.node) != nullptr && isLeaf(child)) {
            sizeLeaf(child);
            row.addWord(child.dimensions.content, gapBetween);
        } else {
            row.place(child.dimensions, gapBetween);
            if (!pass.isMeasured) co_await child.layOut(box.dimensions, pass);
            row.add(child.dimensions);
            areAllSettled = areAllSettled && child.isSettled;
            holdsBlock = holdsBlock || child.holdsBlock;
            mayShrink = mayShrink || child.mayShrink || takesLessThanItsContent(child.dimensions);
        }
        if (pass.isLimited) pass.room -= child.dimensions.content.width;
        isFull = pass.isLimited && pass.room < 0;
    }
    if (box.children.count == 0) sizeLeaf(box);
    box.holdsBlock = holdsBlock;
    box.isSettled = areAllSettled && i == box.children.count;
    box.mayShrink = mayShrink;
}

}  // namespace

void sizeLeaf(Box& box) {
    DomText const* const word = asText(box.node);
    bool const isShown = word != nullptr && word->text.length() > 0;
    box.dimensions.content.width = isShown ? word->text.length() : 0;
    box.dimensions.content.height = isShown ? 1 : 0;
    box.isSettled = true;
    box.mayShrink = false;
    box.holdsBlock = false;
}

ZRLWPtr<Box> makeWords(std::string_view words, bool isRun) {
    ZRLWPtr<DomNode> node = makeText(words);
    static_cast<DomText&>(*node).isRun = isRun;
    ZRLWPtr<Box> box = ZR::MovePtr<Box>(new InlineBox(node.object));
    box->heldNode = std::move(node);
    sizeLeaf(*box);
    return box;
}

Walk LineBox::layOut(Dimensions const& containing, LayoutPass pass) {
    return layoutRightwards<LargerMargin>(*this, containing, pass);
}

Walk InlineBox::layOut(Dimensions const& containing, LayoutPass pass) {
    return layoutRightwards<UncoveredMargin>(*this, containing, pass);
}

}  // namespace CLI::XML

// How the boxes of a line, and those of an inline element on it, stand side by side.

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

std::string_view shownText(Box const& box) {
    DomText const* const text = asText(box.node);
    if (text == nullptr) return {};
    if (!box.isRun) return text->text.view();
    return text->text.view().substr(static_cast<std::size_t>(box.runBegin),
                                    static_cast<std::size_t>(box.dimensions.content.width));
}

void sizeLeaf(Box& box) {
    auto const length = static_cast<std::int32_t>(shownText(box).length());
    box.dimensions.content.width = length;
    box.dimensions.content.height = length > 0 ? 1 : 0;
    box.isSettled = true;
    box.mayShrink = false;
    box.holdsBlock = false;
}

Walk LineBox::layOut(Dimensions const& containing, LayoutPass pass) {
    return layoutRightwards<LargerMargin>(*this, containing, pass);
}

Walk InlineBox::layOut(Dimensions const& containing, LayoutPass pass) {
    return layoutRightwards<UncoveredMargin>(*this, containing, pass);
}

}  // namespace CLI::XML

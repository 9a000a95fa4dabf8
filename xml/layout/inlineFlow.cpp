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

/// The layout of one box whose children stand side by side, child by child.
template <class Gap>
class InlineLayout {
public:
    InlineLayout(Box& laidOut, LayoutPass asked)
        : box(laidOut), pass(asked), row(laidOut.dimensions) {
        // A block keeps the breaks that it got at any width behind the boxes before it.
        if (box.type != Box::Line && box.holdsBlock) pass.isLimited = false;
    }

    bool isDone() const { return isFull || next == box.children.count; }

    /// The layout of the child that was placed, where it has none yet.
    Walk layOut(Box& child) const {
        return pass.isMeasured ? Walk() : child.layOut(box.dimensions, pass);
    }

    /// Places the words that come next.
    void placeWords() {
        while (!isDone()) {
            Box& child = *box.children.data[next];
            if (asText(child.node) == nullptr || !isLeaf(child)) return;
            sizeLeaf(child);
            row.addWord(child.dimensions.content, Gap());
            take(child);
        }
    }

    /// Places the next child, which is to be laid out before it is taken in.
    Box& place() {
        Box& child = *box.children.data[next];
        row.place(child.dimensions, Gap());
        return child;
    }

    void takeLaidOut(Box const& child) {
        row.add(child.dimensions);
        areAllSettled = areAllSettled && child.isSettled;
        holdsBlock = holdsBlock || child.holdsBlock;
        mayShrink = mayShrink || child.mayShrink || takesLessThanItsContent(child.dimensions);
        take(child);
    }

    void finish() {
        if (box.children.count == 0) sizeLeaf(box);
        box.holdsBlock = holdsBlock;
        box.isSettled = areAllSettled && next == box.children.count;
        box.mayShrink = mayShrink;
    }

private:
    void take(Box const& child) {
        ++next;
        if (!pass.isLimited) return;
        pass.room -= child.dimensions.content.width;
        isFull = pass.room < 0;
    }

    Box& box;
    LayoutPass pass;
    RightwardRow row;
    unsigned next = 0;
    bool holdsBlock = false;
    bool areAllSettled = true;
    bool mayShrink = false;
    bool isFull = false;
};

/// Goes on where the next child is not a word. There is one such call for each level of a deep
/// document, so that it keeps little.
template <class Gap>
Walk layoutChildren(InlineLayout<Gap> layout) {
    while (!layout.isDone()) {
        Box& child = layout.place();
        co_await layout.layOut(child);
        layout.takeLaidOut(child);
        layout.placeWords();
    }
    layout.finish();
}

template <class Gap>
Walk layoutRightwards(Box& box, Dimensions const& containing, LayoutPass pass) {
    if (box.isLaidOutByItsOwn(containing, pass)) return {};
    if (pass.again && box.isSettled) return {};
    InlineLayout<Gap> layout(box, pass);
    layout.placeWords();
    if (!layout.isDone()) return layoutChildren(layout);
    layout.finish();
    return {};
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

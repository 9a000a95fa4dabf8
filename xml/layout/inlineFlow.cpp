// How the boxes of a line, and those of an inline element on it, stand side by side.

#include <algorithm>

#include "xml/dom/DomText.h"
#include "xml/layout/layOut.h"
#include "xml/layout/placement.h"

namespace CLI::XML {

namespace {

/// The layout of one box whose children stand side by side, child by child.
template <class Gap>
class InlineLayout {
public:
    InlineLayout(Box& laidOut, LayoutPass asked)
        : box(laidOut),
          pass(asked),
          row(RightwardRow::begin(laidOut.dimensions.content)),
          widestBlock(asked.isLimited ? laidOut.decisiveWidth : 0) {}

    bool isDone() const { return isFull || next == box.children.count; }

    /// The layout of the child that was placed.
    Walk layOut(Box& child) const {
        LayoutPass passOfChild = pass;
        passOfChild.isLimited = pass.isLimited && mayEnd();
        return CLI::XML::layOut(child, box.dimensions, passOfChild);
    }

    /// Places the words that come next.
    void placeWords() {
        while (!isDone()) {
            Box& child = *box.children.data[next];
            if (asText(child.node) == nullptr || !isLeaf(child)) return;
            sizeLeaf(child);
            row.addWord(box.dimensions.content, child.dimensions.content, Gap());
            take(child);
        }
    }

    /// Places the next child, which is to be laid out before it is taken in.
    Box& place() {
        Box& child = *box.children.data[next];
        row.place(box.dimensions.content, child.dimensions, Gap());
        return child;
    }

    void takeLaidOut(Box const& child) {
        areAllMeasured = areAllMeasured && child.isMeasured && isWidthModerate();
        row.add(box.dimensions.content, child.dimensions);
        areAllSettled = areAllSettled && child.isSettled;
        holdsBlock = holdsBlock || child.holdsBlock;
        mayShrink = mayShrink || child.mayShrink || child.dimensions.hasNegativeSide();
        if (child.type == Box::Block) {
            widestBlock = std::max(widestBlock, child.dimensions.marginBox().width);
        }
        take(child);
    }

    void finish() {
        if (box.children.count == 0) sizeLeaf(box);
        bool const isComplete = next == box.children.count;
        box.holdsBlock = holdsBlock || (!isComplete && box.holdsBlock);
        box.isSettled = areAllSettled && isComplete;
        box.isMeasured = areAllMeasured && isComplete && isWidthModerate();
        box.mayShrink = mayShrink;
        box.decisiveWidth = widestBlock;
    }

private:
    /// A block is offered what the boxes before it take. It keeps the breaks that it got at any
    /// width, but where that is as much as each block asks for the rest stays as it is.
    bool mayEnd() const { return box.dimensions.content.width >= widestBlock; }

    bool isWidthModerate() const { return isModerate(box.dimensions.content.width); }

    void take(Box const& child) {
        ++next;
        if (!pass.isLimited) return;
        pass.room -= child.dimensions.content.width;
        isFull = pass.room < 0 && mayEnd();
    }

    Box& box;
    LayoutPass pass;
    RightwardRow row;
    std::int32_t widestBlock;
    unsigned next = 0;
    bool holdsBlock = false;
    bool areAllSettled = true;
    bool areAllMeasured = true;
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
Walk layoutRightwards(Box& box, LayoutPass pass) {
    if (pass.again && box.isSettled) return {};
    InlineLayout<Gap> layout(box, pass);
    layout.placeWords();
    if (!layout.isDone()) return layoutChildren(layout);
    layout.finish();
    return {};
}

}  // namespace

void sizeLeaf(Box& box) {
    Rect& content = box.dimensions.content;
    DomText const* const word = asText(box.node);
    content.width = word != nullptr ? word->text.length() : 0;
    content.height = content.width > 0 ? 1 : 0;
    box.isSettled = true;
    box.isMeasured = true;
    box.mayShrink = false;
    box.holdsBlock = false;
}

Walk layOutLine(Box& line, LayoutPass pass) { return layoutRightwards<LargerMargin>(line, pass); }

Walk layOutInline(Box& element, LayoutPass pass) {
    return layoutRightwards<UncoveredMargin>(element, pass);
}

}  // namespace CLI::XML

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
    explicit InlineLayout(Box& laidOut)
        : box(laidOut), row(RightwardRow::begin(laidOut.dimensions.content)) {
        box.isSettled = true;
        box.mayShrink = false;
    }

    bool isDone() const { return next == box.children.count; }

    /// Places the words that come next.
    void placeWords() {
        for (; !isDone(); ++next) {
            Box& child = *box.children.data[next];
            if (asText(child.node) == nullptr || !isLeaf(child)) return;
            sizeLeaf(child);
            row.addWord(box.dimensions.content, child.dimensions.content, Gap());
        }
    }

    /// Places the next child, which is to be laid out before it is taken in.
    Box& place() {
        Box& child = *box.children.data[next];
        row.place(box.dimensions.content, child.dimensions, Gap());
        return child;
    }

    Walk layOut(Box& child, LayoutPass pass) const {
        return CLI::XML::layOut(child, box.dimensions, pass);
    }

    void take(Box const& child) {
        ++next;
        row.add(box.dimensions.content, child.dimensions);
        box.isSettled = box.isSettled && child.isSettled;
        box.mayShrink = box.mayShrink || mayTakeOff(child);
    }

private:
    Box& box;
    RightwardRow row;
    unsigned next = 0;
};

/// Goes on where the next child is not a word. There is one such call for each level of a deep
/// document, so that it keeps little.
template <class Gap>
Walk layoutChildren(InlineLayout<Gap> layout, LayoutPass pass) {
    while (!layout.isDone()) {
        Box& child = layout.place();
        co_await layout.layOut(child, pass);
        layout.take(child);
        layout.placeWords();
    }
}

template <class Gap>
Walk layoutRightwards(Box& box, LayoutPass pass) {
    if (pass == LayoutPass::Again && box.isSettled) return {};
    InlineLayout<Gap> layout(box);
    if (layout.isDone()) sizeLeaf(box);
    layout.placeWords();
    if (layout.isDone()) return {};
    return layoutChildren(layout, pass);
}

}  // namespace

void sizeLeaf(Box& box) {
    Rect& content = box.dimensions.content;
    DomText const* const word = asText(box.node);
    content.width = word != nullptr ? word->text.length() : 0;
    content.height = content.width > 0 ? 1 : 0;
    box.isSettled = true;
    box.mayShrink = false;
}

Walk layOutLine(Box& line, LayoutPass pass) { return layoutRightwards<LargerMargin>(line, pass); }

Walk layOutInline(Box& element, LayoutPass pass) {
    return layoutRightwards<UncoveredMargin>(element, pass);
}

}  // namespace CLI::XML

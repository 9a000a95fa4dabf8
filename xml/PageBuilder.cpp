#include "xml/PageBuilder.h"

#include <limits>
#include <new>
#include <utility>

#include "base/saturate.h"
#include "xml/layout/TableBox.h"
#include "xml/layout/makeChild.h"
#include "xml/pageOfWidth.h"

namespace CLI::XML {

namespace {

ZRLWPtr<BlockBox> asBlock(ZRLWPtr<Box> const& box) {
    return ZRLWPtr<BlockBox>::share(static_cast<BlockBox*>(box.object));
}

}  // namespace

PageBuilder::OpenBlock::OpenBlock(ZRLWPtr<BlockBox> made, Dimensions const& containing,
                                  BlockFlow::Taker& taker, Canvas& canvas,
                                  Canvas::Attributes const& attributes)
    : box(std::move(made)),
      flow(*box, containing, taker),
      painting(*box, canvas, attributes, BoxPainting::Open) {}

PageBuilder::PageBuilder(DomElement& root, unsigned width, int expectedLength, CellBudget& budget)
    : page(&budget) {
    // Each line of words adds a line feed: not more than this on a page of 16 columns.
    if (!text.reserve(saturate(std::int64_t{expectedLength} + expectedLength / 16))) {
        text.reserve(expectedLength);
    }
    ZRLWPtr<BlockBox> const box = ZR::MovePtr<BlockBox>(new BlockBox(&root));
    box->holdNode();
    innermost =
        std::make_unique<OpenBlock>(box, pageOfWidth(width), *this, page, Canvas::Attributes());
    innermost->paintsOnPage = innermost->painting.paintsDirectly();
}

PageBuilder::~PageBuilder() {
    // From the inside out: a painting ends within the one around it.
    while (innermost) innermost = std::move(innermost->around);
}

/// The box that receives what is read.
Box& PageBuilder::parent() { return subtree.empty() ? *innermost->box : *subtree.back(); }

void PageBuilder::startElement(ZRLWPtr<DomElement> const& element) {
    if (!refusal) return;
    if (hidden > 0 || element->display == DomNode::None) {
        ++hidden;
        return;
    }
    ZRLWPtr<Box> box = makeChild(parent(), *element, refusal);
    if (!box) return;
    box->holdNode();
    if (subtree.empty() && element->display == DomNode::Block) {
        openBlock(box);
        return;
    }
    bool const isInline = element->display == DomNode::Inline;
    isSubtreeInline = isInline && (subtree.empty() || isSubtreeInline);
    if (!subtree.empty()) {
        Box& holder = isInline ? *parent().getOrCreateLineBox() : parent();
        holder.hasSpecialChild = holder.hasSpecialChild || !isInline || box->dimensions.hasEdges();
        holder.children.add(box);
    }
    subtree.push_back(std::move(box));
}

void PageBuilder::endElement() {
    if (!refusal) return;
    if (hidden > 0) {
        --hidden;
    } else if (subtree.empty()) {
        closeBlock();
    } else {
        ZRLWPtr<Box> box = std::move(subtree.back());
        subtree.pop_back();
        if (box->type == Box::Cell) static_cast<CellBox&>(*box).takeRun();
        if (subtree.empty()) addSubtree(std::move(box));
    }
}

bool PageBuilder::takesText() {
    if (refusal && hidden == 0) refusal = checkText(parent());
    return refusal && hidden == 0;
}

void PageBuilder::addWords(std::string_view read) {
    if (!takesText()) return;
    if (!subtree.empty()) {
        words.addWords(parent().getOrCreateLineBox()->children, read);
        return;
    }
    while (!read.empty()) {
        read.remove_prefix(innermost->flow.addWords(read, words));
    }
}

void PageBuilder::addWord(std::string_view word) {
    if (!takesText()) return;
    if (!subtree.empty()) {
        words.addWord(parent().getOrCreateLineBox()->children, word);
    } else {
        innermost->flow.addWord(word, words);
    }
}

XCode PageBuilder::finish(String& out) {
    if (!refusal) return refusal;
    finishBlock();
    moveRowsAbove(std::numeric_limits<unsigned>::max());
    if (!isTextComplete) throw std::bad_alloc();
    out = std::move(text);
    return refusal;
}

void PageBuilder::openBlock(ZRLWPtr<Box> const& box) {
    innermost->flow.closeLine();
    innermost->flow.place(*asBlock(box));
    auto opened =
        std::make_unique<OpenBlock>(asBlock(box), innermost->box->dimensions, *this,
                                    innermost->painting.canvas(), innermost->painting.attributes());
    opened->paintsOnPage = innermost->paintsOnPage && opened->painting.paintsDirectly();
    opened->around = std::move(innermost);
    innermost = std::move(opened);
}

void PageBuilder::finishBlock() {
    innermost->flow.closeLine();
    innermost->flow.finish();
    innermost->painting.finish();
}

void PageBuilder::closeBlock() {
    finishBlock();
    ZRLWPtr<BlockBox> const box = innermost->box;
    innermost = std::move(innermost->around);
    innermost->flow.take(*box);
    if (innermost->paintsOnPage) releaseRows(innermost->box->dimensions.content.height);
}

/// Lays out and paints an inline element or a table, now that it is complete.
void PageBuilder::addSubtree(ZRLWPtr<Box> box) {
    if (box->node->display == DomNode::Inline) {
        innermost->flow.addToLine(std::move(box), isSubtreeInline);
    } else {
        innermost->flow.closeLine();
        Walk::run(innermost->flow.add(box, {}));
    }
}

/// Paints a child of the innermost block.
void PageBuilder::take(ZRLWPtr<Box> box) {
    Canvas& canvas = innermost->painting.canvas();
    if (box->type == Box::Table) {
        BoxPainting painting(*box, canvas, innermost->painting.attributes(), BoxPainting::Complete);
        bool const isOnPage = innermost->paintsOnPage && painting.paintsDirectly();
        // Row by row, so that of a long table few rows of cells are kept, and each row is let go
        // while it is at hand.
        for (unsigned i = 0; i < box->children.count; ++i) {
            ZRLWPtr<Box> const row = std::move(box->children[i]);
            row->drawTo(painting.canvas(), painting.attributes());
            Rect const& area = row->dimensions.content;
            if (isOnPage) releaseRows(std::int64_t{area.y} + area.height);
        }
        painting.finish();
    } else {
        box->drawTo(canvas, innermost->painting.attributes());
    }
    if (innermost->paintsOnPage) releaseRows(innermost->box->dimensions.content.height);
}

/// The page's origin is that of a box that stacks its children, and `height` rows below it have
/// been painted: without extreme edges nothing more is painted there.
void PageBuilder::releaseRows(std::int64_t height) {
    std::int64_t const row = page.originRow() + height;
    if (row <= std::numeric_limits<std::int32_t>::max()) {
        moveRowsAbove(static_cast<unsigned>(row));
    }
}

void PageBuilder::moveRowsAbove(unsigned row) {
    isTextComplete = page.moveRowsTo(text, row) && isTextComplete;
}

}  // namespace CLI::XML

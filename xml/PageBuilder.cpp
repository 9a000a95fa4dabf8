#include "xml/PageBuilder.h"

#include <limits>
#include <utility>

#include "xml/layout/TableBox.h"
#include "xml/layout/makeChild.h"
#include "xml/pageOfWidth.h"

namespace CLI::XML {

namespace {

ZRLWPtr<BlockBox> asBlock(ZRLWPtr<Box> const& box) {
    return ZRLWPtr<BlockBox>::share(static_cast<BlockBox*>(box.object));
}

}  // namespace

PageBuilder::OpenBlock::OpenBlock(ZRLWPtr<DomElement> rendered, ZRLWPtr<BlockBox> made,
                                  Dimensions const& containing, Canvas& canvas,
                                  Canvas::Attributes const& attributes)
    : element(std::move(rendered)),
      box(std::move(made)),
      flow(*box, containing),
      painting(*box, canvas, attributes, BoxPainting::Open) {}

PageBuilder::PageBuilder(ZRLWPtr<DomElement> root, unsigned width, int expectedLength) {
    text.reserve(expectedLength);
    ZRLWPtr<BlockBox> const box = ZR::MovePtr<BlockBox>(new BlockBox(root.object));
    open.emplace_back(std::move(root), box, pageOfWidth(width), page, Canvas::Attributes());
    innermost().paintsOnPage = innermost().painting.paintsDirectly();
}

PageBuilder::~PageBuilder() {
    // From the inside out: a painting ends within the one around it.
    while (!open.empty()) open.pop_back();
}

void PageBuilder::startElement(ZRLWPtr<DomElement> element) {
    if (!refusal) return;
    if (!subtree.isEmpty() || element->display == DomNode::None) {
        subtree.push(std::move(element));
        return;
    }
    ZRLWPtr<Box> const box = makeChild(*innermost().box, *element, refusal);
    if (!box) return;
    if (element->display == DomNode::Block) {
        openBlock(std::move(element), box);
    } else {
        subtreeBox = box;
        subtree.push(std::move(element));
    }
}

void PageBuilder::endElement() {
    if (!refusal) return;
    if (subtree.isEmpty()) {
        closeBlock();
    } else if (ZRLWPtr<DomElement> const element = subtree.pop()) {
        addSubtree(element, std::exchange(subtreeBox, nullptr));
    }
}

void PageBuilder::addWords(std::string_view words) {
    if (!refusal) return;
    if (!subtree.isEmpty()) {
        addTexts(subtree.innermost(), words);
    } else {
        innermost().flow.addWords(words);
        paintDone();
    }
}

void PageBuilder::addWord(std::string_view word) {
    if (!refusal) return;
    if (!subtree.isEmpty()) {
        subtree.innermost().children.add(makeText(word));
    } else {
        innermost().flow.addWord(word);
        paintDone();
    }
}

XCode PageBuilder::finish(String& out) {
    if (!refusal) return refusal;
    closeBlock();
    moveRowsAbove(std::numeric_limits<unsigned>::max());
    // A text that could not be held as a whole appends nothing.
    if (!isTextComplete) return refusal;
    if (out.length() > 0) {
        out += text;
    } else {
        text.shrinkToFit();
        out = std::move(text);
    }
    return refusal;
}

void PageBuilder::openBlock(ZRLWPtr<DomElement> element, ZRLWPtr<Box> const& box) {
    closeLine();
    OpenBlock& parent = innermost();
    parent.flow.place(*asBlock(box));
    bool const isOnPage = parent.paintsOnPage;
    open.emplace_back(std::move(element), asBlock(box), parent.box->dimensions,
                      parent.painting.canvas(), parent.painting.attributes());
    innermost().paintsOnPage = isOnPage && innermost().painting.paintsDirectly();
}

void PageBuilder::closeBlock() {
    closeLine();
    innermost().flow.finish();
    innermost().painting.finish();
    ZRLWPtr<BlockBox> const box = innermost().box;
    ZRLWPtr<DomElement> const element = innermost().element;
    open.pop_back();
    if (open.empty()) return;
    innermost().flow.take(*box);
    releaseRows();
}

/// Builds, lays out and paints what stands below an inline element or a table, now that it is
/// complete; an element that is not displayed goes as it came.
void PageBuilder::addSubtree(ZRLWPtr<DomElement> const& element, ZRLWPtr<Box> const& box) {
    if (!box) return;
    refusal = box->createChildren();
    if (!refusal) return;
    if (element->display == DomNode::Inline) {
        box->heldNode = element;
        innermost().flow.addToLine(box);
        paintDone();
    } else {
        closeLine();
        Walk::run(innermost().flow.add(box, {}));
        paintDone();
    }
}

void PageBuilder::closeLine() {
    innermost().flow.closeLine();
    paintDone();
}

void PageBuilder::paintDone() {
    OpenBlock& block = innermost();
    if (block.flow.done.count == 0) return;
    Canvas& canvas = block.painting.canvas();
    for (unsigned i = 0; i < block.flow.done.count; ++i) {
        block.flow.done.data[i]->drawTo(canvas, block.painting.attributes());
    }
    block.flow.done.clear();
    releaseRows();
}

/// Without extreme edges nothing is painted above the end of what an open block holds already.
void PageBuilder::releaseRows() {
    OpenBlock const& block = innermost();
    if (!block.paintsOnPage) return;
    std::int64_t const row = std::int64_t{page.originRow()} + block.box->dimensions.content.height;
    if (row <= std::numeric_limits<std::int32_t>::max()) {
        moveRowsAbove(static_cast<unsigned>(row));
    }
}

void PageBuilder::moveRowsAbove(unsigned row) {
    isTextComplete = page.moveRowsTo(text, row) && isTextComplete;
}

}  // namespace CLI::XML

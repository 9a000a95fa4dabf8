#include "xml/PageBuilder.h"

#include <utility>

#include "base/saturate.h"
#include "xml/TablePainter.h"
#include "xml/beneath.h"
#include "xml/boxesOf.h"
#include "xml/layout/LineBreaker.h"
#include "xml/layout/boxes.h"
#include "xml/layout/children.h"

namespace CLI::XML {

PageBuilder::OpenBlock::OpenBlock(ElementStyle const& styleOfBlock, Rect const& place,
                                  std::int32_t offered, Canvas::Attributes const& attributes)
    : style(&styleOfBlock),
      content(place),
      handedDown(attributes),
      ofContent(style->look.handDown(attributes)) {
    EdgeSizes const edges = style->edges();
    content.width = saturate(std::int64_t{offered} - edges.left - edges.right);
}

PageBuilder::PageBuilder(ZRLWPtr<DomElement> const& root, unsigned width, int expectedLength,
                         bool keepsRows, CellBudget& cells)
    : budget(cells), grid(cells), mayRelease(!keepsRows) {
    // Each line of words adds a line feed: not more than this on a page of 16 columns.
    if (!text.reserve(saturate(std::int64_t{expectedLength} + expectedLength / 16))) {
        text.reserve(expectedLength);
    }
    blocks.emplace_back(blockStyles.of(root), Rect(), pageOfWidth(width).content.width,
                        Canvas::Attributes());
    blocks.back().isBare = true;
}

/// The element that what is read stands in.
DomElement const& PageBuilder::parent() const {
    if (boxes.isOpen()) return boxes.innermost();
    return items.depth() > 0 ? *items.innermost().element : *blocks.back().style->element;
}

/// Whether an element, or null for text, may stand there. Of those that may not the first is kept.
bool PageBuilder::mayAdd(DomElement const* child) {
    DomElement const& around = parent();
    bool const isHeld =
        mayHold(around.display, child != nullptr ? child->display : DomNode::Inline);
    if (!isHeld) refusal = refuse(around, child);
    return isHeld;
}

void PageBuilder::startElement(ZRLWPtr<DomElement> const& element) {
    if (!refusal) return;
    if (hidden > 0 || element->display == DomNode::None) {
        ++hidden;
        return;
    }
    if (!mayAdd(element.object)) return;
    bool const isWithin = items.depth() > 0;
    bool const isBlock = element->display == DomNode::Block;
    if (boxes.isOpen()) {
        items.addWithinBlock(boxes.beginChild(element));
    } else if (isBlock && isWithin) {
        items.addBlock(boxes.begin(element));
    } else if (isBlock) {
        openBlock(element);
    } else {
        if (!isWithin && element->display == DomNode::Table) endItems();
        items.open(styles.of(element));
    }
}

void PageBuilder::endElement() {
    if (!refusal) return;
    if (hidden > 0) {
        --hidden;
    } else if (boxes.isOpen()) {
        boxes.end();
    } else if (items.depth() == 0) {
        closeBlock();
    } else {
        items.close();
        if (items.depth() == 0 && items.areTable()) endItems();
    }
}

void PageBuilder::addText(std::string_view read, bool isWord) {
    if (!refusal || hidden > 0) return;
    if (!mayAdd(nullptr)) return;
    boxes.isOpen() ? boxes.addText(read, isWord) : items.addText(read, isWord);
}

XCode PageBuilder::finish(String& out) {
    if (!refusal) return refusal;
    endItems();
    grid.moveRowsTo(text);
    out = std::move(text);
    return refusal;
}

void PageBuilder::openBlock(ZRLWPtr<DomElement> const& element) {
    endItems();
    OpenBlock const& around = blocks.back();
    ElementStyle const& style = blockStyles.of(element);
    Dimensions box = style.box();
    around.stack.place(around.content, box);
    grid.enter(box.content.x, box.content.y);
    OpenBlock& opened =
        blocks.emplace_back(style, box.content, around.content.width, around.ofContent);
    opened.isBare = around.isBare && !style.hasBeneath;
}

void PageBuilder::closeBlock() {
    endItems();
    OpenBlock const& closed = blocks.back();
    Dimensions box = closed.style->box();
    box.content = closed.content;
    closed.stack.finish(box.content);
    leaveBox(grid, *closed.style, box, closed.handedDown);
    blockStyles.drop(*closed.style);
    blocks.pop_back();
    take(box);
}

/// Takes a child in whose frame has been left.
void PageBuilder::take(Dimensions const& box) {
    OpenBlock& block = blocks.back();
    block.stack.add(block.content, box);
    if (block.isBare) releaseRows(block.content.height);
}

/// Nothing more is painted above row `height` of the innermost frame.
void PageBuilder::releaseRows(std::int32_t height) {
    if (mayRelease) grid.moveRowsTo(text, grid.originRow() + height);
}

/// Lays out and paints what has been read since the last block.
void PageBuilder::endItems() {
    if (items.count() == 0) return;
    if (items.areWords()) {
        addWords();
        return items.clear();
    }
    bool const areTable = items.areTable();
    if (areTable ? items.holdsBlock() : !items.breaksByWidths()) {
        addBoxes();
    } else if (areTable) {
        addTable();
    } else {
        addParagraph();
    }
    items.clear();
    boxes.clear();
    styles.clear();
}

/// A paragraph of words alone: as any other one, but each line is a search for a space.
void PageBuilder::addWords() {
    OpenBlock& block = blocks.back();
    for (std::string_view rest = items.text(items[0]); !rest.empty();) {
        std::size_t const fitting = lengthOfFitting(rest, block.content.width);
        std::string_view const shown = fitting > 0 ? rest.substr(0, fitting) : firstWord(rest);
        Dimensions line;
        line.content.width = static_cast<std::int32_t>(shown.length());
        line.content.height = 1;
        block.stack.place(block.content, line);
        grid.draw(shown, line.content.x, line.content.y, block.ofContent);
        take(line);
        rest.remove_prefix(shown.length());
    }
}

void PageBuilder::addParagraph() {
    OpenBlock& block = blocks.back();
    Position const end = {items.count(), 0};
    LineBreaker breaker(items, block.content.width);
    for (Position from; from < end;) {
        if (items.holdsBlock()) Walk::run(breaker.layOutBlocks(from));
        Position const lineEnd = breaker.next(from);
        Dimensions line;
        block.stack.place(block.content, line);
        grid.enter(line.content.x, line.content.y);
        Rect const size = linePainter.paint(from, lineEnd, block.ofContent);
        grid.leave();
        line.content.width = size.width;
        line.content.height = size.height;
        take(line);
        from = lineEnd;
    }
}

void PageBuilder::addTable() {
    OpenBlock& block = blocks.back();
    ElementStyle const& style = items.style(0);
    Dimensions box = style.box();
    block.stack.place(block.content, box);
    TablePainter painter(items, box, grid);
    grid.enter(box.content.x, box.content.y);
    // Of a long table each row is let go while it is at hand.
    while (painter.paintRow(style.look.handDown(block.ofContent))) {
        if (block.isBare && !style.hasBeneath) releaseRows(box.content.height);
    }
    leaveBox(grid, style, box, block.ofContent);
    take(box);
}

void PageBuilder::addBoxes() {
    OpenBlock& block = blocks.back();
    Box& around = boxes.begin(createRootElement());
    boxes.add(items);
    boxes.end();
    // For each line of a paragraph that widths do not break, all of its rest may be laid out.
    if (!items.areTable() && !budget.mayHold(boxes.words() * boxes.words())) return;
    Dimensions containing;
    containing.content = block.content;
    around.layout(containing);
    for (ZRLWPtr<Box> const& box : around.children) {
        block.stack.place(block.content, box->dimensions);
        paintBox(grid, *box, block.ofContent);
        take(box->dimensions);
    }
}

}  // namespace CLI::XML

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

PageBuilder::OpenBlock::OpenBlock(ElementStyle const& style, Dimensions const& containing,
                                  Canvas::Attributes const& attributes)
    : box(style), handedDown(attributes), content(style.look.handDown(attributes)), stack(box) {
    EdgeSizes const edges = box.edges();
    box.content.width = saturate(std::int64_t{containing.content.width} - edges.left - edges.right);
}

PageBuilder::PageBuilder(ZRLWPtr<DomElement> const& root, unsigned width, int expectedLength,
                         bool keepsRows, CellBudget& cells)
    : budget(cells), grid(cells), mayRelease(!keepsRows) {
    // Each line of words adds a line feed: not more than this on a page of 16 columns.
    if (!text.reserve(saturate(std::int64_t{expectedLength} + expectedLength / 16))) {
        text.reserve(expectedLength);
    }
    blocks.emplace_back(ElementStyle(root), pageOfWidth(width), Canvas::Attributes());
    blocks.back().isBare = true;
}

/// The element that what is read stands in.
DomElement const& PageBuilder::parent() const {
    if (boxes.isOpen()) return boxes.innermost();
    return items.depth() > 0 ? *items.innermost().element : *blocks.back().box.element;
}

void PageBuilder::startElement(ZRLWPtr<DomElement> const& element) {
    if (!refusal) return;
    if (hidden > 0 || element->display == DomNode::None) {
        ++hidden;
        return;
    }
    refusal = checkChild(parent(), element.object);
    if (!refusal) return;
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
    refusal = checkChild(parent(), nullptr);
    if (!refusal) return;
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
    ElementStyle const& style = styles.of(element);
    OpenBlock& opened = blocks.emplace_back(style, around.box, around.content);
    around.stack.place(opened.box);
    opened.isBare = around.isBare && !style.hasBeneath;
    grid.enter(opened.box.content.x, opened.box.content.y);
}

void PageBuilder::closeBlock() {
    endItems();
    OpenBlock const& closed = blocks.back();
    closed.stack.finish();
    leaveBox(grid, closed.box, closed.box, closed.handedDown);
    Dimensions const box = closed.box.box();
    blocks.pop_back();
    take(box);
}

/// Takes a child in whose frame has been left.
void PageBuilder::take(Dimensions const& box) {
    OpenBlock& block = blocks.back();
    block.stack.add(box);
    if (block.isBare) releaseRows(block.box.content.height);
}

/// Nothing more is painted above row `height` of the innermost frame.
void PageBuilder::releaseRows(std::int32_t height) {
    if (mayRelease) grid.moveRowsTo(text, grid.originRow() + height);
}

/// Lays out and paints what has been read since the last block.
void PageBuilder::endItems() {
    if (items.count() == 0) return;
    bool const areTable = items.areTable();
    if (items.areWords()) {
        addWords();
    } else if (areTable ? items.holdsBlock() : !items.breaksByWidths()) {
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
        std::size_t const fitting = lengthOfFitting(rest, block.box.content.width);
        std::string_view const shown = fitting > 0 ? rest.substr(0, fitting) : firstWord(rest);
        Dimensions line;
        line.content.width = static_cast<std::int32_t>(shown.length());
        line.content.height = 1;
        block.stack.place(line);
        grid.draw(shown, line.content.x, line.content.y, block.content);
        take(line);
        rest.remove_prefix(shown.length());
    }
}

void PageBuilder::addParagraph() {
    OpenBlock& block = blocks.back();
    Position const end = {items.count(), 0};
    LineBreaker breaker(items, block.box.content.width);
    for (Position from; from < end;) {
        if (items.holdsBlock()) Walk::run(breaker.layOutBlocks(from));
        Position const lineEnd = breaker.next(from);
        Dimensions line;
        block.stack.place(line);
        grid.enter(line.content.x, line.content.y);
        Rect const size = linePainter.paint(from, lineEnd, block.content);
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
    block.stack.place(box);
    TablePainter painter(items, box, grid);
    grid.enter(box.content.x, box.content.y);
    // Of a long table each row is let go while it is at hand.
    while (painter.paintRow(style.look.handDown(block.content))) {
        if (block.isBare && !style.hasBeneath) releaseRows(box.content.height);
    }
    leaveBox(grid, style, box, block.content);
    take(box);
}

void PageBuilder::addBoxes() {
    OpenBlock& block = blocks.back();
    Box& around = boxes.begin(createRootElement());
    boxes.add(items);
    boxes.end();
    // For each line of a paragraph that widths do not break, all of its rest may be laid out.
    if (!items.areTable() && !budget.mayHold(boxes.words() * boxes.words())) return;
    around.layout(block.box);
    for (ZRLWPtr<Box> const& box : around.children) {
        block.stack.place(box->dimensions);
        paintBox(grid, *box, block.content);
        take(box->dimensions);
    }
}

}  // namespace CLI::XML

// Which layout a box has, and how boxes stand side by side: on a line, in an inline element, a row
// or a cell.

#include "xml/layout/layOut.h"

#include <iterator>
#include <typeinfo>

#include "xml/dom/nodes.h"
#include "xml/layout/placement.h"

namespace CLI::XML {

namespace {

/// A word takes a column a byte and one row, any other box without children nothing.
void layOutLeaf(Box& box) {
    Rect& content = box.dimensions.content;
    DomText const* const word = asText(box.node);
    content.width = word != nullptr ? word->text.length() : 0;
    content.height = content.width > 0 ? 1 : 0;
    beginLayout(box);
}

/// Takes in the words that come next, from child `i` on. Returns which child comes behind them.
unsigned addWords(Box& box, RightwardRow& row, unsigned i, Gap gap) {
    for (; i < box.children.count; ++i) {
        Box& child = *box.children.data[i];
        if (asText(child.node) == nullptr || child.children.count > 0 || isForeign(child)) break;
        layOutLeaf(child);
        row.place(box.dimensions.content, child.dimensions, gap);
        row.add(box.dimensions.content, child.dimensions);
    }
    return i;
}

/// Goes on from child `i` on, which is not a word.
Walk addChildren(Box& box, RightwardRow row, unsigned i, Gap gap, LayoutPass pass) {
    while (i < box.children.count) {
        Box& child = *box.children[i];
        row.place(box.dimensions.content, child.dimensions, gap);
        co_await layOut(child, box.dimensions, pass);
        row.add(box.dimensions.content, child.dimensions);
        addLayout(box, child);
        i = addWords(box, row, i + 1, gap);
    }
}

Walk layOutRightwards(Box& box, Gap gap, LayoutPass pass) {
    if (pass == LayoutPass::Again && box.isSettled) return {};
    layOutLeaf(box);
    if (box.children.count == 0) return {};
    RightwardRow row(box.dimensions.content);
    unsigned const next = addWords(box, row, 0, gap);
    if (next == box.children.count) return {};
    return addChildren(box, row, next, gap, pass);
}

Walk layOutRow(RowBox& box, LayoutPass pass) {
    Rect& content = box.dimensions.content;
    RightwardRow row(content);
    beginLayout(box);
    for (unsigned i = 0; i < box.children.count; ++i) {
        CellBox& cell = box[i];
        if (cell.isConstrained()) {
            // A column's position already is that of the content.
            RightwardRow::placeAt(cell.dimensions, cell.columnDimensions.content.x);
        } else {
            row.place(content, cell.dimensions, Gap::Uncovered);
        }
        std::int32_t& width = cell.dimensions.content.width;
        if (pass == LayoutPass::First || !cell.isSettled) {
            co_await layOut(cell, box.dimensions, pass);
            cell.naturalWidth = width;
        }
        width = cell.isConstrained() ? cell.columnDimensions.content.width : cell.naturalWidth;
        row.add(content, cell.dimensions);
        addLayout(box, cell);
    }
}

}  // namespace

bool isForeign(Box const& box) {
    // By `Box::Type`.
    static std::type_info const* const s_classes[] = {&typeid(BlockBox),  &typeid(LineBox),
                                                      &typeid(InlineBox), &typeid(TableBox),
                                                      &typeid(RowBox),    &typeid(CellBox)};
    return box.type >= std::size(s_classes) || typeid(box) != *s_classes[box.type];
}

Walk layOut(Box& child, Dimensions const& containing, LayoutPass pass) {
    if (isForeign(child)) {
        child.layout(containing);
        child.isSettled = false;
        return {};
    }
    switch (child.type) {
        case Box::Block:
            return layOutBlock(static_cast<BlockBox&>(child), containing, pass);
        case Box::Table:
            return layOutTable(static_cast<TableBox&>(child), pass);
        case Box::Row:
            return layOutRow(static_cast<RowBox&>(child), pass);
        case Box::Line:
            return layOutRightwards(child, Gap::Larger, pass);
        default:
            return layOutRightwards(child, Gap::Uncovered, pass);
    }
}

void BlockBox::layout(Dimensions const& containing) {
    Walk::run(layOutBlock(*this, containing, LayoutPass::First));
}
void TableBox::layout(Dimensions const&) { Walk::run(layOutTable(*this, LayoutPass::First)); }
void RowBox::layout(Dimensions const&) { Walk::run(layOutRow(*this, LayoutPass::First)); }
void LineBox::layout(Dimensions const&) {
    Walk::run(layOutRightwards(*this, Gap::Larger, LayoutPass::First));
}
void InlineBox::layout(Dimensions const&) {
    Walk::run(layOutRightwards(*this, Gap::Uncovered, LayoutPass::First));
}

}  // namespace CLI::XML

#include "xml/TablePainter.h"

#include "xml/beneath.h"

namespace CLI::XML {

namespace {

/// Calls `visit` with each element within the one that opens at `around`.
template <class Visit>
void visitChildren(Items const& items, std::uint32_t around, Visit const& visit) {
    for (std::uint32_t i = around + 1; i < items[around].other; i = items[i].other + 1) visit(i);
}

}  // namespace

TablePainter::TablePainter(Items const& parts, Dimensions& box, Grid& page)
    : items(parts), table(box), grid(page), painter(parts, Gap::Uncovered, page) {
    visitChildren(items, 0, [&](std::uint32_t row) {
        Rect content;
        RightwardRow cells;
        unsigned index = 0;
        visitChildren(items, row, [&](std::uint32_t opened) {
            Dimensions cell = items.style(opened).box();
            cells.place(content, cell, Gap::Uncovered);
            std::int64_t width = 0;
            for (std::uint32_t i = opened; ++i < items[opened].other;) width += items.width(i);
            cell.content.width = saturate(width);
            cells.add(content, cell);
            raiseColumn(columns, index++, cell);
        });
    });
}

bool TablePainter::paintRow(Canvas::Attributes const& attributes) {
    if (next == items[0].other) {
        stack.finish(table.content);
        return false;
    }
    ElementStyle const& style = items.style(next);
    Dimensions box = style.box();
    stack.place(table.content, box);
    grid.enter(box.content.x, box.content.y);
    paintCells(next, box, style.look.handDown(attributes));
    leaveBox(grid, style, box, attributes);
    stack.add(table.content, box);
    next = items[next].other + 1;
    return true;
}

void TablePainter::paintCells(std::uint32_t row, Dimensions& box,
                              Canvas::Attributes const& attributes) {
    RightwardRow cells;
    unsigned index = 0;
    visitChildren(items, row, [&](std::uint32_t opened) {
        Dimensions cell = items.style(opened).box();
        Dimensions const& column = columns[index++];
        RightwardRow::placeAt(cell, column.content.x);
        cell.content.width = column.content.width;
        if (items[opened].other > opened + 1) paintCell(opened, cell, attributes);
        cells.add(box.content, cell);
    });
}

void TablePainter::paintCell(std::uint32_t opened, Dimensions& box, Canvas::Attributes attributes) {
    ElementStyle const& style = items.style(opened);
    attributes = style.flagged(attributes);
    Item const& first = items[opened + 1];
    bool const isWords = items[opened].other == opened + 2 && first.kind == Item::Words;
    if (isWords && !style.hasBeneath) {
        // A frame would show the same, since no column begins left of the table.
        box.content.height = 1;
        Canvas::Attributes const ofContent = style.look.handDown(attributes);
        return grid.draw(items.text(first), box.content.x, box.content.y, ofContent);
    }
    grid.enter(box.content.x, box.content.y);
    Rect const size =
        painter.paint({opened + 1, 0}, {items[opened].other, 0}, style.look.handDown(attributes));
    box.content.height = size.height;
    leaveBox(grid, style, box, attributes);
}

}  // namespace CLI::XML

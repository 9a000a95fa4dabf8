// How the rows of a table are stacked, their cells in columns.

#include <algorithm>

#include "xml/layout/layOut.h"
#include "xml/layout/placement.h"

namespace CLI::XML {

namespace {

/// Calls `visit` with each cell and its index in its row, row by row.
template <class Visit>
void visitCells(TableBox& table, Visit const& visit) {
    for (unsigned i = 0; i < table.children.count; ++i) {
        RowBox& row = table[i];
        for (unsigned j = 0; j < row.children.count; ++j) visit(row[j], j);
    }
}

}  // namespace

bool raiseColumn(ZRVector<Dimensions>& columns, unsigned index, Dimensions const& cell) {
    bool isRaised = index >= columns.count;
    Dimensions& column = columns[index];
    auto const raise = [&isRaised](std::int32_t& maximum, std::int32_t value) {
        isRaised = isRaised || value > maximum;
        maximum = std::max(maximum, value);
    };
    auto const raiseSides = [&raise](EdgeSizes& maxima, EdgeSizes const& edges) {
        raise(maxima.left, edges.left);
        raise(maxima.right, edges.right);
    };
    raiseSides(column.margin, cell.margin);
    raiseSides(column.border, cell.border);
    raiseSides(column.padding, cell.padding);
    raise(column.content.x, cell.content.x);
    raise(column.content.width, cell.content.width);
    if (index > 0) {
        Dimensions const& before = columns[index - 1];
        raise(column.content.x, saturate(std::int64_t{before.content.x} + before.content.width +
                                         before.edges().right + column.edges().left));
    }
    return isRaised;
}

Walk layOutTable(TableBox& table, LayoutPass pass) {
    if (pass == LayoutPass::Again && table.isSettled) co_return;
    beginLayout(table);
    Dimensions unconstrained;
    unconstrained.content.width = CellBox::s_unconstrainedWidth;
    visitCells(table, [&](CellBox& cell, unsigned) { cell.columnDimensions = unconstrained; });
    for (ZRLWPtr<Box> const& row : table.children) {
        co_await layOut(*row, table.dimensions, pass);
        addLayout(table, *row);
    }
    // A column is pushed only by rows that have a cell in it, so a later row that widens the column
    // before it may leave it where it is. The records outlive a layout: only one that measured what
    // the next one would, and raised nothing, leaves all as the next one would leave it.
    visitCells(table, [&](CellBox const& cell, unsigned column) {
        if (raiseColumn(table.columns, column, cell.dimensions)) table.isSettled = false;
    });
    visitCells(table, [&](CellBox& cell, unsigned column) {
        cell.columnDimensions = table.columns[column];
    });
    Rect& content = table.dimensions.content;
    content.height = 0;
    DownwardStack stack;
    for (ZRLWPtr<Box> const& row : table.children) {
        stack.place(content, row->dimensions);
        co_await layOut(*row, table.dimensions, LayoutPass::Again);
        stack.add(content, row->dimensions);
    }
    stack.finish(content);
}

}  // namespace CLI::XML

#include "xml/layout/columns.h"
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

/// Takes what the columns of an earlier layout imposed off the cells.
void releaseCells(TableBox& table) {
    Dimensions unconstrained;
    unconstrained.content.width = CellBox::s_unconstrainedWidth;
    visitCells(table, [&](CellBox& cell, unsigned) { cell.columnDimensions = unconstrained; });
}

/// Whether any record was added or raised. A column is pushed only by rows that have a cell in it,
/// so a later row that widens the column before it may leave it where it is.
bool raiseColumns(TableBox& table) {
    bool areRaised = false;
    visitCells(table, [&](CellBox const& cell, unsigned column) {
        areRaised = raiseColumn(table.columns, column, cell.dimensions) || areRaised;
    });
    return areRaised;
}

}  // namespace

Walk layOutTable(TableBox& table, LayoutPass pass) {
    if (pass == LayoutPass::Again && table.isSettled) co_return;
    table.dimensions.content.height = 0;
    releaseCells(table);
    bool areCellsSettled = true;
    table.mayShrink = false;
    for (unsigned i = 0; i < table.children.count; ++i) {
        RowBox& row = table[i];
        row.dimensions.content.x = row.dimensions.edges().left;
        row.dimensions.content.y = 0;
        co_await layOut(row, table.dimensions, pass);
        areCellsSettled = areCellsSettled && row.isSettled;
        table.mayShrink = table.mayShrink || mayTakeOff(row);
    }
    bool const areColumnsSettled = !raiseColumns(table);
    visitCells(table, [&](CellBox& cell, unsigned column) {
        cell.columnDimensions = table.columns[column];
    });
    DownwardStack stack(table.dimensions);
    for (unsigned i = 0; i < table.children.count; ++i) {
        RowBox& row = table[i];
        stack.place(row.dimensions);
        co_await layOut(row, table.dimensions, LayoutPass::Again);
        stack.add(row.dimensions);
    }
    stack.finish();
    // The records outlive a layout: only one that measured what the next one would, and raised
    // nothing, leaves all as the next one would leave it.
    table.isSettled = areCellsSettled && areColumnsSettled;
}

}  // namespace CLI::XML

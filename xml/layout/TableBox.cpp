#include "xml/layout/TableBox.h"

#include "xml/layout/placement.h"

namespace CLI::XML {

namespace {

void raise(std::int32_t& maximum, std::int32_t value) { maximum = std::max(maximum, value); }

void raiseSides(EdgeSizes& maxima, EdgeSizes const& edges) {
    raise(maxima.left, edges.left);
    raise(maxima.right, edges.right);
}

}  // namespace

Walk TableBox::layOut(Dimensions const& containing, LayoutPass pass) {
    if (isLaidOutByItsOwn(containing, pass)) co_return;
    if (pass.again && isSettled) co_return;
    dimensions.content.height = 0;
    releaseCells();
    bool areCellsSettled = true;
    for (unsigned i = 0; i < children.count; ++i) {
        RowBox& row = (*this)[i];
        row.dimensions.content.x = row.dimensions.edges().left;
        row.dimensions.content.y = 0;
        co_await row.layOut(dimensions, pass);
        areCellsSettled = areCellsSettled && row.isSettled;
    }
    bool const areColumnsSettled = !raiseColumns();
    imposeColumns();
    DownwardStack stack(dimensions);
    for (unsigned i = 0; i < children.count; ++i) {
        RowBox& row = (*this)[i];
        stack.place(row.dimensions);
        co_await row.layOut(dimensions, {.again = true});
        stack.add(row.dimensions);
    }
    stack.finish();
    // The records outlive a layout: only one that measured what the next one would, and raised
    // nothing, leaves all as the next one would leave it.
    isSettled = areCellsSettled && areColumnsSettled;
}

void TableBox::releaseCells() {
    Dimensions unconstrained;
    unconstrained.content.width = CellBox::s_unconstrainedWidth;
    for (unsigned i = 0; i < children.count; ++i) {
        RowBox& row = (*this)[i];
        for (unsigned j = 0; j < row.children.count; ++j) row[j].columnDimensions = unconstrained;
    }
}

bool TableBox::raiseColumns() {
    // Row by row: a column is pushed only by rows that have a cell in it, so a later row that
    // widens the column before it may leave it where it is.
    bool areRaised = false;
    for (unsigned i = 0; i < children.count; ++i) {
        RowBox const& row = (*this)[i];
        for (unsigned j = 0; j < row.children.count; ++j) {
            areRaised = raiseColumn(j, row[j]) || areRaised;
        }
    }
    return areRaised;
}

bool TableBox::raiseColumn(unsigned index, CellBox const& cell) {
    bool const isNew = index >= columns.count;
    Dimensions& column = columns[index];
    Dimensions const former = column;
    Dimensions const& d = cell.dimensions;
    raiseSides(column.margin, d.margin);
    raiseSides(column.border, d.border);
    raiseSides(column.padding, d.padding);
    raise(column.content.x, d.content.x);
    raise(column.content.width, d.content.width);
    if (index > 0) {
        Dimensions const& before = columns[index - 1];
        raise(column.content.x, saturate(std::int64_t{before.content.x} + before.content.width +
                                         before.edges().right + column.edges().left));
    }
    return isNew || !(column == former);
}

void TableBox::imposeColumns() {
    for (unsigned i = 0; i < children.count; ++i) {
        RowBox& row = (*this)[i];
        for (unsigned j = 0; j < row.children.count; ++j) row[j].columnDimensions = columns[j];
    }
}

}  // namespace CLI::XML

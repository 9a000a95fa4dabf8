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

void TableBox::layout(Dimensions const&) {
    dimensions.content.height = 0;
    measureRows();
    raiseColumns();
    imposeColumns();
    stackRows();
}

void TableBox::measureRows() {
    Dimensions unconstrained;
    unconstrained.content.width = CellBox::s_unconstrainedWidth;
    for (unsigned i = 0; i < children.count; ++i) {
        RowBox& row = (*this)[i];
        for (unsigned j = 0; j < row.children.count; ++j) row[j].columnDimensions = unconstrained;
    }
    for (unsigned i = 0; i < children.count; ++i) {
        RowBox& row = (*this)[i];
        row.dimensions.content.x = row.dimensions.edges().left;
        row.dimensions.content.y = 0;
        row.layout(dimensions);
    }
}

void TableBox::raiseColumns() {
    // Row by row: a column is pushed only by rows that have a cell in it, so a later row that
    // widens the column before it may leave it where it is.
    for (unsigned i = 0; i < children.count; ++i) {
        RowBox const& row = (*this)[i];
        for (unsigned j = 0; j < row.children.count; ++j) raiseColumn(j, row[j]);
    }
}

void TableBox::raiseColumn(unsigned index, CellBox const& cell) {
    Dimensions& column = columns[index];
    Dimensions const& d = cell.dimensions;
    raiseSides(column.margin, d.margin);
    raiseSides(column.border, d.border);
    raiseSides(column.padding, d.padding);
    raise(column.content.x, d.content.x);
    raise(column.content.width, d.content.width);
    if (index == 0) return;
    Dimensions const& before = columns[index - 1];
    raise(column.content.x, saturate(std::int64_t{before.content.x} + before.content.width +
                                     before.edges().right + column.edges().left));
}

void TableBox::imposeColumns() {
    for (unsigned i = 0; i < children.count; ++i) {
        RowBox& row = (*this)[i];
        for (unsigned j = 0; j < row.children.count; ++j) {
            row[j].columnDimensions = columns[j];
        }
    }
}

void TableBox::stackRows() {
    DownwardStack stack(dimensions);
    for (unsigned i = 0; i < children.count; ++i) {
        RowBox& row = (*this)[i];
        stack.place(row.dimensions);
        row.layout(dimensions);
        stack.add(row.dimensions);
    }
    stack.finish();
}

}  // namespace CLI::XML

#pragma once

#include <vector>

#include "web/flow/PageBudget.h"
#include "web/flow/Row.h"
#include "web/flow/TableFrame.h"
#include "web/flow/TableGrid.h"

namespace galley::web {

/// Where the columns of a table are, in cells from the left of its border box.
struct ColumnPlaces {
    /// Of the table's border box.
    int width = 0;
    /// Of each column, and behind the last line.
    std::vector<int> left;
    /// Of each column.
    std::vector<int> right;
};

/// Of a table that is that wide, with columns of those widths; per cent count of `container`.
ColumnPlaces placeColumns(TableFrame const& frame, int width, std::vector<int> const& columns,
                          int container);

/// A cell that has been laid out. Rows of text are counted from the top of its band.
struct LaidCell {
    TableCell* cell;
    int firstRow;
    int endRow;
    std::vector<Row> content;
    int left = 0;
    int right = 0;
    int top = 0;
    int height = 0;
    /// Rows of the cell above the content; and those that it takes in all.
    ///@{
    int above = 0;
    int needed = 0;
    ///@}
};

/// Rows of a table from one that no cell reaches into to the next such one, laid out together: with
/// the content of their cells, the places of these, and the heights of rows.
class TableBand {
public:
    /// Takes the content of cells from the grid. The cells part words where `wrapping` says so.
    TableBand(TableGrid& banded, TableFrame const& tableFrame, ColumnPlaces const& columnPlaces,
              int firstRow, Wrapping wrapping, PageBudget& cells);

    int firstRow() const { return first; }
    int endRow() const { return first + static_cast<int>(heights.size()); }
    int height(int row) const { return heights[index(row)]; }
    int top(int row) const { return tops[index(row)]; }
    /// In the order of their rows and columns.
    std::vector<LaidCell>& cells() { return laid; }

private:
    std::size_t index(int row) const { return static_cast<std::size_t>(row - first); }
    int layOutRow(int row, Wrapping wrapping);
    void layOut(TableCell& cell, int row, Wrapping wrapping);
    void alignBaselines(std::size_t firstOfRow);
    void placeRows();
    void placeContent(LaidCell& cell) const;

    TableGrid& grid;
    TableFrame const& frame;
    ColumnPlaces const& places;
    int first;
    PageBudget& budget;
    std::vector<LaidCell> laid;
    std::vector<int> heights;
    std::vector<int> tops;
};

}  // namespace galley::web

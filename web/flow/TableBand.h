#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "web/flow/Flow.h"
#include "web/flow/PageBudget.h"
#include "web/flow/RowBlock.h"
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
    TableCell* cell = nullptr;
    int firstRow = 0;
    int endRow = 0;
    /// Rows of the band's content, or if the cell is of plain text, of its lines.
    ///@{
    std::size_t firstLine = 0;
    std::size_t endLine = 0;
    bool isPlain = false;
    ///@}
    int left = 0;
    int right = 0;
    int top = 0;
    int height = 0;
    /// Where its content begins, and how wide that can be.
    int contentLeft = 0;
    int contentWidth = 0;
    /// Lines of its content may begin left of the others, over its padding and border.
    bool isOutdented = false;
    /// Nothing of it shows but its content.
    bool isBare = false;
    /// Rows of the cell above the content; and those that it takes in all.
    ///@{
    int above = 0;
    int needed = 0;
    ///@}
    /// The row of the content that lies on the baseline, if it is aligned so.
    int baseline = 0;
    bool isOnBaseline = false;

    int contentHeight() const { return static_cast<int>(endLine - firstLine); }
};

/// Rows of a table from one that no cell reaches into to the next such one, laid out together: with
/// the content of their cells, the places of these, and the heights of rows.
class TableBand {
public:
    /// Of no rows. All of these outlive it.
    TableBand(TableGrid& banded, TableFrame const& tableFrame, ColumnPlaces const& columnPlaces,
              PageBudget& cells);

    TableBand(TableBand const&) = delete;
    TableBand& operator=(TableBand const&) = delete;

    /// Becomes the band from a row on. Takes the content of cells from the grid; they part words
    /// where `wrapping` says so.
    void layOut(int firstRow, Wrapping wrapping);

    int firstRow() const { return first; }
    int endRow() const { return first + static_cast<int>(heights.size()); }
    /// The row of text that its first row has its baseline in, counted from the top.
    int baseline() const;
    int height(int row) const { return heights[index(row)]; }
    int top(int row) const { return tops[index(row)]; }
    /// In the order of their rows and columns.
    std::vector<LaidCell>& cells() { return laid; }
    /// A row of a cell's content, which has that many. As long as the band is the same.
    RowView rowOf(LaidCell const& cell, int line) const {
        std::size_t const index = cell.firstLine + static_cast<std::size_t>(line);
        return cell.isPlain ? lines[index].view() : content[index];
    }
    /// Columns that such a row stands to the right of the others.
    int indentOf(LaidCell const& cell, int line) const {
        return cell.isPlain ? lines[cell.firstLine + static_cast<std::size_t>(line)].indent : 0;
    }

private:
    /// Of a plain text, which stays in its cell.
    struct Line {
        std::string_view text;
        RowSpan looks;
        int cells;
        int indent;

        RowView view() const { return {text, std::span(&looks, 1), cells}; }
    };

    std::size_t index(int row) const { return static_cast<std::size_t>(row - first); }
    int layOutRow(int row, Wrapping wrapping);
    void layOutCell(TableCell& cell, int row, Wrapping wrapping);
    void layOutText(LaidCell& placed, PlainText const& text, Wrapping wrapping);
    void layOutContent(LaidCell& placed, Wrapping wrapping);
    void alignBaselines(std::size_t firstOfRow);
    void placeRows();
    void placeContent(LaidCell& cell) const;

    TableGrid& grid;
    TableFrame const& frame;
    ColumnPlaces const& places;
    PageBudget& budget;
    int first = 0;
    /// Rows of all cells that are not of plain text, and what makes them.
    ///@{
    RowBlock content;
    Flow flow;
    ///@}
    /// Of the others.
    std::vector<Line> lines;
    std::vector<LaidCell> laid;
    std::vector<LaidCell*> byEnd;
    Paragraph scratch;
    std::vector<int> heights;
    std::vector<int> tops;
};

}  // namespace galley::web

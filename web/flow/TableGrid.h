#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <vector>

#include "web/flow/Content.h"
#include "web/flow/Look.h"
#include "web/flow/lengths.h"

namespace galley::web {

/// A cell of a table: the slots from its column on, in its row and those below that it spans.
struct TableCell {
    TableCell(Style const& style, Colour background, int firstColumn, int columns, int rows)
        : content(style, background),
          column(firstColumn),
          rowSpan(rows),
          columnSpan(static_cast<std::uint16_t>(columns)),
          documentSpan(columnSpan) {}

    Content content;
    int column;
    int rowSpan;
    std::uint16_t columnSpan;
    /// Columns of the document.
    std::uint16_t documentSpan;

    Style const& style() const { return content.style(); }
    int endColumn() const { return column + columnSpan; }
    bool isWide() const { return documentSpan > 1; }
    bool isVisible() const { return style().visibility == Visibility::visible; }
};

/// Styles are null where a part of a table stands without its parent.
struct TableRow {
    Style const* style;
    Style const* group;
    /// Of all cells: those that begin in it.
    std::size_t firstCell;
    std::size_t endCell;
    bool beginsGroup;
    bool endsGroup;
};

/// A column in which a cell begins or which has a width, with those behind it that are no such.
struct TableColumn {
    Style const* style = nullptr;
    Style const* group = nullptr;
    bool beginsGroup = false;
    bool endsGroup = false;
    /// Of the document.
    int count = 1;

    /// That of its own element, or else of its group.
    Length width() const {
        if (style != nullptr && !isAutomatic(style->width)) return style->width;
        return group == nullptr ? Length::automatic() : group->width;
    }
};

/// The grid of slots that the rows and columns of a table make, and the cells in it.
///
/// 1. Cells are in the order of the document; those of a row are neighbours.
/// 2. Until it is complete, columns are those of the document and rows are in its order.
/// 3. Then a cell spans no row of another group, and in each column a cell begins, or an element of
///    columns that has a width, if columns are joined.
class TableGrid {
public:
    /// Of a table with that background.
    explicit TableGrid(Colour background) : ground(background) {}

    void addColumns(Style const* style, Style const* group, bool beginsGroup, int span);
    /// These end what is open of their kind.
    ///@{
    void beginGroup(Style const* style, Display kind);
    void endGroup();
    void beginRow(Style const* style);
    void endRow();
    ///@}
    /// In the row that is open. With 0 it spans all rows of its group that follow.
    TableCell& addCell(Style const& style, int columnSpan, int rowSpan);
    bool hasOpenGroup() const { return isGroupOpen; }
    bool hasOpenRow() const { return isRowOpen; }

    struct Rules {
        /// In which no cell begins and into which none reaches.
        bool dropsEmptyRows = false;
        /// Columns in which no cell begins go with the one before them, unless their element has a
        /// width.
        bool joinsColumns = true;
    };

    /// Ends all that is open, and brings groups in their order: the head first, the foot last.
    void complete(Rules rules);

    std::deque<TableCell>& cells() { return allCells; }
    std::deque<TableCell> const& cells() const { return allCells; }
    std::vector<TableRow> const& rows() const { return allRows; }
    std::vector<TableColumn> const& columns() const { return allColumns; }
    Colour background() const { return ground; }
    /// That of a row where there is no cell.
    Colour background(TableRow const& row) const;

private:
    struct Group {
        Style const* style;
        Display kind;
        std::size_t firstRow;
        std::size_t endRow;
    };
    /// Columns of an element.
    struct ColumnRange {
        TableColumn column;
        int begin = 0;
        int end = 0;
    };
    /// Columns that a cell takes in rows of its group, up to one.
    struct Occupied {
        int begin;
        int end;
        std::size_t endRow;
    };

    ColumnRange const* rangeAt(int column) const;
    void findFreeColumn();
    void appendGroup(Group const& group, std::vector<TableRow>& ordered);
    void dropEmptyRows();
    void orderGroups();
    void moveCells(std::vector<int> const& starts);
    void joinColumns();

    Colour ground;
    std::deque<TableCell> allCells;
    std::vector<TableRow> allRows;
    std::vector<TableColumn> allColumns;
    std::vector<Group> groups;
    std::vector<ColumnRange> ranges;
    /// Whether a column must be told from the one before it.
    std::vector<bool> isStart;
    /// By their first columns: those of rows above, and those of the open row.
    ///@{
    std::vector<Occupied> occupied;
    std::vector<Occupied> added;
    ///@}
    std::size_t nextOccupied = 0;
    int nextColumn = 0;
    bool isGroupOpen = false;
    bool isRowOpen = false;
};

}  // namespace galley::web

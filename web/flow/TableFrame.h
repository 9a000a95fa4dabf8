#pragma once

#include <algorithm>
#include <optional>
#include <vector>

#include "web/flow/CollapsedBorders.h"
#include "web/flow/TableGrid.h"
#include "web/flow/lengths.h"

namespace galley::web {

/// What is around the cells of a table and between them, in cells: its edges, and the lines of its
/// grid, which are spacing, or borders that collapse.
class TableFrame {
public:
    /// Of a grid that is complete. All outlive the frame.
    TableFrame(TableGrid const& framed, Style const& tableStyle) : grid(framed), table(tableStyle) {
        if (table.collapsesBorders) collapsed.emplace(grid, table);
    }

    /// Null where each cell has its own.
    CollapsedBorders* borders() { return collapsed ? &*collapsed : nullptr; }
    bool collapses() const { return collapsed.has_value(); }
    bool hasBorder(Border const& side) const { return !collapsed && side.isThere(); }

    int columnGap(int line) const {
        if (collapsed) return collapsed->hasVertical(line) ? 1 : 0;
        return grid.columns().empty() ? 0 : table.borderSpacing.across;
    }
    int rowGap(int line) const {
        if (collapsed) return collapsed->hasHorizontal(line) ? 1 : 0;
        return grid.columns().empty() ? 0 : table.borderSpacing.down;
    }
    /// A line of borders that collapse counts with the column before it.
    int lineBehind(int column) const { return collapsed ? columnGap(column + 1) : 0; }
    /// Columns of a cell that are not its content, as far as they count with its columns.
    int columnEdges(TableCell const& cell) const {
        return cellEdges(*cell.style, 0) + lineBehind(cell.endColumn() - 1);
    }
    /// Of the gaps that a cell spans those that do not count with its columns.
    int gapsWithin(TableCell const& cell) const {
        int sum = 0;
        for (int line = cell.column + 1; line < cell.endColumn(); ++line) sum += columnGap(line);
        return collapsed ? 0 : sum;
    }
    /// Of all that does not count with columns, in a container of so many. Without columns there
    /// are two lines.
    int edges(int container) const {
        if (collapsed) return columnGap(0);
        int const lines = std::max(2, static_cast<int>(grid.columns().size()) + 1);
        return lines * table.borderSpacing.across + innerEdges(table, container);
    }
    int leftEdge(int container) const {
        if (collapsed) return 0;
        return (table.border.left.isThere() ? 1 : 0) + across(table.padding.left, container);
    }
    /// Columns of a cell's border and padding, in a table that is so wide.
    int cellEdges(Style const& cell, int width) const {
        if (!collapsed) return innerEdges(cell, width);
        return across(cell.padding.left, width) + across(cell.padding.right, width);
    }

private:
    TableGrid const& grid;
    Style const& table;
    std::optional<CollapsedBorders> collapsed;
};

}  // namespace galley::web

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
        hasColumns =
            !grid.cells().empty() ||
            std::any_of(grid.columns().begin(), grid.columns().end(),
                        [](TableColumn const& column) { return !isAutomatic(column.width()); });
    }

    /// Null where each cell has its own.
    CollapsedBorders* borders() { return collapsed ? &*collapsed : nullptr; }
    bool collapses() const { return collapsed.has_value(); }
    bool hasBorder(Border const& side) const { return !collapsed && side.isThere(); }

    int columnGap(int line) const {
        if (collapsed) return collapsed->hasVertical(line) ? 1 : 0;
        return hasColumns ? table.borderSpacing.across : 0;
    }
    int rowGap(int line) const {
        if (collapsed) return collapsed->hasHorizontal(line) ? 1 : 0;
        return hasColumns && !grid.rows().empty() ? table.borderSpacing.down : 0;
    }
    /// Widths of columns are counted in parts of a cell, so many: a line of borders that collapse
    /// counts with the columns on both sides, half of it with each.
    int partsOfCell() const { return collapsed ? 2 : 1; }
    int linesAround(int begin, int end) const {
        return collapsed ? columnGap(begin) + columnGap(end) : 0;
    }
    /// Parts of a cell that are not its content, as far as they count with its columns.
    int columnEdges(TableCell const& cell) const {
        int const lines = linesAround(cell.column, cell.endColumn());
        return partsOfCell() * cellEdges(cell.style(), 0) + lines;
    }
    /// Of the gaps that a cell spans those that do not count with columns.
    int gapsWithin(TableCell const& cell) const {
        int sum = 0;
        for (int line = cell.column + 1; line < cell.endColumn(); ++line) sum += columnGap(line);
        return collapsed ? 0 : sum;
    }
    /// Cells of a table whose columns have so many parts, in a container of so many cells; and the
    /// other way round.
    ///@{
    int widthFor(int parts, int container) const {
        return (parts + edges(container) + partsOfCell() - 1) / partsOfCell();
    }
    int partsFor(int width, int container) const {
        return width * partsOfCell() - edges(container);
    }
    ///@}
    /// Cells of columns that have so many parts, without lines around them: halves that come to
    /// whole cells go to the leftmost ones.
    std::vector<int> toCells(std::vector<int> parts) const {
        if (!collapsed) return parts;
        int halves = 0;
        for (int i = 0; int& part : parts) {
            part = std::max(0, part - linesAround(i, i + 1));
            halves += part % 2;
            ++i;
        }
        for (int& part : parts) {
            bool const isRoundedUp = part % 2 > 0 && (halves -= 2) >= 0;
            part = part / 2 + (isRoundedUp ? 1 : 0);
        }
        return parts;
    }
    /// Columns of the table's own border and padding, or of the outer halves of its lines.
    int ownEdges(int container) const {
        if (collapsed) return (linesAround(0, static_cast<int>(grid.columns().size())) + 1) / 2;
        return innerEdges(table, container);
    }
    int leftEdge(int container) const {
        if (collapsed) return 0;
        return (table.border.left.isThere() ? 1 : 0) + across(table.padding.left, container);
    }
    /// Columns of a cell's border and padding, in a table that is so wide: what is left of a column
    /// counts with them.
    int cellEdges(Style const& cell, int width) const {
        std::int64_t const padding =
            exactlyAcross(cell.padding.left, width) + exactlyAcross(cell.padding.right, width);
        return static_cast<int>((padding + s_parts - 1) / s_parts) +
               (hasBorder(cell.border.left) ? 1 : 0) + (hasBorder(cell.border.right) ? 1 : 0);
    }

private:
    /// Parts of a table that do not count with columns.
    int edges(int container) const {
        auto const count = static_cast<int>(grid.columns().size());
        if (collapsed) return linesAround(0, count);
        return (count + 1) * columnGap(0) + innerEdges(table, container);
    }

    TableGrid const& grid;
    Style const& table;
    std::optional<CollapsedBorders> collapsed;
    /// That are as wide as cells, or columns, ask for.
    bool hasColumns = false;
};

}  // namespace galley::web

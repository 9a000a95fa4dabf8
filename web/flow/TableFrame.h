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
    bool hasBorders(Style const& cell) const {
        Edges<Border> const& border = cell.border;
        return hasBorder(border.left) || hasBorder(border.right) || hasBorder(border.top) ||
               hasBorder(border.bottom);
    }

    int columnGap(int line) const {
        if (collapsed) return collapsed->hasVertical(line) ? 1 : 0;
        return hasColumns ? table.borderSpacing.across : 0;
    }
    int rowGap(int line) const {
        if (collapsed) return collapsed->hasHorizontal(line) ? 1 : 0;
        return hasColumns && !grid.rows().empty() ? table.borderSpacing.down : 0;
    }
    /// Lines of borders that collapse at both ends of columns: half of each counts with these.
    int linesAround(int begin, int end) const {
        return collapsed ? columnGap(begin) + columnGap(end) : 0;
    }
    /// Parts of cells that are not its content, as far as they count with its columns.
    std::int64_t columnEdges(TableCell const& cell) const {
        int const lines = linesAround(cell.column, cell.endColumn());
        return s_parts * cellEdges(cell.style(), 0) + s_parts / 2 * lines;
    }
    /// Parts of cells of the gaps that a cell spans which do not count with columns.
    std::int64_t gapsWithin(TableCell const& cell) const {
        if (collapsed) return 0;
        return s_parts * table.borderSpacing.across * (cell.columnSpan - 1);
    }
    /// Cells of a table whose columns have so many parts of cells, in a container of so many cells;
    /// and the other way round.
    ///@{
    int widthFor(std::int64_t parts, int container) const {
        std::int64_t const all = parts + edges(container) + s_parts - s_missing;
        return static_cast<int>(std::min(all / s_parts, s_widest));
    }
    std::int64_t partsFor(int width, int container) const {
        return width * s_parts - edges(container);
    }
    ///@}
    /// Cells of columns that have so many parts of cells, without lines around them: parts that
    /// come to whole cells go to the leftmost ones.
    std::vector<int> toCells(std::vector<std::int64_t> const& parts) const {
        auto const ownOf = [&](std::size_t i) {
            auto const column = static_cast<int>(i);
            std::int64_t const lines = s_parts / 2 * linesAround(column, column + 1);
            return std::max<std::int64_t>(0, parts[i] - lines);
        };
        std::vector<int> cells;
        std::int64_t spare = s_missing;
        for (std::size_t i = 0; i < parts.size(); ++i) {
            cells.push_back(static_cast<int>((ownOf(i) + s_missing) / s_parts));
            spare += ownOf(i) - s_parts * cells.back();
        }
        for (std::size_t i = 0; i < parts.size() && spare >= s_parts; ++i) {
            if (ownOf(i) < s_parts * cells[i] + s_missing) continue;
            ++cells[i];
            spare -= s_parts;
        }
        return cells;
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
    /// Of a cell: what is missed of rounding.
    static constexpr std::int64_t s_missing = s_parts / 100;
    /// In cells.
    static constexpr std::int64_t s_widest = 1'000'000'000;

    /// Parts of cells of a table that do not count with columns.
    std::int64_t edges(int container) const {
        auto const count = static_cast<int>(grid.columns().size());
        if (collapsed) return s_parts / 2 * linesAround(0, count);
        return s_parts * ((count + 1) * columnGap(0) + innerEdges(table, container));
    }

    TableGrid const& grid;
    Style const& table;
    std::optional<CollapsedBorders> collapsed;
    /// That are as wide as cells, or columns, ask for.
    bool hasColumns = false;
};

}  // namespace galley::web

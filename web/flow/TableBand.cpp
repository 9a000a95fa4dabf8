#include "web/flow/TableBand.h"

#include <algorithm>

#include "web/flow/lengths.h"

namespace galley::web {

ColumnPlaces placeColumns(TableFrame const& frame, int width, std::vector<int> const& columns,
                          int container) {
    ColumnPlaces places;
    places.width = width;
    int column = frame.leftEdge(container) + frame.columnGap(0);
    int line = 0;
    for (int const cells : columns) {
        places.left.push_back(column);
        places.right.push_back(column + cells);
        column += cells + frame.columnGap(++line);
    }
    places.left.push_back(column);
    return places;
}

TableBand::TableBand(TableGrid& banded, TableFrame const& tableFrame,
                     ColumnPlaces const& columnPlaces, PageBudget& cells)
    : grid(banded),
      frame(tableFrame),
      places(columnPlaces),
      budget(cells),
      flow(content, cells, 0, Colour::transparent(), Flow::OuterMargins::shown) {}

void TableBand::layOut(int firstRow, Wrapping wrapping) {
    first = firstRow;
    laid.clear();
    content.clear();
    lines.clear();
    int end = first + 1;
    for (int row = first; row < end; ++row) end = std::max(end, layOutRow(row, wrapping));
    heights.assign(static_cast<std::size_t>(end - first), 0);
    tops.assign(heights.size(), 0);
    placeRows();
    for (LaidCell& cell : laid) placeContent(cell);
}

/// Returns the first row that no cell reaches into.
int TableBand::layOutRow(int row, Wrapping wrapping) {
    TableRow const& tableRow = grid.rows()[static_cast<std::size_t>(row)];
    std::size_t const firstOfRow = laid.size();
    int end = row + 1;
    for (std::size_t i = tableRow.firstCell; i < tableRow.endCell; ++i) {
        layOutCell(grid.cells()[i], row, wrapping);
        end = std::max(end, laid.back().endRow);
    }
    alignBaselines(firstOfRow);
    return end;
}

void TableBand::layOutCell(TableCell& cell, int row, Wrapping wrapping) {
    Style const& style = cell.style();
    LaidCell& placed =
        laid.emplace_back(LaidCell{.cell = &cell, .firstRow = row, .endRow = row + cell.rowSpan});
    placed.left = places.left[static_cast<std::size_t>(cell.column)];
    placed.right = places.right[static_cast<std::size_t>(cell.endColumn()) - 1];
    int const edges = frame.cellEdges(style, places.width);
    placed.contentLeft = placed.left + (frame.hasBorder(style.border.left) ? 1 : 0) +
                         across(style.padding.left, places.width);
    placed.contentWidth = placed.right - placed.left - edges;
    placed.isBare = !isDrawn(cell.content.background()) && !frame.hasBorders(style);
    placed.isOnBaseline = style.verticalAlign == VerticalAlign::baseline && !cell.content.isEmpty();
    std::optional<PlainText> const text = cell.content.plainText();
    if (text && isVisible(*text->block)) {
        layOutText(placed, *text, wrapping);
    } else {
        layOutContent(placed, wrapping);
    }
    placed.above =
        (frame.hasBorder(style.border.top) ? 1 : 0) + down(style.padding.top, places.width);
    placed.needed = placed.above + placed.contentHeight() +
                    down(style.padding.bottom, places.width) +
                    (frame.hasBorder(style.border.bottom) ? 1 : 0);
}

void TableBand::layOutText(LaidCell& placed, PlainText const& text, Wrapping wrapping) {
    Style const& style = *text.block;
    int const columns = std::max(0, placed.contentWidth);
    using Purpose = LineBreaker::Purpose;
    bool const partsWords = LineBreaker::mayPart(style, Purpose::layingOut, wrapping);
    Look const look = lookOf(style, Colour::transparent());
    placed.isPlain = true;
    placed.isOutdented = placed.cell->content.outdent() > 0;
    int const leftmost = placed.left - placed.contentLeft;
    placed.firstLine = lines.size();
    int const firstIndent = std::max(acrossRoundedUp(style.textIndent, columns), leftmost);
    auto const take = [&](std::string_view line, int cells, int indent) {
        int const column = columnOfLine(style, columns, indent, cells);
        lines.push_back({line, {0, line.size(), look}, cells, column});
        budget.take(line.size() + 1);
    };
    breakLines(text, columns, partsWords, firstIndent, take);
    placed.endLine = lines.size();
}

void TableBand::layOutContent(LaidCell& placed, Wrapping wrapping) {
    TableCell& cell = *placed.cell;
    int const outdent = std::min(cell.content.outdent(), placed.contentLeft - placed.left);
    placed.isOutdented = outdent > 0;
    placed.contentLeft -= outdent;
    flow.restart(std::max(0, placed.contentWidth), wrapping, outdent);
    placed.firstLine = content.size();
    cell.content.moveTo(flow, scratch);
    flow.finish();
    placed.endLine = content.size();
    placed.baseline = flow.baseline().value_or(placed.contentHeight() - 1);
}

/// Moves content down so that first texts are in one row.
void TableBand::alignBaselines(std::size_t firstOfRow) {
    int lowest = -1;
    for (std::size_t i = firstOfRow; i < laid.size(); ++i) {
        if (!laid[i].isOnBaseline) continue;
        lowest = std::max(lowest, laid[i].above + laid[i].baseline);
    }
    for (std::size_t i = firstOfRow; i < laid.size(); ++i) {
        LaidCell& cell = laid[i];
        if (!cell.isOnBaseline) continue;
        int const shift = lowest - cell.above - cell.baseline;
        cell.above += shift;
        cell.needed += shift;
    }
}

/// Makes rows as high as the cells that end in them need: what the rows above lack of a spanning
/// cell, its last row has.
void TableBand::placeRows() {
    byEnd.clear();
    for (LaidCell& cell : laid) byEnd.push_back(&cell);
    if (heights.size() > 1) {
        std::stable_sort(byEnd.begin(), byEnd.end(), [](LaidCell const* a, LaidCell const* b) {
            return a->endRow < b->endRow;
        });
    }
    auto next = byEnd.begin();
    for (int row = first; row < endRow(); ++row) {
        int const gap = row > first ? height(row - 1) + frame.rowGap(row) : 0;
        tops[index(row)] = (row > first ? top(row - 1) : 0) + gap;
        int& height = heights[index(row)];
        for (; next != byEnd.end() && (*next)->endRow == row + 1; ++next) {
            (*next)->top = top((*next)->firstRow);
            height = std::max(height, (*next)->top + (*next)->needed - top(row));
        }
    }
    for (LaidCell& cell : laid)
        cell.height = top(cell.endRow - 1) + height(cell.endRow - 1) - cell.top;
}

/// Without a cell on one it is where the content of the cell ends that comes farthest down.
int TableBand::baseline() const {
    int bottom = 0;
    for (LaidCell const& cell : laid) {
        if (cell.firstRow != first) break;
        if (cell.isOnBaseline) return cell.above + cell.baseline;
        if (cell.endRow > first + 1) continue;
        Style const& style = cell.cell->style();
        int const below = down(style.padding.bottom, places.width) +
                          (frame.hasBorder(style.border.bottom) ? 1 : 0);
        bottom = std::max(bottom, height(first) - 1 - below);
    }
    return bottom;
}

/// Moves content down where the cell is higher than it needs.
void TableBand::placeContent(LaidCell& cell) const {
    int const spare = cell.height - cell.needed;
    VerticalAlign const align = cell.cell->style().verticalAlign;
    if (align == VerticalAlign::bottom) cell.above += spare;
    if (align == VerticalAlign::middle) cell.above += spare / 2;
}

}  // namespace galley::web

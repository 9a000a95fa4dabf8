#include "web/flow/columnNeeds.h"

#include <algorithm>
#include <utility>

namespace galley::web {

namespace {

bool isCells(Length length) { return length.kind == Length::Kind::cells; }

/// What a width asks for, with edges, in parts of cells.
ColumnNeed needOf(Length width, int edges, int parts) {
    ColumnNeed need;
    need.isFixed = isCells(width);
    if (isCells(width)) need.most = width.value * parts + edges;
    if (width.kind == Length::Kind::percent) need.percent = width.value;
    return need;
}

ColumnNeed needOf(TableCell const& cell, TableFrame const& frame, Wrapping wrapping,
                  Paragraph& scratch) {
    Style const& style = *cell.style;
    Widths content =
        wrapping == Wrapping::anywhere ? cell.content.partedWidths(scratch) : cell.content.widths();
    if (isCells(style.width)) content.most = style.width.value;
    if (isCells(style.maxWidth)) {
        content.least = std::min(content.least, style.maxWidth.value);
        content.most = std::min(content.most, style.maxWidth.value);
    }
    if (isCells(style.minWidth)) content.least = std::max(content.least, style.minWidth.value);
    int const edges = frame.columnEdges(cell);
    int const parts = frame.partsOfCell();
    ColumnNeed need = needOf(style.width, edges, parts);
    need.least = content.least * parts + edges;
    need.most = std::max(content.least, content.most) * parts + edges;
    return need;
}

Length widthOf(TableColumn const& column) {
    if (column.style != nullptr && !isAutomatic(column.style->width)) return column.style->width;
    return column.group == nullptr ? Length::automatic() : column.group->width;
}

std::vector<ColumnNeed> needsOfElements(TableGrid const& grid, TableFrame const& frame) {
    std::vector<ColumnNeed> needs;
    for (TableColumn const& column : grid.columns()) {
        ColumnNeed& need = needs.emplace_back(needOf(widthOf(column), 0, frame.partsOfCell()));
        need.count = column.count;
    }
    return needs;
}

std::span<ColumnNeed> columnsOf(std::vector<ColumnNeed>& needs, TableCell const& cell) {
    return std::span(needs).subspan(static_cast<std::size_t>(cell.column),
                                    static_cast<std::size_t>(cell.columnSpan));
}

/// Shares the width of a cell of the first row among its columns, for which nothing is said.
void setFixed(std::span<ColumnNeed> columns, ColumnNeed const& cell) {
    std::vector<ColumnNeed> equal;
    for (ColumnNeed const& column : columns) equal.push_back({.count = column.count});
    std::vector<int> const widths = shareWidth(equal, cell.most);
    std::vector<int> const percentages = shareWidth(equal, cell.percent);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (columns[i].isFixed || columns[i].percent > 0) continue;
        columns[i].most = widths[i];
        columns[i].percent = percentages[i];
        if (i == 0) columns[i].percentEdges = cell.percentEdges;
        columns[i].isFixed = cell.isFixed;
    }
}

}  // namespace

std::vector<ColumnNeed> automaticNeeds(TableGrid const& grid, TableFrame const& frame,
                                       Wrapping wrapping) {
    std::vector<ColumnNeed> needs = needsOfElements(grid, frame);
    std::vector<TableCell const*> spanning;
    Paragraph scratch;
    for (TableCell const& cell : grid.cells()) {
        if (cell.isWide()) {
            spanning.push_back(&cell);
        } else {
            widen(needs[static_cast<std::size_t>(cell.column)],
                  needOf(cell, frame, wrapping, scratch));
        }
    }
    std::stable_sort(spanning.begin(), spanning.end(), [](TableCell const* a, TableCell const* b) {
        return std::pair(a->documentSpan, a->column) < std::pair(b->documentSpan, b->column);
    });
    for (TableCell const* const cell : spanning) {
        ColumnNeed need = needOf(*cell, frame, wrapping, scratch);
        int const gaps = frame.gapsWithin(*cell);
        need.least = std::max(0, need.least - gaps);
        need.most = std::max(0, need.most - gaps);
        widen(columnsOf(needs, *cell), need);
    }
    limitPercentages(needs);
    return needs;
}

std::vector<ColumnNeed> fixedNeeds(TableGrid const& grid, TableFrame const& frame) {
    std::vector<ColumnNeed> needs = needsOfElements(grid, frame);
    if (!grid.rows().empty()) {
        TableRow const& first = grid.rows().front();
        for (std::size_t i = first.firstCell; i < first.endCell; ++i) {
            TableCell const& cell = grid.cells()[i];
            int const edges = frame.columnEdges(cell);
            ColumnNeed need = needOf(cell.style->width, edges, frame.partsOfCell());
            if (!cell.isWide()) need.percentEdges = edges;
            setFixed(columnsOf(needs, cell), need);
        }
    }
    for (ColumnNeed& need : needs) {
        if (need.percent == 0) need.least = need.most;
    }
    limitPercentages(needs);
    return needs;
}

}  // namespace galley::web

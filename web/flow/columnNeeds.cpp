#include "web/flow/columnNeeds.h"

#include <algorithm>
#include <utility>

namespace galley::web {

namespace {

bool isCells(Length length) { return length.kind == Length::Kind::cells; }

/// What a width asks for, with edges.
ColumnNeed needOf(Length width, std::int64_t edges) {
    ColumnNeed need;
    need.isFixed = isCells(width);
    if (isCells(width)) need.most = width.value * s_parts + edges;
    if (width.kind == Length::Kind::percent && width.value > 0) {
        need.isPercent = true;
        need.percent = 1000 * width.value;
    }
    return need;
}

/// Of what is in a cell, within the limits that its style sets.
Widths contentOf(TableCell const& cell, Wrapping wrapping, Paragraph& scratch) {
    Style const& style = cell.style();
    Widths content =
        wrapping == Wrapping::anywhere ? cell.content.partedWidths(scratch) : cell.content.widths();
    if (isCells(style.width)) content.most = style.width.value;
    if (isCells(style.maxWidth)) {
        content.least = std::min(content.least, style.maxWidth.value);
        content.most = std::min(content.most, style.maxWidth.value);
    }
    if (isCells(style.minWidth)) content.least = std::max(content.least, style.minWidth.value);
    return content;
}

/// Of each cell.
std::vector<Widths> contentsOf(TableGrid const& grid, Wrapping wrapping) {
    std::vector<Widths> contents;
    contents.reserve(grid.cells().size());
    Paragraph scratch;
    for (TableCell const& cell : grid.cells()) {
        contents.push_back(contentOf(cell, wrapping, scratch));
    }
    return contents;
}

ColumnNeed needOf(TableCell const& cell, TableFrame const& frame, Widths const& content) {
    std::int64_t const edges = frame.columnEdges(cell);
    ColumnNeed need = needOf(cell.style().width, edges);
    need.least = content.least * s_parts + edges;
    need.most = std::max(content.least, content.most) * s_parts + edges;
    return need;
}

std::vector<ColumnNeed> needsOfElements(TableGrid const& grid) {
    std::vector<ColumnNeed> needs;
    for (TableColumn const& column : grid.columns()) {
        ColumnNeed& need = needs.emplace_back(needOf(column.width(), 0));
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
    std::vector<std::int64_t> const widths = shareWidth(equal, cell.most);
    std::vector<std::int64_t> const percentages = shareWidth(equal, cell.percent);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (columns[i].isFixed || columns[i].isPercent) continue;
        columns[i].least = widths[i];
        columns[i].most = widths[i];
        columns[i].percent = static_cast<int>(percentages[i]);
        columns[i].isPercent = cell.isPercent;
        if (i == 0) columns[i].percentEdges = cell.percentEdges;
        columns[i].isFixed = cell.isFixed;
    }
}

/// Of columns whose cells have content that is so wide.
std::vector<ColumnNeed> needsFor(std::vector<Widths> const& contents, TableGrid const& grid,
                                 TableFrame const& frame) {
    std::vector<ColumnNeed> needs = needsOfElements(grid);
    std::vector<std::pair<TableCell const*, ColumnNeed>> spanning;
    auto const take = [&](std::size_t index) {
        TableCell const& cell = grid.cells()[index];
        ColumnNeed const need = needOf(cell, frame, contents[index]);
        if (cell.isWide()) {
            spanning.emplace_back(&cell, need);
        } else {
            widen(needs[static_cast<std::size_t>(cell.column)], need);
        }
    };
    // Rows that are first on the page come first, whatever their order in the document.
    for (TableRow const& row : grid.rows()) {
        for (std::size_t i = row.firstCell; i < row.endCell; ++i) take(i);
    }
    std::stable_sort(spanning.begin(), spanning.end(), [](auto const& a, auto const& b) {
        return std::pair(a.first->documentSpan, a.first->column) <
               std::pair(b.first->documentSpan, b.first->column);
    });
    for (auto& [cell, need] : spanning) {
        std::int64_t const gaps = frame.gapsWithin(*cell);
        need.least = std::max<std::int64_t>(0, need.least - gaps);
        need.most = std::max<std::int64_t>(0, need.most - gaps);
        widen(columnsOf(needs, *cell), need);
    }
    limitPercentages(needs);
    return needs;
}

}  // namespace

std::vector<ColumnNeed> automaticNeeds(TableGrid const& grid, TableFrame const& frame,
                                       Wrapping wrapping) {
    return needsFor(contentsOf(grid, wrapping), grid, frame);
}

std::vector<ColumnNeed> fittingNeeds(TableGrid const& grid, TableFrame const& frame,
                                     std::int64_t parts) {
    std::vector<Widths> const parted = contentsOf(grid, Wrapping::anywhere);
    std::vector<ColumnNeed> least = needsFor(parted, grid, frame);
    if (sumOf(least).least > parts) return least;
    std::vector<Widths> const whole = contentsOf(grid, Wrapping::asStyled);
    auto const needsAt = [&](int cells) {
        std::vector<Widths> contents = parted;
        for (std::size_t i = 0; i < contents.size(); ++i) {
            contents[i].least = std::max(contents[i].least, std::min(whole[i].least, cells));
        }
        return needsFor(contents, grid, frame);
    };
    int cells = 0;
    int above = 0;
    for (Widths const& each : whole) above = std::max(above, each.least);
    while (cells < above) {
        int const middle = cells + (above - cells + 1) / 2;
        if (sumOf(needsAt(middle)).least <= parts) {
            cells = middle;
        } else {
            above = middle - 1;
        }
    }
    return needsAt(cells);
}

std::vector<ColumnNeed> fixedNeeds(TableGrid const& grid, TableFrame const& frame) {
    std::vector<ColumnNeed> needs = needsOfElements(grid);
    for (std::size_t i = 0; i < needs.size(); ++i) {
        // As in Chromium, that of a group counts for columns without an element.
        Style const* const own = grid.columns()[i].style;
        if (own != nullptr && isAutomatic(own->width)) needs[i] = {.count = needs[i].count};
        needs[i].least = needs[i].most;
    }
    if (!grid.rows().empty()) {
        TableRow const& first = grid.rows().front();
        for (std::size_t i = first.firstCell; i < first.endCell; ++i) {
            TableCell const& cell = grid.cells()[i];
            std::int64_t const edges = frame.columnEdges(cell);
            Length width = cell.style().width;
            Length const limit = cell.style().maxWidth;
            if (isCells(width) && isCells(limit)) width.value = std::min(width.value, limit.value);
            ColumnNeed need = needOf(width, edges);
            if (!cell.isWide()) need.percentEdges = edges;
            need.most = std::max<std::int64_t>(0, need.most - frame.gapsWithin(cell));
            setFixed(columnsOf(needs, cell), need);
        }
    }
    return needs;
}

}  // namespace galley::web

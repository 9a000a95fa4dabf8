#include "web/flow/TableGrid.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace galley::web {

namespace {

constexpr int s_widestSpan = 1000;

/// The background of what a cell is in, which shows with the cell, whether that is visible or not.
Colour onTop(Style const* style, Colour around) {
    bool const isThere = style != nullptr && style->background.kind != Colour::Kind::transparent;
    return isThere ? style->background : around;
}

}  // namespace

void TableGrid::addColumns(Style const* style, Style const* group, bool beginsGroup, int span) {
    int const begin = ranges.empty() ? 0 : ranges.back().end;
    int const end = begin + std::clamp(span, 1, s_widestSpan);
    if (beginsGroup && !ranges.empty()) ranges.back().column.endsGroup = true;
    ranges.push_back({{style, group, beginsGroup}, begin, end});
}

void TableGrid::beginGroup(Style const* style, Display kind) {
    endGroup();
    isGroupOpen = true;
    groups.push_back({style, kind, allRows.size(), allRows.size()});
}

void TableGrid::endGroup() {
    endRow();
    if (!isGroupOpen) return;
    isGroupOpen = false;
    groups.back().endRow = allRows.size();
    occupied.clear();
}

void TableGrid::beginRow(Style const* style) {
    endRow();
    isRowOpen = true;
    allRows.push_back({style, groups.back().style, allCells.size(), allCells.size(), false, false});
    nextColumn = 0;
    nextOccupied = 0;
}

void TableGrid::endRow() {
    if (!isRowOpen) return;
    isRowOpen = false;
    allRows.back().endCell = allCells.size();
    std::size_t const next = allRows.size();
    std::erase_if(occupied, [next](Occupied const& run) { return run.endRow <= next; });
    auto const middle = static_cast<std::ptrdiff_t>(occupied.size());
    occupied.insert(occupied.end(), added.begin(), added.end());
    std::inplace_merge(occupied.begin(), occupied.begin() + middle, occupied.end(),
                       [](Occupied const& a, Occupied const& b) { return a.begin < b.begin; });
    added.clear();
}

/// A cell needs a free slot only for its first column: behind that it may lie over others.
void TableGrid::findFreeColumn() {
    while (nextOccupied < occupied.size() && occupied[nextOccupied].begin <= nextColumn) {
        nextColumn = std::max(nextColumn, occupied[nextOccupied].end);
        ++nextOccupied;
    }
}

TableGrid::ColumnRange const* TableGrid::rangeAt(int column) const {
    auto const behind =
        std::upper_bound(ranges.begin(), ranges.end(), column,
                         [](int wanted, ColumnRange const& range) { return wanted < range.end; });
    return behind == ranges.end() ? nullptr : &*behind;
}

TableCell& TableGrid::addCell(Style const& style, int columnSpan, int rowSpan) {
    findFreeColumn();
    int const column = nextColumn;
    int const span = std::clamp(columnSpan, 1, s_widestSpan);
    int const rows = rowSpan <= 0 ? std::numeric_limits<int>::max() : rowSpan;
    nextColumn += span;
    auto const end = static_cast<std::size_t>(nextColumn);
    if (isStart.size() < end) isStart.resize(end);
    isStart[static_cast<std::size_t>(column)] = true;
    if (rows > 1) {
        std::size_t const endRow = allRows.size() - 1 + static_cast<std::size_t>(rows);
        added.push_back({column, nextColumn, endRow});
    }
    Colour background = ground;
    if (ColumnRange const* const range = rangeAt(column)) {
        background = onTop(range->column.style, onTop(range->column.group, background));
    }
    background = onTop(allRows.back().style, onTop(allRows.back().group, background));
    background = isVisible(style) ? backgroundOf(style, background) : ground;
    return allCells.emplace_back(style, background, column, span, rows);
}

Colour TableGrid::background(TableRow const& row) const {
    return onTop(row.style, onTop(row.group, ground));
}

void TableGrid::complete(Rules rules) {
    endGroup();
    if (rules.dropsEmptyRows) dropEmptyRows();
    if (!rules.joinsColumns) {
        auto const elements = static_cast<std::size_t>(ranges.empty() ? 0 : ranges.back().end);
        isStart.assign(std::max(isStart.size(), elements), true);
    }
    if (!ranges.empty()) ranges.back().column.endsGroup = true;
    orderGroups();
    joinColumns();
}

void TableGrid::dropEmptyRows() {
    std::vector<TableRow> kept;
    for (Group& group : groups) {
        std::size_t const first = kept.size();
        std::size_t reached = group.firstRow;
        for (std::size_t i = group.firstRow; i < group.endRow; ++i) {
            TableRow const& row = allRows[i];
            for (std::size_t c = row.firstCell; c < row.endCell; ++c) {
                reached = std::max(reached, i + static_cast<std::size_t>(allCells[c].rowSpan));
            }
            if (i < reached) kept.push_back(row);
        }
        group.firstRow = first;
        group.endRow = kept.size();
    }
    allRows = std::move(kept);
}

/// The first head and the first foot are such; others are groups as any.
void TableGrid::orderGroups() {
    auto const firstOf = [this](Display kind) {
        return std::find_if(groups.begin(), groups.end(),
                            [kind](Group const& group) { return group.kind == kind; });
    };
    auto const head = firstOf(Display::headerGroup);
    auto const foot = firstOf(Display::footerGroup);
    std::vector<TableRow> ordered;
    ordered.reserve(allRows.size());
    if (head != groups.end()) appendGroup(*head, ordered);
    for (auto group = groups.begin(); group != groups.end(); ++group) {
        if (group != head && group != foot) appendGroup(*group, ordered);
    }
    if (foot != groups.end()) appendGroup(*foot, ordered);
    allRows = std::move(ordered);
}

void TableGrid::appendGroup(Group const& group, std::vector<TableRow>& ordered) {
    for (std::size_t i = group.firstRow; i < group.endRow; ++i) {
        TableRow& row = ordered.emplace_back(allRows[i]);
        row.beginsGroup = i == group.firstRow;
        row.endsGroup = i + 1 == group.endRow;
        auto const left = static_cast<int>(group.endRow - i);
        for (std::size_t c = row.firstCell; c < row.endCell; ++c) {
            allCells[c].rowSpan = std::min(allCells[c].rowSpan, left);
        }
    }
}

/// Columns become those that begin at `starts`.
void TableGrid::moveCells(std::vector<int> const& starts) {
    auto const indexOf = [&starts](int column) {
        auto const behind = std::upper_bound(starts.begin(), starts.end(), column);
        return static_cast<int>(behind - starts.begin()) - 1;
    };
    for (TableCell& cell : allCells) {
        int const last = indexOf(cell.endColumn() - 1);
        cell.column = indexOf(cell.column);
        cell.columnSpan = static_cast<std::uint16_t>(last - cell.column + 1);
    }
}

void TableGrid::joinColumns() {
    for (ColumnRange const& range : ranges) {
        if (isAutomatic(range.column.width())) continue;
        auto const begin = static_cast<std::size_t>(range.begin);
        auto const end = static_cast<std::size_t>(range.end);
        if (isStart.size() < end) isStart.resize(end);
        // Those of a percentage are one, as in Chromium.
        bool const areSet = range.column.width().kind == Length::Kind::cells;
        for (std::size_t i = begin; i < (areSet ? end : begin + 1); ++i) isStart[i] = true;
    }
    std::vector<int> starts;
    for (std::size_t i = 0; i < isStart.size(); ++i) {
        if (isStart[i] || i == 0) starts.push_back(static_cast<int>(i));
    }
    if (starts.size() < isStart.size()) moveCells(starts);
    auto const end = static_cast<int>(isStart.size());
    for (std::size_t i = 0; i < starts.size(); ++i) {
        ColumnRange const* const range = rangeAt(starts[i]);
        TableColumn& column = allColumns.emplace_back();
        if (range != nullptr) column = range->column;
        column.beginsGroup = column.beginsGroup && range->begin == starts[i];
        column.count = (i + 1 < starts.size() ? starts[i + 1] : end) - starts[i];
        column.endsGroup = column.endsGroup && starts[i] + column.count == range->end;
    }
}

}  // namespace galley::web

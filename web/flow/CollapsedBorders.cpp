#include "web/flow/CollapsedBorders.h"

#include <utility>

namespace galley::web {

namespace {

/// Of two borders as thick the one that is drawn has the larger rank.
int rankOf(LineKind kind) {
    switch (kind) {
        case LineKind::twofold:
            return 5;
        case LineKind::text:
            return 4;
        case LineKind::solid:
            return 3;
        case LineKind::dashed:
            return 2;
        default:
            return 1;
    }
}

/// Finds the border that is drawn where some meet: `hidden` hides all, then the thickest, then the
/// one of the strongest style, then the one that was offered first.
class Contest {
public:
    void offer(Style const* style, Border Edges<Border>::*side) {
        if (style != nullptr) offer(style->border.*side);
    }

    void offer(Border const& border) {
        isHidden = isHidden || border.line.kind == LineKind::hidden;
        if (border.isThere() && (best == nullptr || isStronger(border, *best))) best = &border;
    }

    Border const* winner() const { return isHidden ? nullptr : best; }

private:
    static bool isStronger(Border const& a, Border const& b) {
        if (a.thickness != b.thickness) return a.thickness > b.thickness;
        return rankOf(a.line.kind) > rankOf(b.line.kind);
    }

    Border const* best = nullptr;
    bool isHidden = false;
};

constexpr auto s_left = &Edges<Border>::left;
constexpr auto s_right = &Edges<Border>::right;
constexpr auto s_top = &Edges<Border>::top;
constexpr auto s_bottom = &Edges<Border>::bottom;

Style const* styleOf(TableCell const* cell) { return cell == nullptr ? nullptr : &cell->style(); }

}  // namespace

SlotWalk::SlotWalk(TableGrid const& walked) : grid(&walked), slots(walked.columns().size()) {}

void SlotWalk::next() {
    ++current;
    for (Slot& slot : slots) {
        if (slot.endRow <= current) slot = {};
    }
    if (static_cast<std::size_t>(current) >= grid->rows().size()) return;
    TableRow const& row = grid->rows()[static_cast<std::size_t>(current)];
    for (std::size_t i = row.firstCell; i < row.endCell; ++i) {
        TableCell const& cell = grid->cells()[i];
        for (int c = cell.column; c < cell.endColumn(); ++c) {
            slots[static_cast<std::size_t>(c)] = {&cell, current + cell.rowSpan};
        }
    }
}

CollapsedBorders::CollapsedBorders(TableGrid const& collapsed, Style const& tableStyle)
    : grid(collapsed),
      table(tableStyle),
      verticalLines(grid.columns().size() + 1),
      horizontalLines(grid.rows().size() + 1),
      before(grid),
      at(grid),
      below(grid.columns().size() + 1),
      across(grid.columns().size()) {
    for (std::size_t row = 0; row <= grid.rows().size(); ++row) {
        next();
        for (std::size_t i = 0; i < below.size(); ++i) {
            if (below[i] != nullptr) verticalLines[i] = true;
        }
        for (Border const* const border : across) {
            if (border != nullptr) horizontalLines[row] = true;
        }
    }
    before = SlotWalk(grid);
    at = SlotWalk(grid);
    below.assign(below.size(), nullptr);
    next();
}

void CollapsedBorders::next() {
    if (at.row() >= 0) before.next();
    at.next();
    std::swap(above, below);
    below.assign(grid.columns().size() + 1, nullptr);
    bool const isRow = static_cast<std::size_t>(at.row()) < grid.rows().size();
    for (std::size_t i = 0; i < below.size() && isRow; ++i) below[i] = findVertical(i);
    for (std::size_t i = 0; i < across.size(); ++i) across[i] = findHorizontal(i);
}

Border const* CollapsedBorders::findVertical(std::size_t line) const {
    std::size_t const end = grid.columns().size();
    TableCell const* const left = line > 0 ? at[line - 1] : nullptr;
    TableCell const* const right = line < end ? at[line] : nullptr;
    if (left != nullptr && left == right) return nullptr;
    TableRow const& row = grid.rows()[static_cast<std::size_t>(at.row())];
    bool const isOutermost = line == 0 || line == end;
    auto const outerSide = line == 0 ? s_left : s_right;
    Contest contest;
    contest.offer(styleOf(left), s_right);
    contest.offer(styleOf(right), s_left);
    if (isOutermost) contest.offer(row.style, outerSide);
    if (isOutermost) contest.offer(row.group, outerSide);
    TableColumn const* const leftColumn = line > 0 ? &grid.columns()[line - 1] : nullptr;
    TableColumn const* const rightColumn = line < end ? &grid.columns()[line] : nullptr;
    if (leftColumn != nullptr) contest.offer(leftColumn->style, s_right);
    if (rightColumn != nullptr) contest.offer(rightColumn->style, s_left);
    if (leftColumn != nullptr && leftColumn->endsGroup) contest.offer(leftColumn->group, s_right);
    if (rightColumn != nullptr && rightColumn->beginsGroup)
        contest.offer(rightColumn->group, s_left);
    if (isOutermost) contest.offer(&table, outerSide);
    return contest.winner();
}

Border const* CollapsedBorders::findHorizontal(std::size_t column) const {
    auto const row = static_cast<std::size_t>(at.row());
    std::size_t const end = grid.rows().size();
    TableCell const* const top = row > 0 ? before[column] : nullptr;
    TableCell const* const bottom = row < end ? at[column] : nullptr;
    if (top != nullptr && top == bottom) return nullptr;
    TableRow const* const over = row > 0 ? &grid.rows()[row - 1] : nullptr;
    TableRow const* const under = row < end ? &grid.rows()[row] : nullptr;
    bool const isOutermost = row == 0 || row == end;
    auto const outerSide = row == 0 ? s_top : s_bottom;
    Contest contest;
    contest.offer(styleOf(top), s_bottom);
    contest.offer(styleOf(bottom), s_top);
    if (over != nullptr) contest.offer(over->style, s_bottom);
    if (under != nullptr) contest.offer(under->style, s_top);
    if (over != nullptr && over->endsGroup) contest.offer(over->group, s_bottom);
    if (under != nullptr && under->beginsGroup) contest.offer(under->group, s_top);
    if (isOutermost) contest.offer(grid.columns()[column].style, outerSide);
    if (isOutermost) contest.offer(grid.columns()[column].group, outerSide);
    if (isOutermost) contest.offer(&table, outerSide);
    return contest.winner();
}

Edges<Border const*> CollapsedBorders::around(int line) const {
    std::size_t const i = index(line);
    return {.left = i > 0 ? across[i - 1] : nullptr,
            .right = i < across.size() ? across[i] : nullptr,
            .top = i < above.size() ? above[i] : nullptr,
            .bottom = below[i]};
}

Border const* strongest(Edges<Border const*> const& lines) {
    Contest contest;
    for (Border const* const line : {lines.left, lines.right, lines.top, lines.bottom}) {
        if (line != nullptr) contest.offer(*line);
    }
    return contest.winner();
}

}  // namespace galley::web

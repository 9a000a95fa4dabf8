#include "xml/render/Canvas.h"

#include <algorithm>
#include <limits>
#include <new>
#include <utility>

#include "base/saturate.h"
#include "xml/render/cellBlocks.h"

namespace CLI::XML {

namespace {

/// A page keeps so many new rows as one, as long as they stay alike.
constexpr std::uint64_t s_tall = 256;

constexpr std::int64_t s_largestOrigin = std::numeric_limits<std::int32_t>::max();

}  // namespace

/// Makes the row, or as many that are alike, at least `width` cells long; the cells from its former
/// end up to `filled` become fillers, those behind them are for the caller to set.
void Canvas::lengthen(Row& row, std::uint64_t width, unsigned filled, unsigned times) {
    if (width > std::numeric_limits<unsigned>::max()) throw std::bad_array_new_length();
    unsigned const formerWidth = row.count;
    auto const end = static_cast<unsigned>(width);
    if (end <= formerWidth) return;
    widest = std::max(widest, end);
    if (isOverlay) row.reserveWithFront(end);
    // As many slots as cells added one by one would take.
    row.enlarge(end - 1);
    row.count = end;
    unsigned const filledEnd = std::min(filled, end);
    if (filledEnd <= formerWidth) return;
    std::fill(row.data + formerWidth, row.data + filledEnd, Byte::make(' ', 0));
    cellsMade += std::uint64_t{filledEnd - formerWidth} * times;
}

/// Adds empty rows up to `end`.
void Canvas::bringIntoUse(std::uint64_t end) {
    if (end > std::numeric_limits<unsigned>::max()) throw std::bad_array_new_length();
    std::uint64_t added = end - endOfRows();
    cellsMade += added;
    if (budget != nullptr && added > s_tall) {
        // All but the last, which is about to be drawn in.
        runs.push_back({rows.count, static_cast<unsigned>(added - 2)});
        repeatedRows += added - 2;
        added = 2;
    }
    unsigned const formerCount = rows.count;
    rows[formerCount + static_cast<unsigned>(added) - 1];
    for (unsigned i = formerCount; i < rows.count && !spareRows.empty(); ++i) {
        rows.data[i] = std::move(spareRows.back());
        spareRows.pop_back();
    }
}

/// The rows that an entry of `rows` stands for.
unsigned Canvas::rowsAt(unsigned index) const {
    auto const run = std::lower_bound(runs.begin(), runs.end(), index,
                                      [](Run const& r, unsigned i) { return r.index < i; });
    return run != runs.end() && run->index == index ? run->more + 1 : 1;
}

/// The entry that begins with row `y`, or ends before it. A run that reaches over it is cut in two.
unsigned Canvas::cutAt(std::uint64_t y) {
    // From below, where most is drawn.
    std::uint64_t before = repeatedRows;
    for (std::size_t i = runs.size(); i-- > 0; before -= runs[i].more) {
        Run const run = runs[i];
        std::uint64_t const start = movedRows + run.index + before - run.more;
        if (y > start + run.more) break;
        if (y <= start) continue;
        auto const upper = static_cast<unsigned>(y - start);
        rows.insert(run.index, rows[run.index]);
        for (std::size_t later = i + 1; later < runs.size(); ++later) ++runs[later].index;
        --repeatedRows;
        runs[i].more = upper - 1;
        runs.insert(runs.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                    {run.index + 1, run.more - upper});
        std::erase_if(runs, [](Run const& r) { return r.more == 0; });
        return run.index + 1;
    }
    return static_cast<unsigned>(y - movedRows - before);
}

/// Calls `visit` with each entry of the rows from `first` up to `end`, which exist, and the number
/// of rows that it stands for.
template <class Visit>
void Canvas::visitRows(std::uint64_t first, std::uint64_t end, Visit const& visit) {
    if (first >= end) return;
    if (runs.empty()) {
        for (; first < end; ++first) visit(rows.data[first - movedRows], 1U);
        return;
    }
    unsigned const from = cutAt(first);
    unsigned const to = cutAt(end);
    for (unsigned i = from; i < to; ++i) visit(rows.data[i], rowsAt(i));
}

ZRVector<Canvas::Byte>& Canvas::loneRow(std::uint64_t y) {
    unsigned const index = cutAt(y);
    cutAt(y + 1);
    return rows.data[index];
}

/// Calls `visit` with each frame that begins to use rows where row `y` comes into use, and with the
/// first of these and the one behind the last: a frame's origin is below that of the one around it,
/// which sees to the rows above.
template <class Visit>
void Canvas::visitUntouched(std::uint64_t y, Visit const& visit) {
    std::uint64_t end = y + 1;
    for (std::size_t depth = frames.size(); depth-- > 0;) {
        Frame& frame = frames[depth];
        bool const wasTouched = frame.end > frame.top;
        visit(frame, std::max(frame.end, movedRows), end);
        if (wasTouched) break;
        end = frame.top;
    }
}

/// Whether the budget has `drawn` cells, the fillers before column `column` in the rows from `top`
/// to `last`, and what comes into use with these rows.
bool Canvas::mayDrawAt(std::uint64_t top, std::uint64_t last, unsigned column,
                       std::uint64_t drawn) {
    // Not more than all rows down to the last and the fillers in all of them.
    std::uint64_t const most =
        (last + 1 - std::min(last, std::uint64_t{movedRows})) * (std::uint64_t{column} + 1);
    std::uint64_t const remaining = budget->remaining();
    if (most <= remaining && drawn <= remaining - most) return true;
    // Each a product of what fits in 32 bits, and less by far.
    std::uint64_t cost = costOfRow(last) + drawn;
    std::uint64_t const existing = std::max(top, std::min(last + 1, endOfRows()));
    visitRows(std::max(top, std::uint64_t{movedRows}), existing,
              [&](Row const& row, unsigned times) {
                  unsigned const width = std::max(row.count, originColumn());
                  cost += std::uint64_t{column - std::min(column, width)} * times;
              });
    cost += (last + 1 - existing) * (column - std::min(column, originColumn()));
    return budget->suffices(cost);
}

std::uint64_t Canvas::costOfRow(std::uint64_t y) {
    if (isTouched(y)) return 0;
    std::uint64_t const existing = endOfRows();
    std::uint64_t cost = y < existing ? 0 : y + 1 - existing;
    visitUntouched(y, [&](Frame const& frame, std::uint64_t first, std::uint64_t end) {
        std::uint64_t const existingEnd = std::max(first, std::min(end, existing));
        visitRows(first, existingEnd, [&](Row const& row, unsigned times) {
            cost += std::uint64_t{frame.left - std::min(frame.left, row.count)} * times;
        });
        if (existingEnd < end) cost += (end - existingEnd) * frame.left;
    });
    return cost;
}

void Canvas::touchNewRow(std::uint64_t y) {
    if (y < movedRows) throw std::bad_array_new_length();
    if (y >= endOfRows()) bringIntoUse(y + 1);
    visitUntouched(y, [this](Frame& frame, std::uint64_t first, std::uint64_t end) {
        visitRows(first, end,
                  [&](Row& row, unsigned times) { lengthen(row, frame.left, frame.left, times); });
        frame.end = std::max(frame.end, static_cast<unsigned>(end));
    });
}

bool Canvas::mayDraw(std::int64_t cells) const {
    return budget == nullptr || cells <= 0 || budget->suffices(static_cast<std::uint64_t>(cells));
}

bool Canvas::enter(int x, int y) {
    std::int64_t const left = std::int64_t{originColumn()} + x;
    std::int64_t const top = std::int64_t{originRow()} + y;
    if (x < 0 || y < 0 || std::max(left, top) > s_largestOrigin) return false;
    auto const end = static_cast<std::int64_t>(endOfRows());
    if (top < end && left < widest) return false;
    auto const row = static_cast<unsigned>(top);
    frames.push_back({static_cast<unsigned>(left), row, row, std::exchange(widest, 0)});
    return true;
}

void Canvas::leave() {
    Frame const inner = frames.back();
    frames.pop_back();
    widest = std::max(widest, inner.widestAround);
    bool const wasTouched = inner.end > inner.top;
    if (wasTouched && !frames.empty()) {
        frames.back().end = std::max(frames.back().end, inner.end);
    }
}

unsigned Canvas::getWidth() const {
    unsigned width = 0;
    for (Row const& row : rows) width = std::max(width, row.count);
    return width;
}

unsigned Canvas::getOrStoreAttribute(Attributes const& attributes) {
    // Neighbours mostly look alike.
    if (attributeTable.data[lastIndex] == attributes) return lastIndex;
    auto const* const found = std::find(attributeTable.begin(), attributeTable.end(), attributes);
    auto const index = static_cast<unsigned>(found - attributeTable.begin());
    if (index == attributeTable.count) attributeTable.add(attributes);
    lastIndex = index;
    return index;
}

int Canvas::resolveColumn(unsigned x) const {
    return static_cast<int>(x == AppendPosition ? getWidth() : x);
}

int Canvas::resolveRow(unsigned y) const {
    return static_cast<int>(y == AppendPosition ? endOfRows() : y);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the text is a parameter by value
bool Canvas::draw(String text, unsigned x, unsigned y, Attributes const& attributes) {
    return drawClipped(text.view(), resolveColumn(x), resolveRow(y), attributes);
}

bool Canvas::draw(Canvas const& source, unsigned x, unsigned y) {
    return drawClipped(source, resolveColumn(x), resolveRow(y));
}

bool Canvas::drawClipped(std::string_view text, int x, int y, Attributes const& attributes) {
    return drawDown(text, x, y, 1, attributes);
}

bool Canvas::drawDown(std::string_view text, int x, int y, int height,
                      Attributes const& attributes) {
    std::string_view shown = text.substr(0, text.find('\0'));
    std::size_t const clipped = x < 0 ? static_cast<std::size_t>(-std::int64_t{x}) : 0;
    std::int64_t const end = saturate(std::int64_t{y} + height);
    bool const allClipped = end <= std::max(y, 0) || (clipped > 0 && clipped >= shown.length());
    if (text.empty() || allClipped) return false;
    // A text that begins with a NUL creates the rows and writes nothing.
    if (!shown.empty()) shown.remove_prefix(clipped);
    unsigned const column = originColumn() + static_cast<unsigned>(std::max(x, 0));
    std::uint64_t const top = std::uint64_t{originRow()} + static_cast<unsigned>(std::max(y, 0));
    std::uint64_t const last = originRow() + static_cast<std::uint64_t>(end) - 1;
    std::uint64_t const drawn = (last + 1 - top) * shown.length();
    unsigned const filled = shown.empty() ? 0 : column;
    if (budget != nullptr && !mayDrawAt(top, last, filled, drawn)) return false;
    std::uint64_t const formerlyMade = cellsMade;
    unsigned const index = getOrStoreAttribute(attributes);
    auto const drawIn = [&](Row& row, unsigned times) {
        if (shown.empty()) return;
        std::size_t const rowEnd = column + shown.length();
        if (rowEnd > row.count) lengthen(row, rowEnd, column, times);
        setCells(row.data + column, shown, index);
    };
    if (top == last) {
        drawIn(touchRow(top), 1);
    } else if (budget == nullptr) {
        for (std::uint64_t row = top; row <= last; ++row) drawIn(touchRow(row), 1);
    } else {
        touchRow(last);
        visitRows(top, last + 1, drawIn);
    }
    if (budget != nullptr) budget->take(cellsMade - formerlyMade + drawn);
    return true;
}

/// Calls `lay` for the rows that rows of `source` lie on: with what such a row becomes, with the
/// row as it is, which may be the same object, and with how they lie. Returns whether there is a
/// cell that is laid.
template <class Lay>
bool Canvas::visitComposed(Canvas const& source, int x, int y, Lay const& lay) {
    auto const clippedColumns = static_cast<unsigned>(x < 0 ? -std::int64_t{x} : 0);
    std::uint64_t skippedRows = static_cast<std::uint64_t>(y < 0 ? -std::int64_t{y} : 0);
    unsigned const column = originColumn() + static_cast<unsigned>(std::max(x, 0));
    std::uint64_t const top = std::uint64_t{originRow()} + static_cast<unsigned>(std::max(y, 0));
    if (source.endOfRows() <= skippedRows) return false;
    std::uint64_t const last = top + (source.endOfRows() - skippedRows) - 1;
    if (budget != nullptr && !mayDrawAt(top, last, column, 0)) return false;
    std::uint64_t const formerlyMade = cellsMade;
    if (!isTouched(last)) touchNewRow(last);
    unsigned const first = cutAt(top);
    Entries cut(first, cutAt(last + 1));
    bool const isCut = !runs.empty() || !source.runs.empty();
    unsigned target = first;
    // Of the target's entry, rows that nothing has been laid on.
    unsigned bare = rowsAt(target);
    bool drawn = false;
    for (unsigned r = 0; r < source.rows.count; ++r) {
        std::uint64_t const all = source.rowsAt(r);
        std::uint64_t const skipped = std::min(all, skippedRows);
        skippedRows -= skipped;
        unsigned const width = source.rows[r].count;
        unsigned const length = width - std::min(clippedColumns, width);
        drawn = drawn || (length > 0 && skipped < all);
        for (auto more = static_cast<unsigned>(all - skipped); more > 0;) {
            if (bare == 0) bare = rowsAt(++target);
            unsigned const times = std::min(more, bare);
            more -= times;
            bare -= times;
            Row& below = rows.data[target];
            Overlap const overlap{r, more == 0, times, clippedColumns, length, column};
            if (!isCut) {
                lay(below, below, overlap);
                continue;
            }
            Row row;
            if (bare > 0) {
                lay(row, below, overlap);
            } else {
                // The last of the rows that are alike need not be a copy.
                row = std::move(below);
                lay(row, row, overlap);
            }
            cut.add(std::move(row), times);
        }
    }
    if (isCut) replaceEntries(cut);
    if (budget != nullptr) budget->take(cellsMade - formerlyMade);
    return drawn;
}

void Canvas::Entries::add(Row&& row, unsigned times) {
    if (times > 1) runs.push_back({first + static_cast<unsigned>(rows.size()), times - 1});
    rows.push_back(std::move(row));
}

/// Puts the entries in place of those that stand for the same rows.
void Canvas::replaceEntries(Entries& entries) {
    ZRVector<Row> behind;
    rows.moveTailTo(entries.end, behind);
    ZRVector<Row> replaced;
    rows.moveTailTo(entries.first, replaced);
    for (Row& row : entries.rows) rows.add(std::move(row));
    unsigned const end = rows.count;
    for (unsigned i = 0; i < behind.count; ++i) rows.add(std::move(behind.data[i]));

    std::vector<Run> const former = std::exchange(runs, std::move(entries.runs));
    auto const isBefore = [&](Run const& run) { return run.index < entries.first; };
    auto const split = std::find_if_not(former.begin(), former.end(), isBefore);
    runs.insert(runs.begin(), former.begin(), split);
    for (Run const& run : former) {
        if (run.index >= entries.end) runs.push_back({run.index - entries.end + end, run.more});
    }
    repeatedRows += entries.end - entries.first;
    repeatedRows -= end - entries.first;
}

bool Canvas::drawClipped(Canvas const& source, int x, int y) {
    unsigned sourceIndex = 0;
    unsigned mappedIndex = 0;
    return visitComposed(source, x, y, [&](Row& row, Row const& below, Overlap const& overlap) {
        unsigned const column = overlap.column;
        if (&row != &below) row = below;
        lengthen(row, std::uint64_t{column} + overlap.length, column, overlap.rows);
        for (unsigned i = 0; i < overlap.length; ++i) {
            Byte const cell = source.rows[overlap.index][overlap.first + i];
            if (cell.attributeIndex != sourceIndex) {
                sourceIndex = cell.attributeIndex;
                mappedIndex = getOrStoreAttribute(source.attributeTable[sourceIndex]);
            }
            row.data[column + i] = Byte::make(cell.character, mappedIndex);
        }
    });
}

void Canvas::compose(Canvas& inner, int x, int y) {
    if (budget == nullptr) {
        drawClipped(inner, x, y);
        return;
    }
    visitComposed(inner, x, y, [&](Row& row, Row const& below, Overlap const& overlap) {
        Row& source = inner.rows.data[overlap.index];
        unsigned const length = overlap.length;
        if (below.count <= length && overlap.isLast) {
            row = takenRow(source, below, overlap);
            return;
        }
        if (&row != &below) row = below;
        lengthen(row, std::uint64_t{overlap.column} + length, overlap.column, overlap.rows);
        if (length > 0) std::copy_n(source.data + overlap.first, length, row.data + overlap.column);
    });
}

/// Lays a row over a shorter one by taking it and laying the shorter one under it.
Canvas::Row Canvas::takenRow(Row& source, Row const& below, Overlap const& overlap) {
    Row taken;
    source.moveTailTo(overlap.first, taken);
    taken.extendFront(overlap.column);
    unsigned const kept = std::min(below.count, overlap.column);
    if (kept > 0) std::copy_n(below.data, kept, taken.data);
    std::fill(taken.data + kept, taken.data + overlap.column, Byte::make(' ', 0));
    widest = std::max(widest, taken.count);
    cellsMade += std::uint64_t{overlap.column - kept} * overlap.rows;
    return taken;
}

void Canvas::exchangeAttributes(Canvas& inner) {
    if (budget == nullptr) return;
    std::swap(attributeTable, inner.attributeTable);
    std::swap(lastIndex, inner.lastIndex);
}

}  // namespace CLI::XML

#include "xml/render/Canvas.h"

#include <algorithm>
#include <limits>
#include <new>

#include "base/saturate.h"
#include "xml/render/cellBlocks.h"

namespace CLI::XML {

namespace {

constexpr std::int64_t s_largestOrigin = std::numeric_limits<std::int32_t>::max();

}  // namespace

/// Makes the row at least `width` cells long; the cells from its former end up to `filled` become
/// fillers, those behind them are for the caller to set.
void Canvas::lengthen(ZRVector<Byte>& row, std::uint64_t width, unsigned filled) {
    if (width > std::numeric_limits<unsigned>::max()) throw std::bad_array_new_length();
    unsigned const formerWidth = row.count;
    auto const end = static_cast<unsigned>(width);
    if (end <= formerWidth) return;
    // As many slots as cells added one by one would take.
    row.enlarge(end - 1);
    row.count = end;
    unsigned const filledEnd = std::min(filled, end);
    if (filledEnd <= formerWidth) return;
    std::fill(row.data + formerWidth, row.data + filledEnd, Byte::make(' ', 0));
    cellsMade += filledEnd - formerWidth;
}

void Canvas::bringIntoUse(unsigned row) {
    unsigned const formerCount = rows.count;
    rows[row];
    cellsMade += rows.count - formerCount;
    for (unsigned i = formerCount; i <= row && !spareRows.empty(); ++i) {
        rows.data[i] = std::move(spareRows.back());
        spareRows.pop_back();
    }
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
bool Canvas::mayDrawAt(std::uint64_t top, std::uint64_t last, unsigned column, std::size_t drawn) {
    // Not more than all rows down to the last and the fillers in all of them.
    std::uint64_t const most =
        (last + 1 - std::min(last, std::uint64_t{movedRows})) * (std::uint64_t{column} + 1) + drawn;
    if (most <= budget->remaining()) return true;
    std::uint64_t cost = costOfRow(last) + drawn;
    for (std::uint64_t y = top; y <= last; ++y) {
        bool const exists = y >= movedRows && y - movedRows < rows.count;
        unsigned const width = exists ? rows.data[y - movedRows].count : 0;
        cost += column - std::min(column, std::max(width, originColumn()));
    }
    return budget->suffices(cost);
}

std::uint64_t Canvas::costOfRow(std::uint64_t y) {
    if (isTouched(y)) return 0;
    std::uint64_t const existing = std::uint64_t{movedRows} + rows.count;
    std::uint64_t cost = y < existing ? 0 : y + 1 - existing;
    visitUntouched(y, [&](Frame const& frame, std::uint64_t first, std::uint64_t end) {
        for (; first < std::min(end, existing); ++first) {
            cost += frame.left - std::min(frame.left, rows.data[first - movedRows].count);
        }
        if (first < end) cost += (end - first) * frame.left;
    });
    return cost;
}

ZRVector<Canvas::Byte>& Canvas::touchNewRow(std::uint64_t y) {
    if (y < movedRows) throw std::bad_array_new_length();
    auto const row = static_cast<unsigned>(y);
    if (row - movedRows >= rows.count) bringIntoUse(row - movedRows);
    visitUntouched(y, [this](Frame& frame, std::uint64_t first, std::uint64_t end) {
        for (std::uint64_t i = first; i < end; ++i) {
            lengthen(rows.data[i - movedRows], frame.left, frame.left);
        }
        frame.end = std::max(frame.end, static_cast<unsigned>(end));
    });
    return rows.data[row - movedRows];
}

bool Canvas::mayDraw(std::int64_t cells, std::int64_t times) const {
    if (budget == nullptr || cells <= 0 || times <= 0) return true;
    bool const isBeyondAll = cells > std::numeric_limits<std::int64_t>::max() / times;
    return budget->suffices(isBeyondAll ? std::numeric_limits<std::uint64_t>::max()
                                        : static_cast<std::uint64_t>(cells * times));
}

bool Canvas::enter(int x, int y) {
    std::int64_t const left = std::int64_t{originColumn()} + x;
    std::int64_t const top = std::int64_t{originRow()} + y;
    if (x < 0 || y < 0 || std::max(left, top) > s_largestOrigin) return false;
    std::int64_t const end = std::int64_t{movedRows} + rows.count;
    bool const isBehindLastRow =
        top + 1 == end && top >= movedRows && rows.data[rows.count - 1].count <= left;
    if (top < end && !isBehindLastRow) return false;
    auto const row = static_cast<unsigned>(top);
    frames.push_back({static_cast<unsigned>(left), row, row});
    return true;
}

void Canvas::leave() {
    Frame const inner = frames.back();
    frames.pop_back();
    bool const wasTouched = inner.end > inner.top;
    if (wasTouched && !frames.empty()) {
        frames.back().end = std::max(frames.back().end, inner.end);
    }
}

unsigned Canvas::getWidth() const {
    unsigned width = 0;
    for (ZRVector<Byte> const& row : rows) width = std::max(width, row.count);
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
    return static_cast<int>(y == AppendPosition ? rows.count : y);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the text is a parameter by value
bool Canvas::draw(String text, unsigned x, unsigned y, Attributes const& attributes) {
    return drawClipped(text.view(), resolveColumn(x), resolveRow(y), attributes);
}

bool Canvas::draw(Canvas const& source, unsigned x, unsigned y) {
    return drawClipped(source, resolveColumn(x), resolveRow(y));
}

bool Canvas::drawClipped(std::string_view text, int x, int y, Attributes const& attributes) {
    std::string_view shown = text.substr(0, text.find('\0'));
    std::size_t const clipped = x < 0 ? static_cast<std::size_t>(-std::int64_t{x}) : 0;
    bool const allClipped = y < 0 || (clipped > 0 && clipped >= shown.length());
    if (text.empty() || allClipped) return false;
    // A text that begins with a NUL creates the row and writes nothing.
    if (!shown.empty()) shown.remove_prefix(clipped);
    unsigned const column = originColumn() + static_cast<unsigned>(std::max(x, 0));
    std::uint64_t const rowNumber = std::uint64_t{originRow()} + static_cast<unsigned>(y);
    unsigned const filled = shown.empty() ? 0 : column;
    if (budget != nullptr && !mayDrawAt(rowNumber, rowNumber, filled, shown.length())) return false;
    std::uint64_t const formerlyMade = cellsMade;
    unsigned const index = getOrStoreAttribute(attributes);
    ZRVector<Byte>& row = touchRow(rowNumber);
    if (!shown.empty()) {
        std::size_t const end = column + shown.length();
        if (end > row.count) lengthen(row, end, column);
        setCells(row.data + column, shown, index);
    }
    if (budget != nullptr) budget->take(cellsMade - formerlyMade + shown.length());
    return true;
}

bool Canvas::drawClipped(Canvas const& source, int x, int y) {
    auto const clippedColumns = static_cast<unsigned>(x < 0 ? -std::int64_t{x} : 0);
    auto const clippedRows = static_cast<unsigned>(y < 0 ? -std::int64_t{y} : 0);
    unsigned const column = originColumn() + static_cast<unsigned>(std::max(x, 0));
    std::uint64_t const top = std::uint64_t{originRow()} + static_cast<unsigned>(std::max(y, 0));
    if (source.rows.count <= clippedRows) return false;
    std::uint64_t const last = top + (source.rows.count - clippedRows) - 1;
    if (budget != nullptr && !mayDrawAt(top, last, column, 0)) return false;
    std::uint64_t const formerlyMade = cellsMade;
    unsigned sourceIndex = 0;
    unsigned mappedIndex = 0;
    bool drawn = false;
    for (unsigned r = clippedRows; r < source.rows.count; ++r) {
        ZRVector<Byte> const& sourceRow = source.rows[r];
        ZRVector<Byte>& row = touchRow(top + (r - clippedRows));
        unsigned const length = sourceRow.count - std::min(clippedColumns, sourceRow.count);
        lengthen(row, std::uint64_t{column} + length, column);
        for (unsigned i = 0; i < length; ++i) {
            Byte const cell = sourceRow[clippedColumns + i];
            if (cell.attributeIndex != sourceIndex) {
                sourceIndex = cell.attributeIndex;
                mappedIndex = getOrStoreAttribute(source.attributeTable[sourceIndex]);
            }
            row.data[column + i] = Byte::make(cell.character, mappedIndex);
        }
        drawn = drawn || length > 0;
    }
    if (budget != nullptr) budget->take(cellsMade - formerlyMade);
    return drawn;
}

template <class Sink>
void Canvas::writeRow(ZRVector<Byte> const& row, Sink const& sink) const {
    char piece[s_cellsInBlock * 16];
    std::size_t filled = 0;
    auto const flush = [&] {
        if (filled > 0) sink(std::string_view(piece, filled));
        filled = 0;
    };
    auto const writeEscapes = [&](std::string_view sequences) {
        if (budget != nullptr) {
            if (!budget->suffices(sequences.length())) return;
            budget->take(sequences.length());
        }
        sink(sequences);
    };
    unsigned current = 0;
    for (Byte const* cell = row.begin(); cell != row.end();) {
        if (cell->attributeIndex != current) {
            flush();
            Attributes const& previous = attributeTable[current];
            current = cell->attributeIndex;
            writeEscapes(attributeTable[current].generateFormattingFrom(previous).view());
        }
        if (sizeof piece - filled < s_cellsInBlock) flush();
        auto const left = std::min(static_cast<std::size_t>(row.end() - cell), s_cellsInBlock);
        Byte const* const end = cell + left;
        if (left == s_cellsInBlock && readBlock(cell, current, piece + filled)) {
            filled += left;
            cell = end;
        }
        for (; cell != end && cell->attributeIndex == current; ++cell) {
            piece[filled] = static_cast<char>(cell->character);
            filled += cell->character != 0 ? 1 : 0;
        }
    }
    flush();
    if (current != 0) writeEscapes("\x1b[0m");
}

String Canvas::dump(String const& lineSeparator) const {
    // Measured first, so that the text is written into one buffer.
    std::int64_t length = std::int64_t{lineSeparator.length()} * rows.count;
    for (ZRVector<Byte> const& row : rows) {
        writeRow(row, [&length](std::string_view piece) {
            length += static_cast<std::int64_t>(piece.length());
        });
    }
    String result;
    if (!result.reserve(saturate(length))) return result;
    for (ZRVector<Byte> const& row : rows) {
        writeRow(row, [&result](std::string_view piece) {
            result.concat(piece.data(), static_cast<int>(piece.length()));
        });
        result += lineSeparator;
    }
    return result;
}

bool Canvas::moveRowsTo(String& text, unsigned y) {
    unsigned const moved = std::min(y - std::min(y, movedRows), rows.count);
    if (moved == 0) return true;
    bool isComplete = true;
    auto const append = [&](std::string_view piece) {
        isComplete = text.appendGrowing(piece) && isComplete;
    };
    for (unsigned i = 0; i < moved; ++i) {
        ZRVector<Byte>& row = rows.data[i];
        writeRow(row, append);
        append("\n");
        row.count = 0;
        spareRows.push_back(std::move(row));
    }
    for (unsigned i = moved; i < rows.count; ++i) rows.data[i - moved] = std::move(rows.data[i]);
    rows.count -= moved;
    movedRows += moved;
    return isComplete;
}

}  // namespace CLI::XML

// The rows of a page: their cells, and their text.

#include <algorithm>
#include <utility>

#include "base/append.h"
#include "base/hugePages.h"
#include "base/saturate.h"
#include "xml/render/Grid.h"

namespace CLI::XML {

namespace {

/// Cells that take as much memory as a row without any: there may not be more rows than that.
constexpr std::int64_t s_cellsForRow = 16;

/// So many cells of a row may be provided before they are paid for.
constexpr std::int64_t s_mostAhead = 4096;

/// Rows are moved to the text when there are that many.
constexpr std::int64_t s_rowsAtOnce = 32;

}  // namespace

void Grid::provide(Row& row, std::size_t cells) {
    std::size_t const room = std::max(cells + cells / 8, std::size_t{row.capacity} * 2);
    auto* const wider = static_cast<char*>(memory.allocate(room, 1));
    preferHugePages(wider, room);
    std::copy_n(row.bytes, row.length, wider);
    row.bytes = wider;
    row.capacity = static_cast<std::uint32_t>(std::min<std::size_t>(room, UINT32_MAX));
}

/// Sees to it that row `y` of the page, which is to be drawn up to column `end`, exists with all
/// rows above it.
void Grid::bringIntoUse(std::int64_t y, std::int64_t end) {
    std::int64_t const added = y + 1 - endOfRows();
    if (added <= 0 || !budget.mayHold((y + 1) * s_cellsForRow) || !budget.pay(added)) return;
    if (movedAway > rows.count / 2 && rows.count + added > rows.capacity) {
        std::rotate(rows.data, rows.data + movedAway, rows.data + rows.count);
        rows.count -= std::exchange(movedAway, 0);
    }
    Row& last = rows[rows.count + static_cast<unsigned>(added) - 1];
    if (end > last.capacity && end <= s_mostAhead) provide(last, static_cast<std::size_t>(end));
}

/// Sets cells to a text that is repeated from column `start` on.
void Grid::set(std::string_view pattern, std::int64_t start, Span where, std::int64_t y,
               Attributes const& attributes) {
    Row& target = row(y);
    auto const begin = static_cast<std::size_t>(where.begin);
    auto const end = static_cast<std::size_t>(where.end);
    if (end > target.capacity) provide(target, end);
    target.length = std::max(target.length, static_cast<std::uint32_t>(end));
    if (attributes != Attributes() || target.lookCount() > begin) {
        setLooks(target, begin, end, attributes);
    }
    char* const cells = target.bytes;
    if (pattern.length() == 1) {
        // At once, since the sides of a box are one cell a row.
        cells[begin] = pattern.front();
        if (end - begin > 1) std::fill(cells + begin, cells + end, pattern.front());
        return;
    }
    auto const skipped = static_cast<std::size_t>(where.begin - start);
    std::size_t offset = skipped < pattern.length() ? skipped : skipped % pattern.length();
    for (std::size_t next = begin; next < end;) {
        std::size_t const part = std::min(pattern.length() - offset, end - next);
        std::copy_n(pattern.data() + offset, part, cells + next);
        next += part;
        offset = 0;
    }
}

void Grid::setLooks(Row& target, std::size_t begin, std::size_t end, Attributes attributes) {
    if (!target.looks) target.looks = std::make_unique<std::vector<Attributes>>();
    std::vector<Attributes>& looks = *target.looks;
    if (end > looks.capacity()) looks.reserve(end + end / 8);
    if (end > looks.size()) looks.resize(end);
    std::fill(looks.data() + begin, looks.data() + end, attributes);
}

void Grid::moveRowsTo(String& text) {
    // Where they are many, the text is not copied again and again while they are added to it.
    std::int64_t length = text.length();
    for (std::int64_t y = firstRow; y < endOfRows(); ++y) length += row(y).length + 1;
    text.reserve(saturate(length));
    moveRows(text, endOfRows());
}

void Grid::moveRowsTo(String& text, std::int64_t end) {
    // Rows that are not in use in a frame get fillers there once something is drawn below.
    if (frames.size() > 1) end = std::min(end, frames.back().end);
    end = std::min(end, endOfRows());
    if (end - firstRow >= s_rowsAtOnce) moveRows(text, end);
}

void Grid::moveRows(String& text, std::int64_t end) {
    for (; firstRow < end; ++firstRow, ++movedAway) {
        Row& shown = rows.data[movedAway];
        writeRow(shown, text);
        shown.length = 0;
        if (shown.looks) shown.looks->clear();
    }
}

void Grid::writeRow(Row const& shown, String& text) {
    std::string_view const bytes(shown.bytes, shown.length);
    std::size_t const lookCount = shown.lookCount();
    Attributes const* const looks = lookCount > 0 ? shown.looks->data() : nullptr;
    Attributes current;
    std::size_t begin = 0;
    for (std::size_t end = 0;;) {
        while (end < lookCount && looks[end] == current) ++end;
        // Behind the looks is one by default.
        Attributes const look = end < lookCount ? looks[end] : Attributes();
        if (look == current) break;
        append(text, bytes.substr(begin, end - begin));
        begin = end;
        String const escapes = look.generateFormattingFrom(current);
        if (budget.pay(escapes.length())) append(text, escapes.view());
        current = look;
    }
    append(text, bytes.substr(begin), "\n");
}

}  // namespace CLI::XML

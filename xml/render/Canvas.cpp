#include "xml/render/Canvas.h"

#include <algorithm>
#include <cstring>

#include "base/saturate.h"

namespace CLI::XML {

namespace {

/// Makes the row at least `width` cells long; the cells from its former end up to `filled` become
/// fillers, those behind them are for the caller to set.
void lengthen(ZRVector<Canvas::Byte>& row, unsigned width, unsigned filled) {
    unsigned const formerWidth = row.count;
    if (width > formerWidth) {
        // As many slots as cells added one by one would take.
        row.enlarge(width - 1);
        row[width - 1];
    }
    for (unsigned i = formerWidth; i < std::min(filled, width); ++i)
        row.data[i] = Canvas::Byte::make(' ', 0);
}

}  // namespace

unsigned Canvas::getWidth() const {
    unsigned width = 0;
    for (ZRVector<Byte> const& row : rows) width = std::max(width, row.count);
    return width;
}

unsigned Canvas::getOrStoreAttribute(Attributes const& attributes) {
    auto const* const found = std::find(attributeTable.begin(), attributeTable.end(), attributes);
    auto const index = static_cast<unsigned>(found - attributeTable.begin());
    if (index == attributeTable.count) attributeTable.add(attributes);
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
    return drawClipped(text, resolveColumn(x), resolveRow(y), attributes);
}

bool Canvas::draw(Canvas const& source, unsigned x, unsigned y) {
    return drawClipped(source, resolveColumn(x), resolveRow(y));
}

bool Canvas::drawClipped(String const& text, int x, int y, Attributes const& attributes) {
    auto const length = static_cast<unsigned>(std::strlen(text.c_str()));
    auto const clipped = static_cast<unsigned>(x < 0 ? -std::int64_t{x} : 0);
    bool const allClipped = y < 0 || (clipped > 0 && clipped >= length);
    if (text.length() == 0 || allClipped) return false;
    unsigned const index = getOrStoreAttribute(attributes);
    ZRVector<Byte>& row = rows[static_cast<unsigned>(y)];
    // A text that begins with a NUL creates the row and writes nothing.
    if (length == 0) return true;
    char const* const bytes = text.c_str() + clipped;
    unsigned const column = static_cast<unsigned>(std::max(x, 0));
    unsigned const end = column + (length - clipped);
    lengthen(row, end, column);
    for (unsigned i = column; i < end; ++i) {
        row.data[i] = Byte::make(static_cast<unsigned char>(bytes[i - column]), index);
    }
    return true;
}

bool Canvas::drawClipped(Canvas const& source, int x, int y) {
    auto const clippedColumns = static_cast<unsigned>(x < 0 ? -std::int64_t{x} : 0);
    auto const clippedRows = static_cast<unsigned>(y < 0 ? -std::int64_t{y} : 0);
    auto const column = static_cast<unsigned>(std::max(x, 0));
    auto const top = static_cast<unsigned>(std::max(y, 0));
    unsigned sourceIndex = 0;
    unsigned mappedIndex = 0;
    bool drawn = false;
    for (unsigned r = clippedRows; r < source.rows.count; ++r) {
        ZRVector<Byte> const& sourceRow = source.rows[r];
        ZRVector<Byte>& row = rows[top + (r - clippedRows)];
        unsigned const length = sourceRow.count - std::min(clippedColumns, sourceRow.count);
        lengthen(row, column + length, column);
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
    return drawn;
}

template <class Sink>
void Canvas::writeRow(ZRVector<Byte> const& row, Sink const& sink) const {
    unsigned current = 0;
    for (Byte const cell : row) {
        if (cell.attributeIndex != current) {
            Attributes const& previous = attributeTable[current];
            current = cell.attributeIndex;
            String const escape = attributeTable[current].generateFormattingFrom(previous);
            sink(escape.c_str(), escape.length());
        }
        char const character = static_cast<char>(cell.character);
        if (character != 0) sink(&character, 1);
    }
    if (current != 0) sink("\x1b[0m", 4);
}

String Canvas::dump(String const& lineSeparator) const {
    // Measured first, so that the text is written into one buffer.
    std::int64_t length = std::int64_t{lineSeparator.length()} * rows.count;
    for (ZRVector<Byte> const& row : rows) {
        writeRow(row, [&length](char const*, int n) { length += n; });
    }
    String result;
    if (!result.reserve(saturate(length))) return result;
    for (ZRVector<Byte> const& row : rows) {
        writeRow(row, [&result](char const* piece, int n) { result.concat(piece, n); });
        result += lineSeparator;
    }
    return result;
}

}  // namespace CLI::XML

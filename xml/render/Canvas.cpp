#include "xml/render/Canvas.h"

#include <algorithm>
#include <limits>
#include <new>
#include <string>

#include "base/append.h"
#include "xml/render/keywords.h"

namespace CLI::XML {

namespace {

using Byte = Canvas::Byte;
using Row = ZRVector<Byte>;

// SGR sequences as of ECMA-48, 8.3.117.
constexpr char const* s_reset = "\x1b[0m";
/// By the bits of the flags.
constexpr std::string_view s_flagParameters = "1234578";

int columnOf(Canvas const& canvas, unsigned x) {
    return static_cast<int>(x == Canvas::AppendPosition ? canvas.getWidth() : x);
}

int rowOf(Canvas const& canvas, unsigned y) {
    return static_cast<int>(y == Canvas::AppendPosition ? canvas.rows.count : y);
}

/// Makes the row at least `width` cells long, with fillers.
void lengthen(Row& row, std::uint64_t width) {
    if (width > std::numeric_limits<unsigned>::max()) throw std::bad_array_new_length();
    auto const end = static_cast<unsigned>(width);
    unsigned const formerEnd = row.count;
    if (end <= formerEnd) return;
    // As many slots as cells added one by one would take.
    row.enlarge(end - 1);
    row.count = end;
    std::fill(row.data + formerEnd, row.data + end, Byte::make(' ', 0));
}

}  // namespace

std::uint8_t Canvas::Attributes::color(String const& name) {
    for (ColorName const& candidate : s_colorNames) {
        if (name.view() == candidate.name) return candidate.number;
    }
    return NoColor;
}

String Canvas::Attributes::generateFormattingFrom(Attributes const& previous) const {
    if (*this == previous) return {};
    std::string escapes = s_reset;
    for (unsigned bit = 0; bit < s_flagParameters.length(); ++bit) {
        if ((flags >> bit & 1) != 0) escapes.append("\x1b[") += {s_flagParameters[bit], 'm'};
    }
    auto const addColor = [&escapes](char const* prefix, std::uint8_t color) {
        if (color != NoColor) escapes.append(prefix).append(std::to_string(color)).append("m");
    };
    addColor("\x1b[3", foreground);
    addColor("\x1b[4", background);
    return String(escapes.data(), 0, static_cast<int>(escapes.length()));
}

unsigned Canvas::getWidth() const {
    unsigned width = 0;
    for (Row const& row : rows) width = std::max(width, row.count);
    return width;
}

unsigned Canvas::getOrStoreAttribute(Attributes const& attributes) {
    auto const* const found = std::find(attributeTable.begin(), attributeTable.end(), attributes);
    auto const index = static_cast<unsigned>(found - attributeTable.begin());
    if (index == attributeTable.count) attributeTable.add(attributes);
    return index;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the text is a parameter by value
bool Canvas::draw(String text, unsigned x, unsigned y, Attributes const& attributes) {
    return drawClipped(text.view(), columnOf(*this, x), rowOf(*this, y), attributes);
}

bool Canvas::draw(Canvas const& source, unsigned x, unsigned y) {
    return drawClipped(source, columnOf(*this, x), rowOf(*this, y));
}

bool Canvas::drawClipped(std::string_view text, int x, int y, Attributes const& attributes) {
    std::string_view shown = text.substr(0, text.find('\0'));
    std::size_t const clipped = x < 0 ? static_cast<std::size_t>(-std::int64_t{x}) : 0;
    if (text.empty() || y < 0 || (clipped > 0 && clipped >= shown.length())) return false;
    unsigned const index = getOrStoreAttribute(attributes);
    Row& row = rows[static_cast<unsigned>(y)];
    // A text that begins with a NUL creates the row and writes nothing.
    if (shown.empty()) return true;
    shown.remove_prefix(clipped);
    auto const column = static_cast<std::size_t>(std::max(x, 0));
    lengthen(row, column + shown.length());
    Byte* cell = row.data + column;
    for (char const c : shown) *cell++ = Byte::make(static_cast<unsigned char>(c), index);
    return true;
}

bool Canvas::drawClipped(Canvas const& source, int x, int y) {
    unsigned sourceIndex = 0;
    unsigned mappedIndex = 0;
    bool drawn = false;
    auto const clipped = static_cast<unsigned>(x < 0 ? -std::int64_t{x} : 0);
    auto const column = static_cast<unsigned>(std::max(x, 0));
    auto const firstRow = static_cast<unsigned>(y < 0 ? -std::int64_t{y} : 0);
    for (unsigned r = firstRow; r < source.rows.count; ++r) {
        Row const& shown = source.rows[r];
        Row& row = rows[static_cast<unsigned>(std::int64_t{y} + r)];
        unsigned const length = shown.count - std::min(clipped, shown.count);
        lengthen(row, std::uint64_t{column} + length);
        for (unsigned i = 0; i < length; ++i) {
            Byte const cell = shown[clipped + i];
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

String Canvas::dump(String const& lineSeparator) const {
    String result;
    for (Row const& row : rows) {
        unsigned current = 0;
        for (Byte const& cell : row) {
            if (cell.attributeIndex != current) {
                Attributes const& previous = attributeTable[current];
                current = cell.attributeIndex;
                append(result, attributeTable[current].generateFormattingFrom(previous).view());
            }
            auto const shown = static_cast<char>(cell.character);
            if (shown != '\0') append(result, std::string_view(&shown, 1));
        }
        if (current != 0) append(result, s_reset);
        append(result, lineSeparator.view());
    }
    return result;
}

}  // namespace CLI::XML

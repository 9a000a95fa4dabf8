#include "web/css/lengths.h"

#include <algorithm>
#include <cmath>

#include "web/css/keywords.h"

namespace galley::web {

namespace {

using Kind = Token::Kind;

/// Longer than any page; sums of several still are whole numbers.
constexpr double s_longest = 1'000'000;

/// Pixels of a unit, as a fraction: so many of them are whole numbers.
struct Unit {
    std::string_view name;
    int numerator;
    int denominator;
};

constexpr Unit s_units[] = {
    {"px", 1, 1}, {"ch", 8, 1}, {"em", 16, 1}, {"rem", 16, 1}, {"lh", 16, 1}, {"pt", 4, 3},
};

constexpr Keyword<Length> s_automatic[] = {{"auto", Length::automatic()}};
constexpr Keyword<Length> s_none[] = {{"none", Length::automatic()}};

constexpr Keyword<Thickness> s_thicknesses[] = {
    {"thin", Thickness::thin},
    {"medium", Thickness::thin},
    {"thick", Thickness::thick},
};

/// Pixels of borders that are thick.
constexpr double s_thick = 5;

double cellSize(Axis axis) { return axis == Axis::across ? 8 : 16; }

std::int32_t toWhole(double value) {
    return static_cast<std::int32_t>(std::clamp(value, -s_longest, s_longest));
}

/// Content has to fit, so it has the cells that are there as a whole.
std::int32_t wholeCells(double pixels, Axis axis) {
    return toWhole(std::floor(pixels / cellSize(axis)));
}

using Rounding = std::int32_t (*)(double pixels, Axis axis);

/// A length or a percentage.
bool readLength(ValueReader& reader, Axis axis, Rounding round, Length& length) {
    if (reader.atEnd()) return false;
    Token const& token = reader.take();
    if (token.kind == Kind::percentage) {
        length = {Length::Kind::percent, toWhole(std::round(token.number * 1000))};
        return true;
    }
    std::optional<double> const pixels = toPixels(token, axis);
    if (pixels) length = {Length::Kind::cells, round(*pixels, axis)};
    return pixels.has_value();
}

/// The same, where there is none below zero.
bool readPositive(ValueReader& reader, Axis axis, Rounding round, Length& length) {
    bool const isNegative = !reader.atEnd() && reader.peek().number < 0;
    return !isNegative && readLength(reader, axis, round, length);
}

std::optional<double> readPositivePixels(ValueReader& reader, Axis axis) {
    if (reader.atEnd() || reader.peek().number < 0) return std::nullopt;
    return toPixels(reader.take(), axis);
}

}  // namespace

bool isUnit(std::string_view name) { return findWord(s_units, name) != nullptr; }

std::optional<double> toPixels(Token const& token, Axis axis) {
    if (token.kind == Kind::number) return token.number * cellSize(axis);
    if (token.kind != Kind::dimension) return std::nullopt;
    Unit const* const unit = findWord(s_units, token.text);
    if (unit == nullptr) return std::nullopt;
    return token.number * unit->numerator / unit->denominator;
}

std::int32_t nearestCells(double pixels, Axis axis) {
    return toWhole(std::floor(pixels / cellSize(axis) + 0.5));
}

template <Axis axis>
bool readMargin(ValueReader& reader, Length& margin) {
    if (readKeyword<s_automatic>(reader, margin)) return true;
    if (reader.atEnd()) return false;
    Token const& token = reader.peek();
    if (!readLength(reader, axis, nearestCells, margin)) return false;
    if (token.number < 0) {
        reader.warnAbout(token);
        margin = {};
    }
    return true;
}

template bool readMargin<Axis::across>(ValueReader& reader, Length& margin);
template bool readMargin<Axis::down>(ValueReader& reader, Length& margin);

template <Axis axis>
bool readPadding(ValueReader& reader, Length& padding) {
    return readPositive(reader, axis, nearestCells, padding);
}

template bool readPadding<Axis::across>(ValueReader& reader, Length& padding);
template bool readPadding<Axis::down>(ValueReader& reader, Length& padding);

bool readWidth(ValueReader& reader, Length& width) {
    return readKeyword<s_automatic>(reader, width) ||
           readPositive(reader, Axis::across, wholeCells, width);
}

bool readMaxWidth(ValueReader& reader, Length& width) {
    return readKeyword<s_none>(reader, width) ||
           readPositive(reader, Axis::across, wholeCells, width);
}

bool readTextIndent(ValueReader& reader, Length& indent) {
    return readLength(reader, Axis::across, nearestCells, indent);
}

bool readTabSize(ValueReader& reader, std::int32_t& cells) {
    auto const pixels = readPositivePixels(reader, Axis::across);
    if (pixels) cells = nearestCells(*pixels, Axis::across);
    return pixels.has_value();
}

bool readBorderSpacing(ValueReader& reader, BorderSpacing& spacing) {
    ValueReader second = reader;
    auto const across = readPositivePixels(reader, Axis::across);
    if (!across) return false;
    // A bare number is cells of either axis, so the only value of two is read once for each.
    if (!reader.atEnd()) second = reader;
    auto const down = readPositivePixels(second, Axis::down);
    if (!down) return false;
    spacing = {nearestCells(*across, Axis::across), nearestCells(*down, Axis::down)};
    reader = second;
    return true;
}

bool readThickness(ValueReader& reader, Thickness& thickness) {
    if (readKeyword<s_thicknesses>(reader, thickness)) return true;
    if (reader.atEnd()) return false;
    bool const isInPixels = isSameWord(reader.peek().text, "px");
    auto const pixels = readPositivePixels(reader, Axis::across);
    if (!pixels) return false;
    bool const isThick = isInPixels && *pixels >= s_thick;
    thickness = *pixels == 0 ? Thickness::none : isThick ? Thickness::thick : Thickness::thin;
    return true;
}

bool readRadius(ValueReader& reader, bool& isRounded) {
    if (reader.atEnd()) return false;
    Token const& token = reader.peek();
    Length radius;
    isRounded = token.number > 0;
    return readPositive(reader, Axis::across, nearestCells, radius);
}

}  // namespace galley::web

#include "web/flow/Border.h"

#include <array>
#include <cstdint>

#include "web/text/Cluster.h"

namespace galley::web {

namespace {

/// How a line is drawn where it meets others: box-drawing characters have no joints of dashes.
enum class Weight : std::uint8_t { none, light, heavy, twofold };

Weight weightOf(Border const* border) {
    if (border == nullptr || !border->isThere()) return Weight::none;
    if (border->line.kind == LineKind::twofold) return Weight::twofold;
    return border->thickness == Thickness::thick ? Weight::heavy : Weight::light;
}

struct Joint {
    /// Left, right, top, bottom: digits of `Weight`.
    std::uint16_t sides;
    std::string_view character;
};

constexpr std::uint16_t sides(int left, int right, int top, int bottom) {
    return static_cast<std::uint16_t>(((left * 4 + right) * 4 + top) * 4 + bottom);
}

/// The box-drawing characters of Unicode, U+2500 to U+257F, of which the two sides in one direction
/// are alike or one is not there.
constexpr Joint s_joints[] = {
    {sides(1, 1, 0, 0), "─"}, {sides(2, 2, 0, 0), "━"}, {sides(3, 3, 0, 0), "═"},
    {sides(0, 0, 1, 1), "│"}, {sides(0, 0, 2, 2), "┃"}, {sides(0, 0, 3, 3), "║"},
    {sides(0, 1, 0, 1), "┌"}, {sides(0, 2, 0, 1), "┍"}, {sides(0, 1, 0, 2), "┎"},
    {sides(0, 2, 0, 2), "┏"}, {sides(0, 3, 0, 1), "╒"}, {sides(0, 1, 0, 3), "╓"},
    {sides(0, 3, 0, 3), "╔"}, {sides(1, 0, 0, 1), "┐"}, {sides(2, 0, 0, 1), "┑"},
    {sides(1, 0, 0, 2), "┒"}, {sides(2, 0, 0, 2), "┓"}, {sides(3, 0, 0, 1), "╕"},
    {sides(1, 0, 0, 3), "╖"}, {sides(3, 0, 0, 3), "╗"}, {sides(0, 1, 1, 0), "└"},
    {sides(0, 2, 1, 0), "┕"}, {sides(0, 1, 2, 0), "┖"}, {sides(0, 2, 2, 0), "┗"},
    {sides(0, 3, 1, 0), "╘"}, {sides(0, 1, 3, 0), "╙"}, {sides(0, 3, 3, 0), "╚"},
    {sides(1, 0, 1, 0), "┘"}, {sides(2, 0, 1, 0), "┙"}, {sides(1, 0, 2, 0), "┚"},
    {sides(2, 0, 2, 0), "┛"}, {sides(3, 0, 1, 0), "╛"}, {sides(1, 0, 3, 0), "╜"},
    {sides(3, 0, 3, 0), "╝"}, {sides(0, 1, 1, 1), "├"}, {sides(0, 2, 1, 1), "┝"},
    {sides(0, 1, 2, 2), "┠"}, {sides(0, 2, 2, 2), "┣"}, {sides(0, 3, 1, 1), "╞"},
    {sides(0, 1, 3, 3), "╟"}, {sides(0, 3, 3, 3), "╠"}, {sides(1, 0, 1, 1), "┤"},
    {sides(2, 0, 1, 1), "┥"}, {sides(1, 0, 2, 2), "┨"}, {sides(2, 0, 2, 2), "┫"},
    {sides(3, 0, 1, 1), "╡"}, {sides(1, 0, 3, 3), "╢"}, {sides(3, 0, 3, 3), "╣"},
    {sides(1, 1, 0, 1), "┬"}, {sides(2, 2, 0, 1), "┯"}, {sides(1, 1, 0, 2), "┰"},
    {sides(2, 2, 0, 2), "┳"}, {sides(3, 3, 0, 1), "╤"}, {sides(1, 1, 0, 3), "╥"},
    {sides(3, 3, 0, 3), "╦"}, {sides(1, 1, 1, 0), "┴"}, {sides(2, 2, 1, 0), "┷"},
    {sides(1, 1, 2, 0), "┸"}, {sides(2, 2, 2, 0), "┻"}, {sides(3, 3, 1, 0), "╧"},
    {sides(1, 1, 3, 0), "╨"}, {sides(3, 3, 3, 0), "╩"}, {sides(1, 1, 1, 1), "┼"},
    {sides(2, 2, 1, 1), "┿"}, {sides(1, 1, 2, 2), "╂"}, {sides(2, 2, 2, 2), "╋"},
    {sides(3, 3, 1, 1), "╪"}, {sides(1, 1, 3, 3), "╫"}, {sides(3, 3, 3, 3), "╬"},
    {sides(1, 0, 0, 0), "─"}, {sides(0, 1, 0, 0), "─"}, {sides(0, 0, 1, 0), "│"},
    {sides(0, 0, 0, 1), "│"}, {sides(2, 0, 0, 0), "━"}, {sides(0, 2, 0, 0), "━"},
    {sides(0, 0, 2, 0), "┃"}, {sides(0, 0, 0, 2), "┃"}, {sides(3, 0, 0, 0), "═"},
    {sides(0, 3, 0, 0), "═"}, {sides(0, 0, 3, 0), "║"}, {sides(0, 0, 0, 3), "║"},
};

std::string_view find(std::uint16_t wanted) {
    for (Joint const& known : s_joints) {
        if (known.sides == wanted) return known.character;
    }
    return {};
}

/// Where the weights of a direction differ there is no character for all: the stronger one stands
/// for both.
void level(Weight& one, Weight& other) {
    if (one == Weight::none || other == Weight::none) return;
    one = other = std::max(one, other);
}

std::string_view roundedCorner(std::uint16_t wanted) {
    constexpr Joint s_rounded[] = {{sides(0, 1, 0, 1), "╭"},
                                   {sides(1, 0, 0, 1), "╮"},
                                   {sides(0, 1, 1, 0), "╰"},
                                   {sides(1, 0, 1, 0), "╯"}};
    for (Joint const& known : s_rounded) {
        if (known.sides == wanted) return known.character;
    }
    return {};
}

bool isAscii(Border const* border) { return border != nullptr && border->cells.hasAsciiFrames; }

/// By the lines' sides: whether there are any across, and down.
std::string_view asciiJoint(Weight across, Weight down) {
    if (down == Weight::none) return across > Weight::light ? "=" : "-";
    return across == Weight::none ? "|" : "+";
}

std::string_view straight(Border const& border, bool isVertical) {
    bool const isHeavy = border.thickness == Thickness::thick;
    LineKind const kind = border.line.kind;
    bool const isText = kind == LineKind::text;
    switch (isAscii(&border) && !isText ? LineKind::solid : kind) {
        case LineKind::dashed:
            return isVertical ? (isHeavy ? "╏" : "╎") : (isHeavy ? "╍" : "╌");
        case LineKind::dotted:
            return isVertical ? (isHeavy ? "┇" : "┆") : (isHeavy ? "┅" : "┄");
        case LineKind::text:
            return border.line.text;
        default:
            return isVertical ? joint({nullptr, nullptr, &border, &border}, false)
                              : joint({&border, &border, nullptr, nullptr}, false);
    }
}

Look lookOf(Border const& border, Colour background) {
    Look look = blankOn(background);
    look.text = border.colour;
    return look;
}

/// What of a text has room in so many cells.
std::string_view startOf(std::string_view text, int cells, bool isAmbiguousWide) {
    std::size_t end = 0;
    while (end < text.size()) {
        Cluster const cluster = clusterAt(text, end, isAmbiguousWide);
        cells -= static_cast<int>(cluster.width);
        if (cells < 0) break;
        end = cluster.end;
    }
    return text.substr(0, end);
}

/// Adds a text again and again, as far as it is whole, and blanks up to a column. Where it has no
/// room at all it is as much of it as has.
void repeat(Row& row, Border const& border, std::string_view text, int column, Look const& look) {
    bool const isAmbiguousWide = border.cells.isAmbiguousWide;
    int const room = column - row.width();
    if (countCells(text, isAmbiguousWide) > room) text = startOf(text, room, isAmbiguousWide);
    int const cells = countCells(text, isAmbiguousWide);
    while (cells > 0 && row.width() + cells <= column) row.add(text, cells, look);
    row.fill(column, look);
}

void addCorner(Row& row, Style const& style, bool isTop, bool isLeft, Look const& look) {
    Border const* const vertical = isLeft ? &style.border.left : &style.border.right;
    Border const* const horizontal = isTop ? &style.border.top : &style.border.bottom;
    if (!vertical->isThere()) return;
    if (horizontal->line.kind == LineKind::text || vertical->line.kind == LineKind::text) {
        repeat(row, *horizontal, straight(*horizontal, false), row.width() + 1, look);
        return;
    }
    Edges<Border const*> lines = {};
    (isLeft ? lines.right : lines.left) = horizontal;
    (isTop ? lines.bottom : lines.top) = vertical;
    row.add(joint(lines, style.isRounded), 1, look);
}

}  // namespace

std::string_view joint(Edges<Border const*> const& lines, bool isRounded) {
    Weight left = weightOf(lines.left);
    Weight right = weightOf(lines.right);
    Weight top = weightOf(lines.top);
    Weight bottom = weightOf(lines.bottom);
    level(left, right);
    level(top, bottom);
    if (isAscii(lines.left) || isAscii(lines.right) || isAscii(lines.top) ||
        isAscii(lines.bottom)) {
        return asciiJoint(std::max(left, right), std::max(top, bottom));
    }
    auto const key = [&] {
        return sides(static_cast<int>(left), static_cast<int>(right), static_cast<int>(top),
                     static_cast<int>(bottom));
    };
    if (isRounded) {
        if (std::string_view const corner = roundedCorner(key()); !corner.empty()) return corner;
    }
    if (std::string_view const known = find(key()); !known.empty()) return known;
    // Heavy and twofold lines do not meet in any character.
    for (Weight* const weight : {&left, &right, &top, &bottom}) {
        if (*weight == Weight::twofold) *weight = Weight::heavy;
    }
    return find(key());
}

void addVertical(Row& row, Border const& border, Colour background, bool isVisible) {
    if (!border.isThere()) return;
    repeat(row, border, isVisible ? straight(border, true) : " ", row.width() + 1,
           lookOf(border, background));
}

void addLine(Row& row, Border const& border, int columns, Colour background) {
    repeat(row, border, straight(border, false), row.width() + columns, lookOf(border, background));
}

void addJoint(Row& row, Edges<Border const*> const& lines, Border const& coloured,
              Colour background) {
    Look const look = lookOf(coloured, background);
    for (Border const* const line : {lines.left, lines.right, lines.top, lines.bottom}) {
        if (line == nullptr || line->line.kind != LineKind::text) continue;
        repeat(row, *line, line->line.text, row.width() + 1, look);
        return;
    }
    bool const isAcross = lines.left != nullptr || lines.right != nullptr;
    bool const isDown = lines.top != nullptr || lines.bottom != nullptr;
    row.add(isAcross && isDown ? joint(lines, false) : straight(coloured, isDown), 1, look);
}

void addHorizontal(Row& row, Style const& style, bool isTop, int columns, Colour background) {
    Border const& border = isTop ? style.border.top : style.border.bottom;
    int const end = row.width() + columns;
    if (!isVisible(style)) return row.fill(end, lookOf(border, background));
    addCorner(row, style, isTop, true, lookOf(border, background));
    int const corner = style.border.right.isThere() ? 1 : 0;
    addLine(row, border, end - corner - row.width(), background);
    if (row.width() < end) addCorner(row, style, isTop, false, lookOf(border, background));
}

}  // namespace galley::web

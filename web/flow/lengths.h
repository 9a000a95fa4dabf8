#pragma once

#include <algorithm>
#include <cstdint>

#include "web/Style.h"

namespace galley::web {

/// Of a cell: per cent have so many.
inline constexpr std::int64_t s_parts = 100'000;

/// A length in a container of that many columns; 0 for `auto`.
///@{
/// In parts of a cell.
inline std::int64_t exactlyAcross(Length length, int columns) {
    if (length.kind == Length::Kind::automatic) return 0;
    std::int64_t const factor = length.kind == Length::Kind::cells ? s_parts : columns;
    return factor * length.value;
}

/// In cells: parts of one are dropped.
inline int across(Length length, int columns) {
    if (length.kind == Length::Kind::cells) return length.value;
    return static_cast<int>(exactlyAcross(length, columns) / s_parts);
}

/// In cells, where the columns that are left count: parts of one of these are dropped.
inline int acrossRoundedUp(Length length, int columns) {
    std::int64_t const parts = exactlyAcross(length, columns);
    return static_cast<int>((parts > 0 ? parts + s_parts - 1 : parts) / s_parts);
}

/// A percentage is of the container's width, of which two columns are as wide as a row is high.
inline int down(Length length, int columns) {
    if (length.kind != Length::Kind::percent) return across(length, columns);
    return static_cast<int>(std::int64_t{columns} * length.value / 200'000);
}
///@}

inline bool isAutomatic(Length length) { return length.kind == Length::Kind::automatic; }

/// Columns of border and padding on both sides.
inline int innerEdges(Style const& style, int columns) {
    return (style.border.left.isThere() ? 1 : 0) + (style.border.right.isThere() ? 1 : 0) +
           across(style.padding.left, columns) + across(style.padding.right, columns);
}

/// A content width within the limits that the style sets, and not negative.
inline int limitWidth(int width, Style const& style, int columns) {
    if (!isAutomatic(style.maxWidth)) width = std::min(width, across(style.maxWidth, columns));
    return std::max({width, across(style.minWidth, columns), 0});
}

/// Where a block stands in its container.
struct HorizontalPlace {
    int marginLeft;
    /// Of the content box, and of the border box.
    ///@{
    int width;
    int borderWidth;
    ///@}
};

/// The left margin of a box that leaves so many columns of its container free: `auto` margins share
/// them, a right margin is what it is.
inline int leftMargin(Style const& style, int columns, int spare) {
    if (!isAutomatic(style.margin.left)) return across(style.margin.left, columns);
    return isAutomatic(style.margin.right) ? spare / 2 : spare;
}

/// Where a line of that width stands in a container, the first columns of which are its indent.
inline int columnOfLine(Style const& style, int columns, int indent, int width) {
    int const spare = std::max(0, columns - indent - width);
    if (style.textAlign == TextAlign::right) return indent + spare;
    return style.textAlign == TextAlign::centre ? indent + spare / 2 : indent;
}

/// A block that is as wide as its container where its style does not say otherwise.
inline HorizontalPlace placeBlock(Style const& style, int columns) {
    std::int64_t const all = columns * s_parts;
    // What content has to fit into is rounded down as a whole.
    auto const without = [all](std::int64_t edges) {
        return static_cast<int>(std::max<std::int64_t>(0, all - edges) / s_parts);
    };
    std::int64_t const margins =
        exactlyAcross(style.margin.left, columns) + exactlyAcross(style.margin.right, columns);
    std::int64_t edges =
        exactlyAcross(style.padding.left, columns) + exactlyAcross(style.padding.right, columns);
    if (style.border.left.isThere()) edges += s_parts;
    if (style.border.right.isThere()) edges += s_parts;
    int const filling = without(margins + edges);
    int const wanted = isAutomatic(style.width) ? filling : across(style.width, columns);
    int const width = limitWidth(wanted, style, columns);
    bool const isFilling = isAutomatic(style.width) && width == filling && margins + edges < all;
    int const borderWidth = isFilling ? without(margins) : width + innerEdges(style, columns);
    return {leftMargin(style, columns, std::max(0, filling - width)), width, borderWidth};
}

}  // namespace galley::web

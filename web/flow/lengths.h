#pragma once

#include <algorithm>
#include <cstdint>

#include "web/Style.h"

namespace galley::web {

/// Cells of a length in a container of that many columns; 0 for `auto`. Parts of a cell are dropped
/// of a percentage.
///@{
inline int across(Length length, int columns) {
    if (length.kind == Length::Kind::automatic) return 0;
    if (length.kind == Length::Kind::cells) return length.value;
    return static_cast<int>(std::int64_t{columns} * length.value / 100'000);
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
    /// Of the content box.
    int width;
};

/// The left margin of a box that leaves so many columns of its container free: `auto` margins share
/// them, a right margin is what it is.
inline int leftMargin(Style const& style, int columns, int spare) {
    if (!isAutomatic(style.margin.left)) return across(style.margin.left, columns);
    return isAutomatic(style.margin.right) ? spare / 2 : spare;
}

/// A block that is as wide as its container where its style does not say otherwise.
inline HorizontalPlace placeBlock(Style const& style, int columns) {
    int const edges = innerEdges(style, columns);
    int const margins = across(style.margin.left, columns) + across(style.margin.right, columns);
    int const filling = columns - edges - margins;
    bool const isFilling = isAutomatic(style.width);
    int const wanted = isFilling ? filling : across(style.width, columns);
    int const width = limitWidth(wanted, style, columns);
    return {leftMargin(style, columns, std::max(0, filling - width)), width};
}

}  // namespace galley::web

#pragma once

#include <cstdint>

#include "../../base/saturate.h"

namespace CLI::XML {

/// A rectangle in character cells: columns to the right, rows downwards. The origin is the top
/// left cell of the content box of the parent of the box that the rectangle belongs to.
struct Rect {
    std::int32_t x = 0;       ///< Column of the left edge.
    std::int32_t y = 0;       ///< Row of the upper edge.
    std::int32_t width = 0;   ///< In columns.
    std::int32_t height = 0;  ///< In rows.

    bool operator==(Rect const&) const = default;
};

/// A size in cells for each side of a box. May be negative.
struct EdgeSizes {
    std::int32_t left = 0;    ///< In columns.
    std::int32_t right = 0;   ///< In columns.
    std::int32_t top = 0;     ///< In rows.
    std::int32_t bottom = 0;  ///< In rows.

    bool operator==(EdgeSizes const&) const = default;
};

/// The geometry of a box: the content box, and the padding, border and margin around it. Sums
/// saturate at the limits of 32 bits.
///
///     margin box
///     +------------------------+
///     | border box             |
///     | +--------------------+ |
///     | | padding            | |
///     | |  +--------------+  | |
///     | |  | content box  |  | |
///     | |  +--------------+  | |
///     | +--------------------+ |
///     +------------------------+
struct Dimensions {
    Rect content;       ///< The content box.
    EdgeSizes padding;  ///< Around the content box.
    EdgeSizes border;   ///< Around the padding.
    EdgeSizes margin;   ///< Around the border.

    /// Padding, border and margin of each side together.
    EdgeSizes edges() const {
        return {sum(padding.left, border.left, margin.left),
                sum(padding.right, border.right, margin.right),
                sum(padding.top, border.top, margin.top),
                sum(padding.bottom, border.bottom, margin.bottom)};
    }
    /// The content box grown by padding and border.
    Rect borderBox() const {
        using Wide = std::int64_t;
        return {saturate(Wide{content.x} - padding.left - border.left),
                saturate(Wide{content.y} - padding.top - border.top),
                saturate(Wide{content.width} + padding.left + padding.right + border.left +
                         border.right),
                saturate(Wide{content.height} + padding.top + padding.bottom + border.top +
                         border.bottom)};
    }
    /// The border box grown by the margin.
    Rect marginBox() const {
        if (!hasEdges()) return content;
        Rect const inner = borderBox();
        return {saturate(std::int64_t{inner.x} - margin.left),
                saturate(std::int64_t{inner.y} - margin.top),
                sum(inner.width, margin.left, margin.right),
                sum(inner.height, margin.top, margin.bottom)};
    }

    /// Most boxes have none, which is cheap to see.
    bool hasEdges() const { return (bitsOf(padding) | bitsOf(border) | bitsOf(margin)) != 0; }

    /// Whether the left or the right edge takes something off the width.
    bool hasNegativeSide() const {
        auto const isNegative = [](EdgeSizes const& e) { return e.left < 0 || e.right < 0; };
        return isNegative(padding) || isNegative(border) || isNegative(margin);
    }

    /// Whether a border is drawn on any side.
    bool hasBorder() const {
        return border.left > 0 || border.right > 0 || border.top > 0 || border.bottom > 0;
    }

    bool operator==(Dimensions const&) const = default;

private:
    static std::int32_t bitsOf(EdgeSizes const& e) { return e.left | e.right | e.top | e.bottom; }

    static std::int32_t sum(std::int64_t a, std::int64_t b, std::int64_t c) {
        return saturate(a + b + c);
    }
};

/// What the root box is laid out in: `width` columns, as far as geometry holds them, no edges.
inline Dimensions pageOfWidth(unsigned width) {
    Dimensions page;
    page.content.width = saturate(width);
    return page;
}

}  // namespace CLI::XML

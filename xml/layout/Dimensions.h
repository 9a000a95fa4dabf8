#pragma once

#include <cstdint>

namespace CLI::XML {

/// A rectangle in character cells: columns to the right, rows downwards. The origin is the top
/// left cell of the content box of the parent of the box that the rectangle belongs to.
struct Rect {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;

    bool operator==(Rect const&) const = default;
};

/// A size in cells for each side of a box. May be negative.
struct EdgeSizes {
    std::int32_t left = 0;
    std::int32_t right = 0;
    std::int32_t top = 0;
    std::int32_t bottom = 0;

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
    Rect content;
    EdgeSizes padding;
    EdgeSizes border;
    EdgeSizes margin;

    /// Padding, border and margin of each side together.
    EdgeSizes edges() const;
    /// The content box grown by padding and border.
    Rect borderBox() const;
    /// The border box grown by the margin.
    Rect marginBox() const;

    bool operator==(Dimensions const&) const = default;
};

}  // namespace CLI::XML

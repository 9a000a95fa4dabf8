#pragma once

#include <algorithm>

#include "base/ZRVector.h"
#include "base/saturate.h"
#include "xml/layout/Dimensions.h"

namespace CLI::XML {

/// What is left between two neighbouring children.
enum class Gap : bool {
    Uncovered,  ///< As much of the second margin as the first one does not cover.
    Larger,     ///< The larger margin of the two: on a line.
};

inline std::int64_t gapBetween(std::int64_t before, std::int64_t margin, Gap gap) {
    return gap == Gap::Larger ? std::max(before, margin)
                              : std::max<std::int64_t>(0, margin - before);
}

/// Stacks children downwards in a block or a table, whose content grows with them from a height of
/// 0 on. The position of a child leaves out the part of its top margin that the bottom margin
/// before it covers; the height of the stack still grows by the whole margin box, so that the two
/// do not mirror each other.
class DownwardStack {
public:
    /// Sets the position at which the child is to be laid out.
    void place(Rect const& content, Dimensions& child) const {
        EdgeSizes const edges = child.edges();
        std::int64_t const gap = gapBetween(previousMargin, child.margin.top, Gap::Uncovered);
        child.content.x = edges.left;
        child.content.y = saturate(content.height + gap + child.border.top + child.padding.top);
    }

    /// Takes the child in after its layout.
    void add(Rect& content, Dimensions const& child) {
        Rect const margin = child.marginBox();
        content.height = saturate(std::int64_t{content.height} + margin.height);
        widest = std::max(widest, margin.width);
        previousMargin = child.margin.bottom;
    }

    /// Makes the container as wide as its widest child.
    void finish(Rect& content) const { content.width = widest; }

private:
    std::int32_t widest = 0;
    std::int32_t previousMargin = 0;
};

/// Places children from left to right, aligned to the top of their container, and sizes it around
/// them. The running width grows by the whole margin box, whatever the gap.
class RightwardRow {
public:
    RightwardRow() = default;
    /// Begins with a content of no width and no height, which is passed to every operation.
    explicit RightwardRow(Rect& content) { content.width = content.height = 0; }

    /// Sets the position at which the child is to be laid out.
    void place(Rect const& content, Dimensions& child, Gap gap) const {
        std::int64_t const before = gapBetween(previousMargin, child.margin.left, gap);
        placeAt(child, saturate(content.width + before + child.border.left + child.padding.left));
    }

    /// The same at a column of the content box.
    static void placeAt(Dimensions& child, std::int32_t x) {
        child.content.x = x;
        child.content.y = child.edges().top;
    }

    /// Takes the child in after its layout.
    void add(Rect& content, Dimensions const& child) {
        Rect const margin = child.marginBox();
        content.width = saturate(std::int64_t{content.width} + margin.width);
        content.height = std::max(content.height, margin.height);
        previousMargin = child.margin.right;
    }

    /// The right margin of the last child.
    std::int32_t previousMargin = 0;
};

/// Raises the record of a table's column, which is added where it is missing, to what a cell in it
/// takes where nothing constrains it: each of its horizontal sizes, and its position, which is not
/// before the column on the left ends. Rows are taken in order. Returns whether anything changed.
bool raiseColumn(ZRVector<Dimensions>& columns, unsigned index, Dimensions const& cell);

}  // namespace CLI::XML

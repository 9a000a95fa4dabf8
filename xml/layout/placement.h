#pragma once

#include <algorithm>

#include "base/saturate.h"
#include "xml/layout/Box.h"

namespace CLI::XML {

/// The gap before a child: as much of its margin as the margin before it does not cover.
inline std::int64_t uncoveredMargin(std::int32_t before, std::int32_t margin) {
    return std::max<std::int64_t>(0, std::int64_t{margin} - before);
}

/// Stacks children downwards in a block or a table. The position of a child leaves out the part
/// of its top margin that the bottom margin before it covers; the height of the stack still grows
/// by the whole margin box, so that the two do not mirror each other.
class DownwardStack {
public:
    /// Begins with a height of 0.
    explicit DownwardStack(Dimensions& container) : content(container.content) {
        content.height = 0;
    }

    /// Sets the position at which the child is to be laid out.
    void place(Dimensions& child) const {
        EdgeSizes const edges = child.edges();
        std::int64_t const gap = uncoveredMargin(previousMargin, child.margin.top);
        child.content.x = edges.left;
        child.content.y = saturate(content.height + gap + child.border.top + child.padding.top);
    }

    /// Takes the child in after its layout.
    void add(Dimensions const& child) {
        Rect const margin = child.marginBox();
        content.height = saturate(std::int64_t{content.height} + margin.height);
        widest = std::max(widest, margin.width);
        previousMargin = child.margin.bottom;
    }

    /// Makes the container as wide as its widest child.
    void finish() const { content.width = widest; }

private:
    Rect& content;
    std::int32_t widest = 0;
    std::int32_t previousMargin = 0;
};

/// Where a child's content begins behind `width` columns and a gap.
inline std::int32_t contentXBehind(std::int32_t width, std::int64_t gap, Dimensions const& child) {
    return saturate(width + gap + child.border.left + child.padding.left);
}

/// The same in an inline element or a row, where a left margin counts as far as it exceeds the
/// right margin before it.
inline std::int32_t contentXInElement(Dimensions const& child, std::int32_t width,
                                      std::int32_t previousRight) {
    return contentXBehind(width, uncoveredMargin(previousRight, child.margin.left), child);
}

/// Lays out the children of `box` from left to right, aligned to its top, and sizes it around
/// them. `position(child, width, previousRight)` says where a child's content begins behind the
/// running width; `layOut(child)` lays the child out and returns whether to go on with the next.
template <class Position, class LayOut>
void layoutRightwards(Box& box, Position const& position, LayOut const& layOut) {
    Rect& content = box.dimensions.content;
    content.width = 0;
    content.height = 0;
    std::int32_t previousRight = 0;
    bool goesOn = true;
    for (unsigned i = 0; i < box.children.count && goesOn; ++i) {
        Box& child = *box.children[i];
        Dimensions& d = child.dimensions;
        d.content.x = position(child, content.width, previousRight);
        d.content.y = d.edges().top;
        goesOn = layOut(child);
        Rect const margin = d.marginBox();
        content.width = saturate(std::int64_t{content.width} + margin.width);
        content.height = std::max(content.height, margin.height);
        previousRight = d.margin.right;
    }
}

}  // namespace CLI::XML

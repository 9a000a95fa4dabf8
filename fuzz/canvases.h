#pragma once

#include <cmath>
#include <cstdint>
#include <vector>

#include "xml/layout/Box.h"

namespace CLI::XML {

/// Whether the canvases of all boxes are small, which have no budget: each is at most as wide and
/// as high as all boxes and the ways to them together.
inline bool areCanvasesSmall(Box const& root) {
    constexpr double s_most = 1 << 28;
    auto const size = [](std::int32_t cells) { return std::abs(static_cast<double>(cells)); };
    double width = 0;
    double height = 0;
    double count = 0;
    for (std::vector<Box const*> open = {&root}; !open.empty();) {
        Box const& box = *open.back();
        open.pop_back();
        Rect const border = box.dimensions.borderBox();
        for (Rect const& area : {border, box.dimensions.content}) {
            width += size(area.x) + size(area.width);
            height += size(area.y) + size(area.height);
        }
        ++count;
        for (ZRLWPtr<Box> const& child : box.children) open.push_back(child.object);
    }
    return width * height * count < s_most;
}

}  // namespace CLI::XML

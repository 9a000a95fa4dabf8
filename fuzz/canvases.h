#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "xml/layout/Box.h"

namespace CLI::XML {

/// Whether the canvases of all boxes are small, which have no budget.
inline bool areCanvasesSmall(Box const& root) {
    constexpr std::int64_t s_longest = 20'000;
    constexpr std::int64_t s_most = 1 << 26;
    std::int64_t cells = 0;
    for (std::vector<Box const*> open = {&root}; !open.empty();) {
        Box const& box = *open.back();
        open.pop_back();
        Rect const area = box.dimensions.borderBox();
        std::int64_t const width =
            std::abs(std::int64_t{area.x}) + std::abs(std::int64_t{area.width});
        std::int64_t const height =
            std::abs(std::int64_t{area.y}) + std::abs(std::int64_t{area.height});
        if (std::max(width, height) > s_longest) return false;
        cells += (width + 1) * (height + 1);
        for (ZRLWPtr<Box> const& child : box.children) open.push_back(child.object);
    }
    return cells < s_most;
}

}  // namespace CLI::XML

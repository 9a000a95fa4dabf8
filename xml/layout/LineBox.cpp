#include "xml/layout/LineBox.h"

#include "xml/layout/placement.h"

namespace CLI::XML {

void LineBox::layout(Dimensions const&) {
    auto const largerMargin = [](Box const& child, std::int32_t width, std::int32_t previousRight) {
        Dimensions const& d = child.dimensions;
        return contentXBehind(width, std::max(previousRight, d.margin.left), d);
    };
    layoutRightwards(*this, largerMargin, [](Box const&) {});
}

}  // namespace CLI::XML

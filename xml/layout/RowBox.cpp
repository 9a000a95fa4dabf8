#include "xml/layout/RowBox.h"

#include "xml/layout/placement.h"

namespace CLI::XML {

void RowBox::layout(Dimensions const&) {
    auto const inColumn = [](Box const& child, std::int32_t width, std::int32_t previousRight) {
        auto const& cell = static_cast<CellBox const&>(child);
        // A column's position already is that of the content.
        if (cell.isConstrained()) return cell.columnDimensions.content.x;
        Dimensions const& d = cell.dimensions;
        return contentXBehind(width, uncoveredMargin(previousRight, d.margin.left), d);
    };
    auto const takeColumnWidth = [](Box& child) {
        auto& cell = static_cast<CellBox&>(child);
        if (cell.isConstrained()) {
            cell.dimensions.content.width = cell.columnDimensions.content.width;
        }
    };
    layoutRightwards(*this, inColumn, takeColumnWidth);
}

}  // namespace CLI::XML

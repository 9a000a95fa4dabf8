#include "xml/layout/RowBox.h"

#include "xml/layout/placement.h"

namespace CLI::XML {

void RowBox::layout(Dimensions const&) {
    auto const inColumn = [](Box const& child, std::int32_t width, std::int32_t previousRight) {
        auto const& cell = static_cast<CellBox const&>(child);
        // A column's position already is that of the content.
        if (cell.isConstrained()) return cell.columnDimensions.content.x;
        return contentXInElement(cell.dimensions, width, previousRight);
    };
    layoutRightwards(*this, inColumn, [this](Box& child) {
        auto& cell = static_cast<CellBox&>(child);
        cell.layout(dimensions);
        if (cell.isConstrained()) {
            cell.dimensions.content.width = cell.columnDimensions.content.width;
        }
        return true;
    });
}

}  // namespace CLI::XML

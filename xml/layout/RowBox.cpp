#include "xml/layout/RowBox.h"

#include "xml/layout/placement.h"

namespace CLI::XML {

Walk RowBox::layOut(Dimensions const& containing, LayoutPass pass) {
    if (isLaidOutByItsOwn(containing, pass)) co_return;
    RightwardRow row(dimensions);
    isSettled = true;
    for (unsigned i = 0; i < children.count; ++i) {
        CellBox& cell = (*this)[i];
        if (cell.isConstrained()) {
            // A column's position already is that of the content.
            RightwardRow::placeAt(cell.dimensions, cell.columnDimensions.content.x);
        } else {
            row.place(cell.dimensions, UncoveredMargin());
        }
        std::int32_t& width = cell.dimensions.content.width;
        if (!pass.again || !cell.isSettled) {
            co_await cell.layOut(dimensions, pass);
            cell.naturalWidth = width;
        }
        width = cell.isConstrained() ? cell.columnDimensions.content.width : cell.naturalWidth;
        row.add(cell.dimensions);
        isSettled = isSettled && cell.isSettled;
    }
}

}  // namespace CLI::XML

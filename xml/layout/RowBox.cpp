#include "xml/layout/layOut.h"
#include "xml/layout/placement.h"

namespace CLI::XML {

Walk layOutRow(RowBox& box, LayoutPass pass) {
    Rect& content = box.dimensions.content;
    RightwardRow row = RightwardRow::begin(content);
    box.isSettled = true;
    box.mayShrink = false;
    for (unsigned i = 0; i < box.children.count; ++i) {
        CellBox& cell = box[i];
        if (cell.isConstrained()) {
            // A column's position already is that of the content.
            RightwardRow::placeAt(cell.dimensions, cell.columnDimensions.content.x);
        } else {
            row.place(content, cell.dimensions, UncoveredMargin());
        }
        std::int32_t& width = cell.dimensions.content.width;
        if (pass == LayoutPass::First || !cell.isSettled) {
            co_await layOut(cell, box.dimensions, pass);
            cell.naturalWidth = width;
        }
        width = cell.isConstrained() ? cell.columnDimensions.content.width : cell.naturalWidth;
        row.add(content, cell.dimensions);
        box.isSettled = box.isSettled && cell.isSettled;
        box.mayShrink = box.mayShrink || mayTakeOff(cell);
    }
}

}  // namespace CLI::XML

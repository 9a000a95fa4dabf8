#pragma once

#include "base/ZRVector.h"
#include "xml/LinePainter.h"
#include "xml/layout/Items.h"
#include "xml/layout/placement.h"
#include "xml/render/Grid.h"

namespace CLI::XML {

/// Lays out and paints a table whose cells hold no blocks, and in which widths are sums: the
/// content of a cell is a line, which is measured first, for the columns, and painted when they are
/// known.
class TablePainter {
public:
    /// The items are the table. All outlive it, and `box` has its edges.
    TablePainter(Items const& parts, Dimensions& box, Grid& page);

    /// Paints the next row in the innermost frame, with the attributes of the table's content.
    /// False where there is none; then `box` has its size.
    bool paintRow(Canvas::Attributes const& attributes);

private:
    void paintCells(std::uint32_t row, Dimensions& box, Canvas::Attributes const& attributes);
    void paintCell(std::uint32_t opened, Dimensions& box, Canvas::Attributes attributes);

    Items const& items;
    Dimensions& table;
    Grid& grid;
    LinePainter painter;
    ZRVector<Dimensions> columns;
    DownwardStack stack;
    std::uint32_t next = 1;
};

}  // namespace CLI::XML

#pragma once

#include <cstddef>
#include <vector>

#include "web/flow/TableBand.h"
#include "web/flow/TableFrame.h"
#include "web/flow/TableGrid.h"
#include "web/flow/TableSink.h"

namespace galley::web {

class RowCanvas;

/// Makes the rows of a table's border box, from the left edge of that, each from left to right.
///
/// What sticks out of a cell lies below the text of those to its right, and but for its own text
/// below their borders and backgrounds: such rows are first made without content.
class TablePainter {
public:
    /// Takes the content of cells from the grid.
    TablePainter(TableGrid& painted, TableFrame& tableFrame, Style const& tableStyle,
                 TableSink& output, PageBudget& cells);

    /// The table is that wide, with columns of those widths; per cent count of `container`. Once
    /// only.
    void paint(int width, std::vector<int> const& columns, int container, Wrapping wrapping);

private:
    /// Content that lies over what has been made of the row.
    struct Overlay {
        int column = 0;
        RowView content;
        LaidCell const* cell = nullptr;

        int end() const { return column + content.width; }
    };
    enum class Parts { all, edges };

    void paintEdge(bool isTop, int padding);
    void paintBlanks(int count);
    void paintBand();
    void paintRows(int gridRow, int height, int top, bool isGap);
    void beginRow();
    void endRow();
    void paintCells(int y, bool isGap);
    void paintCell(LaidCell const& cell, int y);
    void paintPiece(Row& piece, LaidCell const& cell, int left, int y, Parts parts = Parts::all);
    void paintContent(Row& piece, LaidCell const& cell, int left, int line);
    void paintLines(int end, bool isGap, Colour const* alike);
    void paintVertical(int line, bool isGap, Colour background);
    void paintOverlays();
    void paintEdges(LaidCell const& cell, RowCanvas& canvas, Row& piece, Row::Manner manner);
    bool hasOwnEdges(LaidCell const& cell) const;

    TableGrid& grid;
    TableFrame& frame;
    Style const& table;
    TableSink& rows;
    PageBudget& budget;
    bool isVisible;
    ColumnPlaces places;
    TableBand band;
    /// Cells of the row by their columns.
    std::vector<LaidCell const*> active;
    std::vector<Overlay> overlays;
    /// Where the farthest of them ends.
    int overlaysEnd = 0;
    Row row;
    /// The first line that has not been painted.
    int nextLine = 0;
    int currentRow = 0;
    /// Rows of text below the top of the band.
    int textRow = 0;
};

}  // namespace galley::web

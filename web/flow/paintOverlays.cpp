// What sticks out of the cells of a table, over the rows that the others make.

#include <algorithm>
#include <deque>
#include <iterator>

#include "web/flow/RowCanvas.h"
#include "web/flow/TablePainter.h"

namespace galley::web {

void TablePainter::paintOverlays() {
    Row::Manner const manner = {.ground = Colour::transparent(),
                                .beyond = Colour::transparent(),
                                .keepsBorders = frame.collapses(),
                                .isAmbiguousWide = table.cells.isAmbiguousWide};
    auto next = overlays.begin();
    for (; next != overlays.end() && next->column >= row.width(); ++next) {
        row.draw(next->column, next->content, manner);
    }
    if (next == overlays.end()) return;
    std::vector<LaidCell const*> edged;
    std::copy_if(active.begin(), active.end(), std::back_inserter(edged),
                 [this](LaidCell const* cell) { return hasOwnEdges(*cell); });
    RowCanvas canvas(row.view(), manner.isAmbiguousWide);
    std::deque<Row> pieces;
    for (; next != overlays.end(); ++next) {
        canvas.draw(next->column, next->content, manner);
        // Later cells have their edges once more, over what sticks out of this one.
        auto covering =
            std::lower_bound(edged.begin(), edged.end(), next->cell->right,
                             [](LaidCell const* cell, int column) { return cell->left < column; });
        for (; covering != edged.end() && (*covering)->left < next->end(); ++covering) {
            paintEdges(**covering, canvas, pieces.emplace_back(), manner);
        }
    }
    row = canvas.row();
}

/// Paints what a cell has but its content; `piece`, which is empty, has that.
void TablePainter::paintEdges(LaidCell const& cell, RowCanvas& canvas, Row& piece,
                              Row::Manner manner) {
    paintPiece(piece, cell, 0, textRow, Parts::edges);
    bool const isOwn = isDrawn(cell.cell->style().background);
    manner.ground = isOwn ? Colour::transparent() : cell.cell->content.background();
    canvas.draw(cell.left, piece.view(), manner);
}

/// Whether a cell has a border or a background, not only what it is on.
bool TablePainter::hasOwnEdges(LaidCell const& cell) const {
    Style const& style = cell.cell->style();
    return cell.cell->isVisible() && cell.right > cell.left &&
           (isDrawn(style.background) || frame.hasBorders(style));
}

}  // namespace galley::web

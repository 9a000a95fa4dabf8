// What sticks out of the cells of a table, over the rows that the others make.

#include "web/flow/TablePainter.h"

namespace galley::web {

void TablePainter::paintOverlays() {
    for (Overlay const& overlay : overlays) {
        row.draw(overlay.column, overlay.content,
                 {.ground = Colour::transparent(),
                  .beyond = ground,
                  .keepsBorders = frame.collapses(),
                  .isAmbiguousWide = table.cells.isAmbiguousWide});
        if (overlay.end() > overlay.cell->right) paintEdgesOver(overlay);
    }
}

/// Paints the edges of later cells once more, over what sticks out of one.
void TablePainter::paintEdgesOver(Overlay const& overlay) {
    Row edges;
    for (LaidCell const* const cell : active) {
        bool const isCovered = cell->left >= overlay.cell->right && cell->left < overlay.end();
        if (!isCovered || cell->left < edges.width() || !hasOwnEdges(*cell)) continue;
        edges.fill(cell->left, blankOn(Colour::transparent()));
        Row piece;
        paintPiece(piece, *cell, 0, textRow, Parts::edges);
        bool const isOwn = isDrawn(cell->cell->style().background);
        Colour const behind = isOwn ? Colour::transparent() : cell->cell->content.background();
        edges.add(piece.view(), behind, Colour::transparent());
    }
    row.draw(0, edges.view(),
             {.ground = Colour::transparent(),
              .beyond = ground,
              .keepsBorders = frame.collapses(),
              .isAmbiguousWide = table.cells.isAmbiguousWide});
}

/// Whether a cell has a border or a background, not only what it is on.
bool TablePainter::hasOwnEdges(LaidCell const& cell) const {
    Style const& style = cell.cell->style();
    return cell.cell->isVisible() && (isDrawn(style.background) || frame.hasBorders(style));
}

}  // namespace galley::web

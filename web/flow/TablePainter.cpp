#include "web/flow/TablePainter.h"

#include <algorithm>

#include "web/flow/Border.h"
#include "web/flow/lengths.h"

namespace galley::web {

TablePainter::TablePainter(TableGrid& painted, TableFrame& tableFrame, Style const& tableStyle,
                           TableSink& output, PageBudget& cells)
    : grid(painted),
      frame(tableFrame),
      table(tableStyle),
      rows(output),
      budget(cells),
      isVisible(table.visibility == Visibility::visible),
      band(grid, frame, places, cells) {}

void TablePainter::paint(int width, std::vector<int> const& columns, int container,
                         Wrapping wrapping) {
    places = placeColumns(frame, width, columns, container);
    auto const end = static_cast<int>(grid.rows().size());
    paintEdge(true, down(table.padding.top, container));
    for (int next = 0; next < end;) {
        paintRows(next, frame.rowGap(next), 0, true);
        band.layOut(next, wrapping);
        paintBand();
        next = band.endRow();
    }
    paintRows(end, frame.rowGap(end), 0, true);
    paintEdge(false, down(table.padding.bottom, container));
}

/// Paints the table's border and padding above its rows or below them.
void TablePainter::paintEdge(bool isTop, int padding) {
    if (frame.collapses()) return;
    if (!isTop) paintBlanks(padding);
    if ((isTop ? table.border.top : table.border.bottom).isThere()) {
        row.clear();
        if (isVisible) addHorizontal(row, table, isTop, places.width, grid.background());
        budget.take(static_cast<std::size_t>(row.width()) + 1);
        rows.take(row);
    }
    if (isTop) paintBlanks(padding);
}

void TablePainter::paintBlanks(int count) {
    for (; count > 0; --count) {
        beginRow();
        endRow();
    }
}

void TablePainter::paintBand() {
    auto next = band.cells().begin();
    for (int at = band.firstRow(); at < band.endRow(); ++at) {
        std::erase_if(active, [at](LaidCell const* cell) { return cell->endRow <= at; });
        if (at > band.firstRow()) {
            int const gap = frame.rowGap(at);
            paintRows(at, gap, band.top(at) - gap, true);
        }
        bool const isAlone = active.empty();
        for (; next != band.cells().end() && next->firstRow == at; ++next) active.push_back(&*next);
        if (!isAlone) {
            std::stable_sort(active.begin(), active.end(),
                             [](LaidCell const* a, LaidCell const* b) {
                                 return a->cell->column < b->cell->column;
                             });
        }
        paintRows(at, band.height(at), band.top(at), false);
        if (frame.collapses()) frame.borders()->next();
    }
    active.clear();
}

/// Paints a row of the grid, or the line above it, that is so high, `top` rows below the band's.
void TablePainter::paintRows(int gridRow, int height, int top, bool isGap) {
    currentRow = gridRow;
    for (int i = 0; i < height; ++i) {
        if (gridRow == 0 && !isGap && i == band.baseline()) rows.takeBaseline();
        beginRow();
        textRow = top + i;
        paintCells(textRow, isGap);
        endRow();
    }
}

void TablePainter::beginRow() {
    row.clear();
    overlays.clear();
    overlaysEnd = 0;
    Border const& border = table.border.left;
    if (isVisible && frame.hasBorder(border)) addVertical(row, border, grid.background());
}

void TablePainter::endRow() {
    Border const& border = table.border.right;
    bool const hasBorder = isVisible && frame.hasBorder(border);
    if (hasBorder || isDrawn(grid.background())) {
        row.fill(places.width - (hasBorder ? 1 : 0), blankOn(grid.background()));
    }
    if (hasBorder) addVertical(row, border, grid.background());
    paintOverlays();
    budget.take(static_cast<std::size_t>(row.width()) + 1);
    rows.take(row);
}

void TablePainter::paintCells(int y, bool isGap) {
    nextLine = 0;
    bool const hasLines = frame.collapses();
    Colour const* before = nullptr;
    for (LaidCell const* const cell : active) {
        Colour const& background = cell->cell->content.background();
        bool const isAlike =
            before != nullptr && nextLine == cell->cell->column && *before == background;
        if (hasLines || nextLine < cell->cell->column) {
            paintLines(cell->cell->column, isGap, isAlike ? before : nullptr);
        }
        paintCell(*cell, y);
        nextLine = std::max(nextLine, cell->cell->endColumn());
        before = &background;
    }
    paintLines(static_cast<int>(grid.columns().size()), isGap, nullptr);
}

/// Paints the lines of borders that collapse, up to one, and what is between them where no cell is.
/// `alike` is the background of the cells on both sides of the only one.
void TablePainter::paintLines(int end, bool isGap, Colour const* alike) {
    if (!frame.collapses() && (isGap || nextLine == end)) return;
    // That of a row shows in its visible cells.
    bool const isSeen = !isGap && std::any_of(active.begin(), active.end(), [](auto const* cell) {
        return cell->cell->isVisible();
    });
    Colour const behind = isSeen
                              ? grid.background(grid.rows()[static_cast<std::size_t>(currentRow)])
                              : grid.background();
    for (; nextLine <= end; ++nextLine) {
        if (frame.columnGap(nextLine) > 0 && frame.collapses()) {
            paintVertical(nextLine, isGap, alike == nullptr ? behind : *alike);
        }
        if (nextLine == end) return;
        auto const column = static_cast<std::size_t>(nextLine);
        Border const* const border = isGap && isVisible && frame.collapses()
                                         ? frame.borders()->horizontal(nextLine)
                                         : nullptr;
        if (border != nullptr) {
            row.fill(places.left[column], blankOn(grid.background()));
            addLine(row, *border, places.right[column] - places.left[column], behind);
        } else if (isDrawn(grid.background())) {
            row.fill(places.right[column], blankOn(grid.background()));
        }
    }
}

/// Paints a cell of a line of borders: a joint in lines above a row, else a part of it. Outer ones
/// stand on the table, whatever is beside them.
void TablePainter::paintVertical(int line, bool isGap, Colour background) {
    CollapsedBorders const& borders = *frame.borders();
    Edges<Border const*> lines = {};
    if (isGap) {
        lines = borders.around(line);
    } else {
        lines.top = lines.bottom = borders.vertical(line);
    }
    Border const* const drawn = isVisible ? strongest(lines) : nullptr;
    if (drawn == nullptr && !isDrawn(background)) return;
    row.fill(places.left[static_cast<std::size_t>(line)] - 1, blankOn(grid.background()));
    if (drawn == nullptr) {
        row.fill(row.width() + 1, blankOn(background));
    } else {
        bool const isOuter = line == 0 || line == static_cast<int>(grid.columns().size());
        addJoint(row, lines, *drawn, isOuter ? grid.background() : background);
    }
}

/// Adds a cell where it stands, or puts it over others on which it stands.
void TablePainter::paintCell(LaidCell const& cell, int y) {
    int const line = y - cell.top - cell.above;
    if (cell.isBare && (line < 0 || line >= cell.contentHeight())) return;
    if (row.width() <= cell.left) {
        if (cell.isBare) return paintContent(row, cell, cell.left, line);
        return paintPiece(row, cell, cell.left, y);
    }
    Row piece;
    paintPiece(piece, cell, 0, y);
    Colour const behind = grid.background();
    bool const isWide = table.cells.isAmbiguousWide;
    row.draw(cell.left, piece.view(),
             {.ground = behind, .beyond = behind, .isAmbiguousWide = isWide});
}

/// Adds what a cell has in a row of text, from column `left` on.
void TablePainter::paintPiece(Row& piece, LaidCell const& cell, int left, int y, Parts parts) {
    Style const& style = cell.cell->style();
    Edges<Border> const& border = style.border;
    Colour const background = cell.cell->content.background();
    int const right = left + cell.right - cell.left;
    int const line = y - cell.top;
    bool const isShown = cell.cell->isVisible() && right > left;
    bool const isTop = line == 0 && frame.hasBorder(border.top);
    bool const isBottom = line == cell.height - 1 && frame.hasBorder(border.bottom);
    auto const begin = [&] { piece.fill(left, blankOn(grid.background())); };
    if (isShown && (isTop || isBottom)) {
        begin();
        addHorizontal(piece, style, isTop, right - left, background);
        return;
    }
    if (isShown && (isDrawn(background) || frame.hasBorder(border.left))) begin();
    if (isShown && frame.hasBorder(border.left)) addVertical(piece, border.left, background);
    if (parts == Parts::all) paintContent(piece, cell, left, line - cell.above);
    bool const hasRight = frame.hasBorder(border.right);
    if (!isShown || (!hasRight && !isDrawn(background))) return;
    piece.fill(right - (hasRight ? 1 : 0), blankOn(background));
    // In a cell of one column both borders are one.
    if (hasRight && piece.width() < right) addVertical(piece, border.right, background);
}

/// Adds a row of a cell's content, if there is such a one, where nothing sticks out.
void TablePainter::paintContent(Row& piece, LaidCell const& cell, int left, int line) {
    if (line < 0 || line >= cell.contentHeight()) return;
    RowView const content = band.rowOf(cell, line);
    if (content.width == 0) return;
    Colour const background = cell.cell->content.background();
    int const indent = band.indentOf(cell, line);
    int const column = cell.contentLeft + indent;
    bool const sticksOut = cell.isOutdented || indent + content.width > cell.contentWidth;
    if (sticksOut || left != cell.left || column < overlaysEnd) {
        overlays.push_back({column, content, &cell});
        overlaysEnd = std::max(overlaysEnd, overlays.back().end());
        return;
    }
    piece.fill(column, blankOn(background));
    piece.add(content, Colour::transparent(), background);
}

}  // namespace galley::web

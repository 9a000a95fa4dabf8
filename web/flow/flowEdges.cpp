// What stands beside the content of blocks in their rows: edges, markers of list items.

#include <algorithm>
#include <deque>
#include <span>
#include <utility>

#include "web/flow/Border.h"
#include "web/flow/Flow.h"
#include "web/flow/RowCanvas.h"

namespace galley::web {

/// Finds what a block stands on, in one that is on `behind` and has up to column `limit` for it.
void Flow::findGround(Block& block, int limit, Colour behind) {
    Style const& style = *block.style;
    Border const& border = style.border.right;
    bool const hasEdges = border.isThere() || style.border.left.isThere() ||
                          backgroundOf(style, Colour::transparent()) != Colour::transparent();
    block.innerRight = limit;
    if (hasEdges) block.innerRight = std::min(limit, block.right - (border.isThere() ? 1 : 0));
    if (block.right > limit) block.innerRight = s_nowhere;
    block.around = block.innerRight == s_nowhere ? Colour::transparent() : behind;
    block.background = backgroundOf(style, block.around);
    block.hasShownEdges = hasEdges || isDrawn(block.around);
}

/// Begins a row of content.
void Flow::beginRow() {
    row.clear();
    addLeftEdges(blocks.size(), true);
}

/// Adds what is left of the content of the outermost blocks, so many, as far as they have started;
/// in a row of content the markers that have not been shown.
void Flow::addLeftEdges(std::size_t count, bool isContent) {
    if (waitingMarkers == 0 && !hasShownEdges(count)) return;
    for (std::size_t i = 0; i < count; ++i) {
        Block& block = blocks[i];
        if (!block.firstRow) break;
        if (isContent && !block.marker.text.empty()) addMarker(block);
        if (!block.hasShownEdges) continue;
        // The next block's marker stands before it, on what is around that.
        bool const isBeforeMarker =
            isContent && i + 1 < count && !blocks[i + 1].marker.text.empty();
        if (block.style->border.left.isThere() || isDrawn(block.around) ||
            isDrawn(block.background)) {
            row.fill(block.left, blankOn(block.around));
        }
        addVertical(row, block.style->border.left, block.background, isVisible(*block.style));
        if (isDrawn(block.background) && !isBeforeMarker) {
            row.fill(block.contentLeft, blankOn(block.background));
        }
    }
}

/// Adds a marker to the left of its block, or where that begins further left than there is room,
/// before it.
void Flow::addMarker(Block& block) {
    int const column = block.left - block.marker.columns;
    bool const isMoved = column < row.width();
    row.fill(column, blankOn(block.around));
    paintMarker(row, block, isMoved ? Colour::transparent() : block.around);
    hasMovedMarker = hasMovedMarker || isMoved;
}

void Flow::paintMarker(Row& painted, Block& block, Colour behind) {
    Look look = lookOf(*block.style, behind);
    look.isUnderlined = look.isStruckThrough = false;
    addText(painted, block.marker.text, block.marker.columns, *block.style, look);
    block.marker.text.clear();
    --waitingMarkers;
}

/// Adds the marker of the innermost block, an item without a line, beside its first row. One in
/// which there is nothing has an empty line.
void Flow::addLateMarker() {
    Block& block = blocks.back();
    if (!block.hasContent) {
        start();
        takeBaseline();
        beginRow();
        return endRow(blocks.size(), {}, row.width());
    }
    if (!block.firstRow || *block.firstRow == rowCount) {
        // As in Chromium, a margin above an item without height stands behind its marker, too.
        int const margin = pending;
        start();
        addBlanks(1);
        pending = margin;
    }
    auto const rowsBehind = static_cast<std::size_t>(rowCount - *block.firstRow);
    Row& beside = held[held.size() - rowsBehind];
    int const column = block.left - block.marker.columns;
    line.clear();
    paintMarker(line, block, Colour::transparent());
    row.clear();
    row.fill(-column, blankOn(ground));
    row.add(beside.view());
    row.draw(std::max(column, 0), line.view(), mannerOf(*block.style));
    std::swap(beside, row);
}

void Flow::handOnHeld() {
    for (Row const& each : held) sink.take(each);
    held.clear();
}

/// Ends a row that has the left edges of the outermost blocks, so many, with what stands from a
/// column on, on what these have behind it.
void Flow::endRow(std::size_t count, RowView const& content, int column) {
    int const inner = count == 0 ? ownLeft : blocks[count - 1].contentLeft;
    // A marker may need more room than there is.
    int const begin = std::max(0, column < inner ? column : std::max(column, row.width()));
    int const limit = count == 0 ? s_unlimited : blocks[count - 1].innerRight;
    bool const isMoved = std::exchange(hasMovedMarker, false);
    if (isMoved || begin < row.width() || begin + content.width > limit) {
        drawOver(count, content, begin);
        return handOn(row);
    }
    Colour const behind = count == 0 ? ground : blocks[count - 1].background;
    row.fill(begin, blankOn(behind));
    row.add(content, Colour::transparent(), behind);
    addRightEdges(count);
    handOn(row);
}

/// How what has transparent backgrounds is drawn.
Row::Manner Flow::mannerOf(Style const& style) const {
    return {.ground = Colour::transparent(),
            .beyond = ground,
            .isAmbiguousWide = style.cells.isAmbiguousWide};
}

/// Draws what sticks out over all that the blocks have in the row.
void Flow::drawOver(std::size_t count, RowView const& content, int column) {
    Row::Manner const manner = mannerOf(*blocks.back().style);
    RowCanvas canvas({}, manner.isAmbiguousWide);
    std::deque<Row> pieces;
    auto const draw = [&](int from, RowView const& piece) {
        if (from + piece.width > s_widestRow) throw PageTooLarge();
        budget.take(s_costOfCell * static_cast<std::size_t>(from + piece.width));
        canvas.draw(from, piece, manner);
    };
    for (Block const& block : std::span(blocks).first(count)) {
        Colour const own = backgroundOf(*block.style, Colour::transparent());
        Border const& border = block.style->border.right;
        bool const hasRight = border.isThere();
        if (!block.firstRow || (!hasRight && own == Colour::transparent())) continue;
        Row& piece = pieces.emplace_back();
        piece.fill(block.right - block.left - (hasRight ? 1 : 0), blankOn(own));
        addVertical(piece, border, own, isVisible(*block.style));
        draw(block.left, piece.view());
    }
    draw(0, row.view());
    draw(column, content);
    row = canvas.row();
}

void Flow::handOn(Row const& made) {
    budget.take(static_cast<std::size_t>(made.width()) + blocks.size() + 1);
    if (waitingMarkers > 0) {
        held.push_back(made);
    } else {
        handOnHeld();
        sink.take(made);
    }
    hasRows = true;
    ++rowCount;
}

/// Adds what is right of the content of the outermost blocks, so many.
void Flow::addRightEdges(std::size_t count) {
    if (!hasShownEdges(count)) return;
    for (std::size_t i = count; i-- > 0;) {
        Block const& block = blocks[i];
        if (!block.firstRow || !block.hasShownEdges) continue;
        Border const& border = block.style->border.right;
        int const column = block.right - (border.isThere() ? 1 : 0);
        if (!border.isThere() && block.background == block.around) continue;
        row.fill(column, blankOn(block.background));
        addVertical(row, border, block.background, isVisible(*block.style));
    }
}

/// Adds the border at the top or the bottom of the innermost block.
void Flow::addBorder(bool isTop) {
    Block const& block = blocks.back();
    Style const& style = *block.style;
    line.clear();
    addHorizontal(line, style, isTop, block.right - block.left,
                  backgroundOf(style, Colour::transparent()));
    row.clear();
    addLeftEdges(blocks.size() - 1, false);
    endRow(blocks.size() - 1, line.view(), block.left);
}

}  // namespace galley::web

// What stands beside the content of blocks in their rows: edges, markers of list items.

#include <utility>

#include "web/flow/Border.h"
#include "web/flow/Flow.h"

namespace galley::web {

/// Begins a row of content.
void Flow::beginRow() {
    row.clear();
    addLeftEdges(blocks.size(), true);
}

/// Adds what is left of the content of the outermost blocks, so many, as far as they have started;
/// in a row of content the markers that have not been shown.
void Flow::addLeftEdges(std::size_t count, bool isContent) {
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
    row.fill(block.left - block.marker.columns, blankOn(block.around));
    Look look = lookOf(*block.style, block.around);
    look.isUnderlined = look.isStruckThrough = false;
    if (isVisible(*block.style)) {
        row.add(block.marker.text, block.marker.columns, look);
    } else {
        row.fill(row.width() + block.marker.columns, look);
    }
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
        return endRow();
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
    bool const isAmbiguousWide = block.style->cells.isAmbiguousWide;
    row.clear();
    row.addPart(beside.view(), 0, block.left - block.marker.columns, isAmbiguousWide);
    addMarker(block);
    row.addPart(beside.view(), block.left, beside.width(), isAmbiguousWide);
    std::swap(beside, row);
}

void Flow::handOnHeld() {
    for (Row const& each : held) sink.take(each);
    held.clear();
}

void Flow::endRow() {
    addRightEdges(blocks.size());
    handOn(row);
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
    for (std::size_t i = count; i-- > 0;) {
        Block const& block = blocks[i];
        if (!block.firstRow || !block.hasShownEdges) continue;
        Border const& border = block.style->border.right;
        int const column = block.right - (border.isThere() ? 1 : 0);
        if (!border.isThere() && block.background == block.around) continue;
        if (row.width() > column) {
            addRightEdgeBelow(block, column);
        } else {
            row.fill(column, blankOn(block.background));
            addVertical(row, border, block.background, isVisible(*block.style));
        }
    }
}

/// Where content sticks out of its block, the block's right edge is below it, and behind that what
/// is around the block.
void Flow::addRightEdgeBelow(Block const& block, int column) {
    // For each such block.
    budget.take(s_costOfCell * static_cast<std::size_t>(row.width()));
    Row below;
    bool const isAmbiguousWide = block.style->cells.isAmbiguousWide;
    below.addPart(row.view(), 0, column, isAmbiguousWide);
    addVertical(below, block.style->border.right, block.background, isVisible(*block.style));
    below.fill(row.width(), blankOn(block.around));
    below.draw(
        0, row.view(),
        {.ground = block.background, .beyond = block.around, .isAmbiguousWide = isAmbiguousWide});
    std::swap(row, below);
}

/// Adds the border at the top or the bottom of the innermost block.
void Flow::addBorder(bool isTop) {
    Block const& block = blocks.back();
    row.clear();
    addLeftEdges(blocks.size() - 1, false);
    row.fill(block.left, blankOn(block.around));
    addHorizontal(row, *block.style, isTop, block.right - block.left, block.background);
    addRightEdges(blocks.size() - 1);
    handOn(row);
}

}  // namespace galley::web

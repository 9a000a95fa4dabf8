#include "web/flow/Flow.h"

#include <algorithm>
#include <utility>

#include "web/flow/Border.h"
#include "web/flow/Table.h"
#include "web/flow/lengths.h"
#include "web/flow/paintLine.h"

namespace galley::web {

namespace {

bool isShown(Colour background) { return background.kind != Colour::Kind::terminal; }

/// Hands the rows of a table on to what is around it.
class RowsOfTable final : public TableSink {
public:
    explicit RowsOfTable(Flow& around) : flow(around) {}

    void begin(int tableLeft) override { left = tableLeft; }
    void take(Row const& row) override { flow.addTableRow(row.view(), left); }

private:
    Flow& flow;
    int left = 0;
};

}  // namespace

Flow::Flow(RowSink& rows, PageBudget& cells, int columns, Colour background, OuterMargins outer,
           Wrapping wrapped)
    : sink(rows),
      budget(cells),
      width(columns),
      ground(background),
      dropsMargins(outer == OuterMargins::dropped),
      wrapping(wrapped) {}

void Flow::open(Style const& style, OutsideMarker marker) {
    int const container = columns();
    (blocks.empty() ? hasOwnContent : blocks.back().hasContent) = true;
    HorizontalPlace const place = placeBlock(style, container);
    int const left = contentLeft() + place.marginLeft;
    int const edge = (style.border.left.isThere() ? 1 : 0) + across(style.padding.left, container);
    pending = std::max(pending, down(style.margin.top, container));
    Colour const around = background();
    Block& block = blocks.emplace_back();
    block.style = &style;
    block.marker = std::move(marker);
    block.left = left;
    block.right = left + place.borderWidth;
    block.contentLeft = left + edge;
    block.contentWidth = place.width;
    block.around = around;
    block.background = backgroundOf(style, around);
    block.hasShownEdges = style.border.left.isThere() || style.border.right.isThere() ||
                          isShown(around) || isShown(block.background);
    int const padding = down(style.padding.top, container);
    if (!style.border.top.isThere() && padding == 0) return;
    start();
    if (style.border.top.isThere()) addBorder(true);
    addBlanks(padding);
}

void Flow::close() {
    Style const& style = *blocks.back().style;
    int const container = blocks.size() > 1 ? blocks[blocks.size() - 2].contentWidth : width;
    int const padding = down(style.padding.bottom, container);
    bool const hasMarker = !blocks.back().marker.text.empty();
    if (hasMarker) {
        // An item without a line has the row of its marker.
        start();
        beginRow();
        endRow();
    }
    bool const hasBottom = style.border.bottom.isThere() || padding > 0;
    if (hasBottom) {
        start();
        addBlanks(padding);
        if (style.border.bottom.isThere()) addBorder(false);
    }
    blocks.pop_back();
    pending = std::max(pending, down(style.margin.bottom, container));
}

void Flow::add(PlainText const& text) {
    Style const& style = *text.block;
    using Purpose = LineBreaker::Purpose;
    bool const partsWords = LineBreaker::mayPart(style, Purpose::layingOut, wrapping);
    Look const look = lookOf(style, text.background);
    int const firstIndent = beginParagraph(style);
    auto const addLine = [&](std::string_view line, int indent) {
        auto const length = static_cast<int>(line.size());
        beginLine(style, indent, length);
        if (isVisible(style)) {
            row.add(line, length, look);
        } else {
            row.fill(row.width() + length, look);
        }
        endRow();
    };
    breakLines(text, columns(), partsWords, firstIndent, addLine);
}

void Flow::add(Paragraph const& paragraph) {
    int const container = columns();
    LineBreaker breaker(paragraph, container, LineBreaker::Purpose::layingOut, wrapping);
    Style const& style = paragraph.block();
    int indent = beginParagraph(style);
    for (Place at; !breaker.isAtEnd(at); indent = 0) {
        TextLine const line = breaker.next(at, container, indent);
        bool const isSpread = style.textAlign == TextAlign::justify && !line.isLast;
        int const spare = isSpread ? std::max(0, container - indent - line.width) : 0;
        int const start = beginLine(style, indent, line.width) - indent;
        paintLine(row, paragraph, line, container, start, spare);
        endRow();
        at = line.end;
    }
}

/// Returns the columns that its first line is indented.
int Flow::beginParagraph(Style const& style) {
    bool& hasContent = blocks.empty() ? hasOwnContent : blocks.back().hasContent;
    bool const isFirst = !std::exchange(hasContent, true);
    start();
    if (!firstLine) firstLine = rowCount;
    return isFirst ? across(style.textIndent, columns()) : 0;
}

/// Begins the row of a line that is so wide. Returns the column where it stands.
int Flow::beginLine(Style const& style, int indent, int lineWidth) {
    int const column = contentLeft() + columnOfLine(style, columns(), indent, lineWidth);
    beginRow();
    row.fill(column, blankOn(background()));
    return column;
}

void Flow::add(std::unique_ptr<Table> table) {
    int const container = columns();
    (blocks.empty() ? hasOwnContent : blocks.back().hasContent) = true;
    Style const& style = table->style();
    pending = std::max(pending, down(style.margin.top, container));
    // Margins do not collapse through a table, even one without rows.
    start();
    hasRows = true;
    RowsOfTable rows(*this);
    table->layOut(container, wrapping, rows, budget);
    pending = std::max(pending, down(style.margin.bottom, container));
}

void Flow::addTableRow(RowView const& tableRow, int left) {
    bool const isBlank = tableRow.text.find_first_not_of(' ') == std::string_view::npos;
    if (!firstLine && !isBlank) firstLine = rowCount;
    beginRow();
    row.fill(contentLeft() + left, blankOn(background()));
    row.add(tableRow);
    endRow();
}

void Flow::finish() {
    if (!dropsMargins) addBlanks(pending);
    pending = 0;
}

void Flow::restart(int columns, Colour newGround, Wrapping wrapped) {
    width = columns;
    ground = newGround;
    wrapping = wrapped;
    hasRows = hasOwnContent = false;
    rowCount = 0;
    firstLine.reset();
}

/// Makes the rows of the margin that waits. From now on rows are those of all open blocks.
void Flow::start() {
    if (pending > 0) {
        int const rows = std::exchange(pending, 0);
        if (hasRows || !dropsMargins) addBlanks(rows);
    }
    for (Block& block : blocks) block.hasStarted = true;
}

void Flow::addBlanks(int rows) {
    for (; rows > 0; --rows) {
        row.clear();
        addLeftEdges(blocks.size(), false);
        endRow();
    }
}

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
        if (!block.hasStarted) break;
        if (isContent && !block.marker.text.empty()) addMarker(block);
        if (!block.hasShownEdges) continue;
        // The next block's marker stands before it, on what is around that.
        bool const isBeforeMarker =
            isContent && i + 1 < count && !blocks[i + 1].marker.text.empty();
        if (block.style->border.left.isThere() || isShown(block.around) ||
            isShown(block.background)) {
            row.fill(block.left, blankOn(block.around));
        }
        addVertical(row, block.style->border.left, block.background, isVisible(*block.style));
        if (isShown(block.background) && !isBeforeMarker) {
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
}

void Flow::endRow() {
    addRightEdges(blocks.size());
    handOn();
}

void Flow::handOn() {
    budget.take(static_cast<std::size_t>(row.width()) + blocks.size() + 1);
    sink.take(row);
    hasRows = true;
    ++rowCount;
}

/// Adds what is right of the content of the outermost blocks, so many.
void Flow::addRightEdges(std::size_t count) {
    for (std::size_t i = count; i-- > 0;) {
        Block const& block = blocks[i];
        if (!block.hasStarted || !block.hasShownEdges) continue;
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
    // The row is made anew, cell by cell, for each such block.
    constexpr std::size_t s_costOfCell = 8;
    budget.take(s_costOfCell * static_cast<std::size_t>(row.width()));
    Row below;
    bool const isAmbiguousWide = block.style->cells.isAmbiguousWide;
    below.addPart(row.view(), 0, column, isAmbiguousWide);
    addVertical(below, block.style->border.right, block.background, isVisible(*block.style));
    below.fill(row.width(), blankOn(block.around));
    below.draw(0, row.view(), block.background, isAmbiguousWide);
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
    handOn();
}

}  // namespace galley::web

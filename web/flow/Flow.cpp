#include "web/flow/Flow.h"

#include <algorithm>
#include <utility>

#include "web/flow/Table.h"
#include "web/flow/lengths.h"
#include "web/flow/paintLine.h"

namespace galley::web {

namespace {

/// Hands the rows of a table on to what is around it.
class RowsOfTable final : public TableSink {
public:
    explicit RowsOfTable(Flow& around) : flow(around) {}

    void begin(int tableLeft) override { left = tableLeft; }
    void takeBaseline() override { flow.takeBaseline(); }
    void take(Row const& row) override { flow.addTableRow(row, left); }

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

void Flow::open(Style const& style, OutsideMarker const& marker) {
    int const container = columns();
    (blocks.empty() ? hasOwnContent : blocks.back().hasContent) = true;
    HorizontalPlace const place = placeBlock(style, container);
    int const left = contentLeft() + place.marginLeft;
    int const edge = (style.border.left.isThere() ? 1 : 0) + across(style.padding.left, container);
    pending = std::max(pending, down(style.margin.top, container));
    int const limit = innerRight();
    Colour const behind = background();
    bool const isInShownEdges = hasShownEdges(blocks.size());
    Block& block = blocks.emplace_back();
    block.style = &style;
    if (!marker.text.empty()) {
        block.marker = marker;
        ++waitingMarkers;
    }
    block.left = left;
    block.right = left + place.borderWidth;
    block.contentLeft = left + edge;
    block.contentWidth = place.width;
    findGround(block, limit, behind);
    block.isInShownEdges = block.hasShownEdges || isInShownEdges;
    int const padding = down(style.padding.top, container);
    if (!style.border.top.isThere() && padding == 0) return;
    start();
    if (style.border.top.isThere()) addBorder(true);
    addBlanks(padding);
}

void Flow::restyle(Style const& style) {
    Block& block = blocks.front();
    block.style = &style;
    findGround(block, s_unlimited, ground);
    block.isInShownEdges = block.hasShownEdges;
}

void Flow::close() {
    Style const& style = *blocks.back().style;
    int const container = blocks.size() > 1 ? blocks[blocks.size() - 2].contentWidth : width;
    int const padding = down(style.padding.bottom, container);
    if (!blocks.back().marker.text.empty()) addLateMarker();
    bool const hasBottom = style.border.bottom.isThere() || padding > 0;
    if (hasBottom) {
        start();
        addBlanks(padding);
        if (style.border.bottom.isThere()) addBorder(false);
    }
    blocks.pop_back();
    pending = std::max(pending, down(style.margin.bottom, container));
    if (waitingMarkers == 0) handOnHeld();
}

void Flow::add(PlainText const& text) {
    Style const& style = *text.block;
    using Purpose = LineBreaker::Purpose;
    bool const partsWords = LineBreaker::mayPart(style, Purpose::layingOut, wrapping);
    Look const look = lookOf(style, background());
    auto const addLine = [&](std::string_view words, int length, int indent) {
        int const column = contentLeft() + columnOfLine(style, columns(), indent, length);
        beginRow();
        bool const isWithin = column >= row.width() && column + length <= innerRight();
        if (isWithin && !hasMovedMarker) {
            row.fill(column, blankOn(background()));
            addText(row, words, length, style, look);
            addRightEdges(blocks.size());
            return handOn(row);
        }
        line.clear();
        addText(line, words, length, style, lookOf(style, Colour::transparent()));
        endRow(blocks.size(), line.view(), column);
    };
    breakLines(text, columns(), partsWords, beginParagraph(style), addLine);
}

void Flow::add(Paragraph const& paragraph) {
    int const container = columns();
    LineBreaker breaker(paragraph, container, LineBreaker::Purpose::layingOut, wrapping);
    Style const& style = paragraph.block();
    int indent = beginParagraph(style);
    for (Place at; !breaker.isAtEnd(at); indent = 0) {
        TextLine const part = breaker.next(at, container, indent);
        bool const isSpread = style.textAlign == TextAlign::justify && !part.isLast;
        int const spare = isSpread ? std::max(0, container - indent - part.width) : 0;
        line.clear();
        paintLine(line, paragraph, part, container, -indent, spare);
        beginRow();
        int const column = contentLeft() + columnOfLine(style, container, indent, part.width);
        endRow(blocks.size(), line.view(), column);
        at = part.end;
    }
}

/// Adds text of an element, or if that is hidden as many blanks.
void Flow::addText(Row& painted, std::string_view text, int columns, Style const& style,
                   Look const& look) {
    if (isVisible(style)) {
        painted.add(text, columns, look);
    } else {
        painted.fill(painted.width() + columns, look);
    }
}

/// Returns the columns that its first line is indented, at most up to the left edge of the
/// container where that is less than 0.
int Flow::beginParagraph(Style const& style) {
    bool& hasContent = blocks.empty() ? hasOwnContent : blocks.back().hasContent;
    bool const isFirst = !std::exchange(hasContent, true);
    start();
    takeBaseline();
    return isFirst ? std::max(acrossRoundedUp(style.textIndent, columns()), -contentLeft()) : 0;
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

void Flow::addTableRow(Row const& tableRow, int left) {
    beginRow();
    endRow(blocks.size(), tableRow.view(), contentLeft() + left);
}

void Flow::finish() {
    if (!dropsMargins) addBlanks(pending);
    pending = 0;
}

void Flow::restart(int columns, Wrapping wrapped, int left) {
    width = columns;
    ownLeft = left;
    wrapping = wrapped;
    hasRows = hasOwnContent = false;
    rowCount = 0;
    firstBaseline.reset();
}

/// Makes the rows of the margin that waits. From now on rows are those of all open blocks.
void Flow::start() {
    if (pending > 0) {
        int const rows = std::exchange(pending, 0);
        if (hasRows || !dropsMargins) addBlanks(rows);
    }
    for (Block& block : blocks) {
        if (!block.firstRow) block.firstRow = rowCount;
    }
}

void Flow::addBlanks(int rows) {
    for (; rows > 0; --rows) {
        row.clear();
        addLeftEdges(blocks.size(), false);
        endRow(blocks.size(), {}, row.width());
    }
}

}  // namespace galley::web

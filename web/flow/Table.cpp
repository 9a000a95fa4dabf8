#include "web/flow/Table.h"

#include <algorithm>
#include <utility>

#include "web/flow/Flow.h"
#include "web/flow/TablePainter.h"
#include "web/flow/columnNeeds.h"
#include "web/flow/lengths.h"

namespace galley::web {

Table::Table(Style const& tableStyle, Sizing sized)
    : ownStyle(tableStyle), sizing(sized), grid(backgroundOf(tableStyle, Colour::transparent())) {}

BlockSink& Table::addCaption(Style const& caption) {
    // Laid out as a block, it has its background from that.
    contents.begin(captions.emplace_back(caption, Colour::transparent()));
    return contents;
}

void Table::beginColumnGroup(Style const& group, int span) {
    endColumnGroup();
    columnGroup = {&group, span, false};
}

void Table::addColumn(Style const& column, int span) {
    if (!columnGroup) {
        grid.addColumns(&column, nullptr, true, span);
        return;
    }
    bool const isFirst = !std::exchange(columnGroup->hasColumns, true);
    grid.addColumns(&column, columnGroup->style, isFirst, span);
}

void Table::endColumnGroup() {
    if (columnGroup && !columnGroup->hasColumns) {
        grid.addColumns(nullptr, columnGroup->style, true, columnGroup->span);
    }
    columnGroup.reset();
}

void Table::beginGroup(Style const& group, Display kind) { grid.beginGroup(&group, kind); }

void Table::beginRow(Style const& row) {
    if (!grid.hasOpenGroup()) grid.beginGroup(nullptr, Display::rowGroup);
    grid.beginRow(&row);
}

BlockSink& Table::addCell(Style const& cell, int columnSpan, int rowSpan) {
    if (!grid.hasOpenGroup()) grid.beginGroup(nullptr, Display::rowGroup);
    if (!grid.hasOpenRow()) grid.beginRow(nullptr);
    contents.begin(grid.addCell(cell, columnSpan, rowSpan).content);
    return contents;
}

void Table::complete() {
    if (frame) return;
    endColumnGroup();
    // Borders above and below a row without cells would lie on one another.
    grid.complete({.dropsEmptyRows = ownStyle.collapsesBorders, .joinsColumns = !isFixed()});
    frame.emplace(grid, ownStyle);
}

std::vector<ColumnNeed>& Table::needs(Wrapping wrapping) {
    auto& known = wrapping == Wrapping::anywhere ? needsAnywhere : needsAsStyled;
    if (!known) {
        known = isFixed() ? fixedNeeds(grid, *frame) : automaticNeeds(grid, *frame, wrapping);
    }
    return *known;
}

/// Of the border box, by its content alone.
Widths Table::innerWidths(Wrapping wrapping, int captionWidth, int container) {
    ColumnSums const parts = sumOf(needs(wrapping));
    int const least = std::max(captionWidth, frame->widthFor(parts.least, container));
    return {least, std::max(least, frame->widthFor(parts.most, container))};
}

/// The longest word of a caption widens the table.
int Table::captionWidth(Wrapping wrapping) {
    std::optional<int>& known = wrapping == Wrapping::anywhere ? captionAnywhere : captionAsStyled;
    if (known) return *known;
    known = 0;
    Paragraph scratch;
    for (Content const& caption : captions) {
        Widths const content =
            wrapping == Wrapping::anywhere ? caption.partedWidths(scratch) : caption.widths();
        known = std::max(*known, withEdges(content, caption.style()).least);
    }
    return *known;
}

Widths Table::outerWidths(Wrapping wrapping) {
    complete();
    Widths const content = innerWidths(wrapping, captionWidth(wrapping), 0);
    int const edges = sizedEdges(0);
    Widths const widths = withLimits({content.least - edges, content.most - edges}, ownStyle);
    int const margins = across(ownStyle.margin.left, 0) + across(ownStyle.margin.right, 0);
    return {std::max(widths.least + edges, content.least) + margins,
            std::max(widths.most + edges, content.least) + margins};
}

/// Columns that come to those that the style asks for.
int Table::sizedEdges(int container) const {
    return sizing == Sizing::borderBox ? 0 : frame->ownEdges(container);
}

int Table::usedWidth(Widths const& content, int container) const {
    int const edges = sizedEdges(container);
    int const margins =
        across(ownStyle.margin.left, container) + across(ownStyle.margin.right, container);
    int const wanted = isAutomatic(ownStyle.width) ? std::min(content.most, container - margins)
                                                   : across(ownStyle.width, container) + edges;
    return std::max(limitWidth(wanted - edges, ownStyle, container) + edges, content.least);
}

void Table::layOut(int columns, Wrapping around, TableSink& rows, PageBudget& budget) {
    complete();
    int const margins =
        across(ownStyle.margin.left, columns) + across(ownStyle.margin.right, columns);
    int const caption = captionWidth(around);
    bool const isTooWide = innerWidths(around, caption, columns).least + margins > columns;
    Wrapping wrapping = isTooWide ? Wrapping::anywhere : around;
    // Where its words do not fit, cells part them, but no more of them than they must, and none
    // where it would not fit for all that.
    if (wrapping == Wrapping::anywhere && !isFixed()) {
        std::int64_t const parts = frame->partsFor(columns - margins, columns);
        needsAnywhere = fittingNeeds(grid, *frame, parts);
        if (sumOf(*needsAnywhere).least > parts) wrapping = around;
    }
    Widths content = innerWidths(wrapping, caption, columns);
    // Percentages widen a table only as far as there is room, so not what is around it.
    int const widened = frame->widthFor(widthOfPercentages(needs(wrapping)), columns);
    content.most = std::max(content.most, widened);
    int const width = usedWidth(content, columns);
    int const spare = std::max(0, columns - margins - width);
    rows.begin(leftMargin(ownStyle, columns, spare));
    std::vector<int> const shared =
        frame->toCells(shareWidth(needs(wrapping), frame->partsFor(width, columns)));
    layOutCaptions(CaptionSide::top, width, around, rows, budget);
    TablePainter(grid, *frame, ownStyle, rows, budget).paint(width, shared, columns, wrapping);
    layOutCaptions(CaptionSide::bottom, width, around, rows, budget);
}

void Table::layOutCaptions(CaptionSide side, int width, Wrapping wrapping, RowSink& rows,
                           PageBudget& budget) {
    for (Content& caption : captions) {
        if (caption.style().captionSide != side) continue;
        Flow flow(rows, budget, width, Colour::transparent(), Flow::OuterMargins::shown, wrapping);
        flow.open(caption.style(), {});
        Paragraph scratch;
        caption.moveTo(flow, scratch);
        flow.close();
        flow.finish();
    }
}

}  // namespace galley::web

#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <vector>

#include "web/flow/Content.h"
#include "web/flow/PageBudget.h"
#include "web/flow/TableFrame.h"
#include "web/flow/TableGrid.h"
#include "web/flow/TableSink.h"
#include "web/flow/columnWidths.h"

namespace galley::web {

/// A table with all that is in it, which is measured while it is put together. Styles outlive it.
class Table {
public:
    /// What the widths are of that its style sets: of a `table`, and of what is only displayed so.
    enum class Sizing { borderBox, contentBox };

    Table(Style const& tableStyle, Sizing sized);

    Style const& style() const { return ownStyle; }

    /// Parts are added in the order of the document, captions and columns anywhere among them. What
    /// comes without its parent gets one: a cell a row, a row a group. Each part ends what is open
    /// of its kind, and all parts within that. The sink is for the content of the last cell or
    /// caption.
    ///@{
    BlockSink& addCaption(Style const& caption);
    /// Of so many columns, if none are added to it.
    void beginColumnGroup(Style const& group, int span);
    void addColumn(Style const& column, int span);
    void endColumnGroup();
    /// Of rows: a head, a foot or another one.
    void beginGroup(Style const& group, Display kind);
    void endGroup() { grid.endGroup(); }
    void beginRow(Style const& row);
    void endRow() { grid.endRow(); }
    /// Spans are cut to what they can be; 0 rows are all that follow in the group.
    BlockSink& addCell(Style const& cell, int columnSpan, int rowSpan);
    ///@}

    /// With its margins. To be called when all parts have been added.
    Widths outerWidths(Wrapping wrapping);
    /// Makes its rows in a container of so many columns, transparent where nothing of it has a
    /// background. Once only.
    void layOut(int columns, Wrapping around, TableSink& rows, PageBudget& budget);

private:
    struct OpenColumnGroup {
        Style const* style;
        int span;
        bool hasColumns;
    };

    void complete();
    bool isFixed() const { return ownStyle.hasFixedColumns && !isAutomatic(ownStyle.width); }
    std::vector<ColumnNeed>& needs(Wrapping wrapping);
    Widths innerWidths(Wrapping wrapping, int captionWidth, int container);
    int captionWidth(Wrapping wrapping);
    int sizedEdges(int container) const;
    int usedWidth(Widths const& content, int container) const;
    void layOutCaptions(CaptionSide side, int width, Wrapping wrapping, RowSink& rows,
                        PageBudget& budget);

    Style const& ownStyle;
    Sizing sizing;
    TableGrid grid;
    std::deque<Content> captions;
    ContentSink contents;
    std::optional<OpenColumnGroup> columnGroup;
    /// There once all parts have been added, and what has been asked for.
    ///@{
    std::optional<TableFrame> frame;
    std::optional<std::vector<ColumnNeed>> needsAsStyled;
    std::optional<std::vector<ColumnNeed>> needsAnywhere;
    std::optional<int> captionAsStyled;
    std::optional<int> captionAnywhere;
    ///@}
};

}  // namespace galley::web

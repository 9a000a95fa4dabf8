#pragma once

#include <limits>
#include <optional>
#include <vector>

#include "web/flow/BlockSink.h"
#include "web/flow/LineBreaker.h"
#include "web/flow/PageBudget.h"
#include "web/flow/Row.h"

namespace galley::web {

/// Lays out the content of a block container while it comes in, row by row: blocks below one
/// another, as wide as what is around them, with margins that collapse.
///
/// 1. A margin waits in `pending` until it is known what it collapses with: the larger counts.
/// 2. A block has *started* once a row of it has been made. Rows of a margin that waits stand
///    outside of the blocks that have not started, and of those that have closed.
/// 3. While the marker of an open block waits for a line, rows are held, so that it can stand
///    beside the first row of its block if none comes.
class Flow final : public BlockSink {
public:
    /// How margins at the top and the bottom of the content show.
    enum class OuterMargins { shown, dropped };

    /// Of so many columns on a background. The sink and the budget outlive it.
    Flow(RowSink& rows, PageBudget& cells, int columns, Colour background, OuterMargins outer,
         Wrapping wrapped = Wrapping::asStyled);

    void open(Style const& style, OutsideMarker const& marker) override;
    void close() override;
    /// Gives the outermost block, the only one that is open, another background for what comes.
    void restyle(Style const& style);
    void add(PlainText const& text) override;
    void add(Paragraph const& paragraph) override;
    void add(std::unique_ptr<Table> table) override;
    /// Adds a row of a table that stands so many columns right of the innermost block's left edge.
    void addTableRow(Row const& tableRow, int left);
    /// The row that comes next has a baseline.
    void takeBaseline() {
        if (!firstBaseline) firstBaseline = rowCount;
    }
    /// The first row that has a baseline: of a line, or of a table.
    std::optional<int> baseline() const { return firstBaseline; }
    /// Begins another container, which hands its rows to the same sink and stands so many columns
    /// to the right in them. To be called behind `finish`.
    void restart(int columns, Wrapping wrapped, int left);
    /// To be called behind all content.
    void finish();

private:
    /// A block that is open. Columns are counted from the left of the container.
    struct Block {
        Style const* style = nullptr;
        OutsideMarker marker;
        /// Of the border box.
        int left = 0;
        int right = 0;
        /// Of the content box.
        int contentLeft = 0;
        int contentWidth = 0;
        /// What is in it and ends there or before stands within all edges that are seen of it and
        /// of what is around it. Nothing does where it sticks out itself.
        int innerRight = 0;
        /// What it and its content stand on: transparent, if it has none of its own, where it
        /// sticks out and that differs from cell to cell.
        ///@{
        Colour around;
        Colour background;
        ///@}
        /// Whether cells on its left or its right are more than the terminal's own blanks, and
        /// whether they are of it or a block around it.
        ///@{
        bool hasShownEdges = false;
        bool isInShownEdges = false;
        ///@}
        /// There once it has started.
        std::optional<int> firstRow;
        /// Only text that comes first is indented.
        bool hasContent = false;
    };

    /// Where a row is made anew, cell by cell.
    static constexpr std::size_t s_costOfCell = 8;
    static constexpr int s_unlimited = std::numeric_limits<int>::max();
    static constexpr int s_nowhere = std::numeric_limits<int>::min();

    int columns() const { return blocks.empty() ? width : blocks.back().contentWidth; }
    int contentLeft() const { return blocks.empty() ? ownLeft : blocks.back().contentLeft; }
    Colour background() const { return blocks.empty() ? ground : blocks.back().background; }
    static void findGround(Block& block, int limit, Colour behind);
    static void addText(Row& painted, std::string_view text, int columns, Style const& style,
                        Look const& look);
    int beginParagraph(Style const& style);
    void start();
    void addBlanks(int rows);
    int innerRight() const { return blocks.empty() ? s_unlimited : blocks.back().innerRight; }
    void endRow(std::size_t count, RowView const& content, int column);
    Row::Manner mannerOf(Style const& style) const;
    void drawOver(std::size_t count, RowView const& content, int column);
    void beginRow();
    void handOn(Row const& made);
    bool hasShownEdges(std::size_t count) const {
        return count > 0 && blocks[count - 1].isInShownEdges;
    }
    void addLeftEdges(std::size_t count, bool isContent);
    void addMarker(Block& block);
    void paintMarker(Row& painted, Block& block, Colour behind);
    void addLateMarker();
    void handOnHeld();
    void addRightEdges(std::size_t count);
    void addBorder(bool isTop);

    RowSink& sink;
    PageBudget& budget;
    int width;
    int ownLeft = 0;
    Colour ground;
    bool dropsMargins;
    Wrapping wrapping;
    bool hasRows = false;
    int rowCount = 0;
    std::optional<int> firstBaseline;
    bool hasOwnContent = false;
    /// Rows of margins that wait.
    int pending = 0;
    std::vector<Block> blocks;
    /// How many of them have a marker that has not been shown.
    int waitingMarkers = 0;
    /// One in the row had no room before its block, and moved what comes behind it.
    bool hasMovedMarker = false;
    std::vector<Row> held;
    Row row;
    /// A line or a border that is not in its row yet.
    Row line;
};

}  // namespace galley::web

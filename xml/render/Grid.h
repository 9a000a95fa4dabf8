#pragma once

#include <cstdint>
#include <memory>
#include <memory_resource>
#include <string_view>
#include <vector>

#include "base/String.h"
#include "base/ZRVector.h"
#include "xml/render/Canvas.h"
#include "xml/render/CellBudget.h"

namespace CLI::XML {

/// The page of a conversion: one grid of cells, on which every box is a frame. What is drawn in
/// frames is what canvases of their own would show, each composed onto the one around when it is
/// complete: opaque, with fillers on the way to what stands further right.
///
/// 1. Of each row a frame covers the columns from its left end up to the row's extent in it: how
///    far the row has been drawn there.
/// 2. The rows from the frame's top up to its end are in use in it, and in every frame around: they
///    have been filled up to the left end of each, the outermost first.
/// 3. A frame shares the extents of the one around, and at last the lengths of the rows, where
///    nothing was drawn in its place before; else it has its own until it is left.
/// 4. What lies beneath a frame, background and border, is drawn when that is left, into the frame
///    around, but not into the cells that it covers. So it need not be known before.
///
/// What is drawn is paid for from a budget. Once that does not suffice nothing is drawn any more.
class Grid {
public:
    using Attributes = Canvas::Attributes;

    /// The budget outlives the grid.
    explicit Grid(CellBudget& cells);

    /// Begins a frame with its origin at (x, y) of the innermost one. What would lie left of or
    /// above that one's own is clipped.
    void enter(int x, int y);
    /// Ends the innermost frame. What is drawn from then on lies beneath it, until `uncover`.
    void leaveAndCover();
    /// The frame that was left is as any other part of the one around.
    void uncover() {
        cover.left = 0;
        cover.ends.clear();
    }
    /// Ends the innermost frame, which has nothing beneath it.
    void leave();

    /// Draws a text, up to a NUL, from column x rightwards in row y of the innermost frame.
    void draw(std::string_view text, int x, int y, Attributes const& attributes);
    /// Draws `text` repeated `times` times in `height` rows from row y down.
    void draw(std::string_view text, std::int64_t times, int x, int y, std::int64_t height,
              Attributes const& attributes);

    /// The page's row that is row 0 of the innermost frame.
    std::int64_t originRow() const { return frames.back().y; }
    /// Appends all rows to `text`, with escape sequences between cells that look different, and
    /// forgets them. Throws where there is no memory for the text.
    void moveRowsTo(String& text);
    /// The same for the rows above row `end` of the page, where nothing will be drawn any more, if
    /// there are some. Rows that are not in use in the innermost frame stay.
    void moveRowsTo(String& text, std::int64_t end);

private:
    /// A row, as long as it has been drawn. Small, since there may be millions.
    struct Row {
        char* bytes = nullptr;
        std::uint32_t length = 0;
        std::uint32_t capacity = 0;
        /// Of the cells from the first one on; those behind them look as by default.
        std::unique_ptr<std::vector<Attributes>> looks;

        std::size_t lookCount() const { return looks ? looks->size() : 0; }
    };

    struct Frame {
        std::int64_t x;
        std::int64_t y;
        std::int64_t left;
        std::int64_t top;
        /// Behind the last row in use: in a frame that is not the innermost one perhaps not yet
        /// behind those that frames in it have used, see `settled`.
        std::int64_t end;
        /// No extent from the top down is beyond this, or beyond the left end.
        std::int64_t widest;
        /// Number of the extents that it draws in, 0 for the lengths of the rows.
        std::size_t extents;
        /// The innermost frame around that stands in other extents than this one; 0 for none.
        std::size_t otherExtents;
    };

    /// How far rows have been drawn in frames that share this.
    struct Extents {
        std::int64_t left = 0;
        std::int64_t top = 0;
        /// For each row behind the last column.
        std::vector<std::int64_t> ends;

        std::int64_t end(std::int64_t y) const {
            auto const index = static_cast<std::size_t>(y - top);
            return index < ends.size() ? ends[index] : left;
        }
    };

    /// Part of a row.
    struct Span {
        std::int64_t begin;
        std::int64_t end;
    };

    std::int64_t endOfRows() const { return firstRow + rows.count - movedAway; }
    Row& row(std::int64_t y) const { return rows.data[movedAway + (y - firstRow)]; }
    /// Makes room for so many cells.
    void provide(Row& row, std::size_t cells);
    void bringIntoUse(std::int64_t y, std::int64_t end);
    std::int64_t extent(std::size_t extents, std::int64_t y) const;
    void raise(std::size_t extents, std::int64_t y, std::int64_t end);
    void touch(std::int64_t y, std::int64_t end) {
        if (y >= frames.back().end) touchNewRow(y, end);
    }
    void touchNewRow(std::int64_t y, std::int64_t end);
    void fillRows(std::size_t frame, std::int64_t begin, std::int64_t end);
    void fill(std::size_t extents, std::int64_t y, std::int64_t end);
    void drawInRow(std::string_view pattern, Span where, std::int64_t y,
                   Attributes const& attributes);
    void set(std::string_view pattern, std::int64_t start, Span where, std::int64_t y,
             Attributes const& attributes);
    static void setLooks(Row& target, std::size_t begin, std::size_t end, Attributes attributes);
    void moveRows(String& text, std::int64_t end);
    void writeRow(Row const& shown, String& text);

    CellBudget& budget;
    /// Of the cells of all rows. What a row outgrows is lost, which is less than it has then.
    std::pmr::monotonic_buffer_resource memory;
    /// Those of the page from `movedAway` on; those before it and behind the last one are to be
    /// used again.
    ZRVector<Row> rows;
    unsigned movedAway = 0;
    /// The page's row at `movedAway`.
    std::int64_t firstRow = 0;
    /// Innermost last. The first one is the page.
    std::vector<Frame> frames;
    /// Innermost last.
    std::vector<Extents> ownExtents;
    /// Frames before this one have used all rows above the next frame's top.
    std::size_t settled = 0;
    /// What the frame that was left last covers.
    Extents cover;
    /// What `fillRows` works on, kept for its memory.
    std::vector<std::size_t> inward;
};

}  // namespace CLI::XML

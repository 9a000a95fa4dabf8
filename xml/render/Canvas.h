#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "../../base/String.h"
#include "../../base/ZRVector.h"
#include "../../base/export.h"
#include "CellBudget.h"

namespace CLI::XML {

/// A grid of character cells, one byte of text each, and the one place where terminal formatting
/// is made. Coordinates are cell indices from the top left: column x, row y. What would lie left
/// of column 0 or above row 0 is clipped.
///
/// 1. Entry 0 of `attributeTable` is the default value; no value occurs twice; entries are never
///    removed or changed.
/// 2. Rows are ragged: each is as long as the cells written or padded into it. Rows and cells are
///    never removed, but for rows that `moveRowsTo` takes.
/// 3. Cells that only fill the way to a position further right are spaces with the default value.
class GALLEY_EXPORT Canvas {
public:
    /// What a cell looks like, as one 32-bit value whose top byte is 0.
    struct Attributes {
        /// What a terminal can do to a character, one bit each.
        enum Flag : std::uint8_t {
            Bold = 0x01,
            Faint = 0x02,
            Italic = 0x04,
            Underline = 0x08,
            Blink = 0x10,
            Inverse = 0x20,
            Hidden = 0x40,
        };
        /// Stands for the terminal's own colour.
        static constexpr std::uint8_t NoColor = 255;

        std::uint8_t flags = 0;             ///< Any number of `Flag`.
        std::uint8_t foreground = NoColor;  ///< A colour's number.
        std::uint8_t background = NoColor;  ///< A colour's number.
        std::uint8_t unused = 0;            ///< Stays 0.

        bool operator==(Attributes const& other) const = default;

        /// The number, 0 to 7, of a terminal colour's name; `NoColor` for any other text.
        static std::uint8_t color(String const& name);
        /// The escape sequences that switch a terminal from `previous` to this value: nothing
        /// between equal values, otherwise a reset and the whole new state.
        String generateFormattingFrom(Attributes const& previous) const;
    };

    /// One cell. The index has as many bits as an attribute value has, so that it can number
    /// every one of them.
    struct Byte {
        /// The byte shown; 0 shows nothing.
        std::uint32_t character : 8;
        /// Into `attributeTable`.
        std::uint32_t attributeIndex : 24;

        /// A cell; of the index the lower 24 bits count.
        static Byte make(unsigned char shown, unsigned index) { return {shown, index & 0xFFFFFF}; }
    };

    /// As a column: the current width. As a row: a new one below the last.
    static constexpr unsigned AppendPosition = 0xFFFFFFFF;

    /// The distinct attribute values that the cells refer to.
    ZRVector<Attributes> attributeTable;
    /// Top row first. On a canvas of a page one entry may stand for many rows that are alike.
    ZRVector<ZRVector<Byte>> rows;

    /// What becomes of a canvas: a page, or a part of one that is composed onto it.
    enum Use : std::uint8_t { Page, Overlay };

    Canvas() : Canvas(nullptr) {}
    /// A canvas of a page: a text whose cells the budget does not have is not drawn. The budget
    /// outlives the canvas; null for none.
    explicit Canvas(CellBudget* ofPage, Use use = Page)
        : budget(ofPage), isOverlay(use == Overlay && ofPage != nullptr) {
        attributeTable.add(Attributes());
    }
    Canvas(Canvas const&) = delete;
    Canvas& operator=(Canvas const&) = delete;
    ~Canvas() = default;

    /// Length of the longest row, in cells; 0 without rows.
    unsigned getWidth() const;
    /// The index of the value in `attributeTable`, to which it is added where it is missing.
    unsigned getOrStoreAttribute(Attributes const& attributes);

    /// Writes the bytes of `text`, up to a NUL, from (x, y) rightwards over whatever is there.
    /// Any other value above 2147483647 is a negative position. Returns false, with nothing
    /// changed, when there is no text, all of it is clipped or the budget is exceeded.
    bool draw(String text, unsigned x, unsigned y, Attributes const& attributes);
    /// Composes every cell of `source`, another canvas, onto this one, its top left corner at
    /// (x, y). Source cells replace target cells, spaces too. Returns whether `source` has a cell
    /// that is not clipped.
    bool draw(Canvas const& source, unsigned x, unsigned y);

    /// `draw` at a position that may be negative.
    ///@{
    bool drawClipped(std::string_view text, int x, int y, Attributes const& attributes);
    bool drawClipped(Canvas const& source, int x, int y);
    ///@}

    /// On a page, lends the attribute table to a canvas that is to be composed onto this one, or
    /// takes it back: in between nothing is drawn here.
    void exchangeAttributes(Canvas& inner);
    /// `drawClipped` of a canvas that has had and returned the table, and is of no use any more. On
    /// a page a wide row costs no more than what it is laid on.
    void compose(Canvas& inner, int x, int y);

    /// To be asked before a text of `cells` cells is made: false where the budget does not have
    /// them, and nothing of the page counts any more.
    bool mayDraw(std::int64_t cells) const;
    /// What the page's canvases draw from; not owned, null on a canvas of no page.
    CellBudget* cellBudget() const { return budget; }

    /// Draws the text in `height` rows, from row `y` down.
    bool drawDown(std::string_view text, int x, int y, int height, Attributes const& attributes);

    /// Moves the origin to (x, y), so that what is drawn until `leave` is drawn as if onto a canvas
    /// of its own that is then composed onto this one there. Returns false, with nothing changed,
    /// where that might not be the same: where the position is negative, or a row from the last
    /// origin down already has cells right of the position.
    bool enter(int x, int y);
    /// Brings back the origin that was there before the last `enter`.
    void leave();

    /// The grid as text with escape sequences, `lineSeparator` behind every row. Every row begins
    /// and ends in the default attributes.
    String dump(String const& lineSeparator) const;
    /// Appends the rows above row `y` to `text` in the same form, each ended by a line feed, and
    /// forgets them: for a page of which nothing is drawn there any more. Rows keep their numbers.
    /// Those from the last origin down in which nothing has been drawn since it was entered stay.
    /// False where there is no memory for all of the text, which is then without a part.
    bool moveRowsTo(String& text, unsigned y);

    /// Row and column of the origin that `enter` has set.
    unsigned originRow() const { return frames.empty() ? 0 : frames.back().top; }

private:
    using Row = ZRVector<Byte>;

    /// An origin that was entered. The rows from `top` up to `end` are at least `left` cells long.
    struct Frame {
        unsigned left;
        unsigned top;
        unsigned end;
        /// `widest` of the origin around.
        unsigned widestAround;
    };

    /// An entry of `rows` that stands for more than one row.
    struct Run {
        unsigned index;
        unsigned more;
    };

    /// What entries from `first` up to `end` are replaced by.
    struct Entries {
        Entries(unsigned replacedFirst, unsigned replacedEnd)
            : first(replacedFirst), end(replacedEnd) {}
        void add(Row&& row, unsigned times);

        unsigned first;
        unsigned end;
        std::vector<Row> rows;
        std::vector<Run> runs;
    };

    /// Where a row of a canvas lies on one or more that are alike.
    struct Overlap {
        /// The source's entry, and whether it lies on no rows behind these.
        unsigned index;
        bool isLast;
        unsigned rows;
        /// In the source, and how many cells from there on.
        unsigned first;
        unsigned length;
        /// Where the first one comes to lie.
        unsigned column;
    };

    int resolveColumn(unsigned x) const;
    int resolveRow(unsigned y) const;
    unsigned originColumn() const { return frames.empty() ? 0 : frames.back().left; }
    /// The row behind the last one.
    std::uint64_t endOfRows() const { return std::uint64_t{movedRows} + rows.count + repeatedRows; }
    bool isTouched(std::uint64_t y) const {
        return !frames.empty() && y >= movedRows && y < frames.back().end;
    }
    /// Row `y`, which exists from now on, with all rows above it as long as the origins ask for.
    Row& touchRow(std::uint64_t y) {
        if (!isTouched(y)) touchNewRow(y);
        return runs.empty() ? rows.data[y - movedRows] : loneRow(y);
    }
    void touchNewRow(std::uint64_t y);
    template <class Lay>
    bool visitComposed(Canvas const& source, int x, int y, Lay const& lay);
    void replaceEntries(Entries& entries);
    Row takenRow(Row& source, Row const& below, Overlap const& overlap);
    template <class Visit>
    void visitUntouched(std::uint64_t y, Visit const& visit);
    template <class Visit>
    void visitRows(std::uint64_t first, std::uint64_t end, Visit const& visit);
    Row& loneRow(std::uint64_t y);
    unsigned cutAt(std::uint64_t y);
    unsigned rowsAt(unsigned index) const;
    void bringIntoUse(std::uint64_t end);
    void lengthen(Row& row, std::uint64_t width, unsigned filled, unsigned times = 1);
    bool mayDrawAt(std::uint64_t top, std::uint64_t last, unsigned column, std::uint64_t drawn);
    std::uint64_t costOfRow(std::uint64_t y);
    template <class Sink>
    void writeRow(Row const& row, unsigned times, Sink const& sink) const;

    CellBudget* budget;
    /// Its rows will be handed over, with fillers before them.
    bool isOverlay;
    /// Rows, and cells that only fill the way to others, so far.
    std::uint64_t cellsMade = 0;
    /// What `getOrStoreAttribute` returned last.
    unsigned lastIndex = 0;
    /// Innermost last.
    std::vector<Frame> frames;
    /// No row from the origin down is longer than this, or than the origin is far to the right.
    unsigned widest = 0;
    /// In the order of their entries.
    std::vector<Run> runs;
    /// All rows that runs stand for, but one each.
    std::uint64_t repeatedRows = 0;
    /// Rows that were moved out; `rows` begins behind them.
    unsigned movedRows = 0;
    /// Empty rows with storage.
    std::vector<Row> spareRows;
};

static_assert(sizeof(Canvas::Attributes) == 4 && sizeof(Canvas::Byte) == 4);

}  // namespace CLI::XML

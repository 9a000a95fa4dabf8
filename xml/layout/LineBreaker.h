#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>
#include <vector>

#include "base/Walk.h"
#include "xml/layout/WidthSums.h"

namespace CLI::XML {

/// Breaks a paragraph into lines, as splitting its boxes one after the other does, without a box:
/// a line is a range of items. Widths must tell where lines end: `Items::breaksByWidths`.
///
/// What is too wide is found from the left: the first word that does not fit into the room that its
/// line has left, or the first element whose content with the edges in it does not. The break is
/// before it, or behind it where it is the first in its parent on the line. What the line keeps of
/// an element may not fit either, though: so the shorter line is looked at again.
///
/// Where an edge takes something off the width, a line or an element may fit although something in
/// it alone would not: then no break is looked for in it, and its width is known beforehand from
/// the sums of all that is before each item.
///
/// A block in an inline element is offered what the content before it in that element, on its line,
/// takes. So all blocks on the rest of a line are laid out again, where that changes anything.
class LineBreaker {
public:
    /// On lines of that many columns. The items outlive it.
    LineBreaker(Items const& paragraph, std::int32_t columns);

    /// Lays out the blocks on what begins at `from`, where the line before it ended. To be called
    /// before `next` where the paragraph holds blocks.
    Walk layOutBlocks(Position from);
    /// The end of the line that begins at `from`, where the one before it ended.
    Position next(Position from);

private:
    static constexpr std::uint32_t s_goesOn = 0xFFFFFFFF;

    /// An element on the line: one that is opened on it, or that goes on on it and has edges. One
    /// that goes on and has none needs none, since all that is on the line before is in it.
    struct Level {
        /// What its line had left where its content begins, in columns.
        std::int64_t room = 0;
        /// Of the content, in columns.
        std::int32_t width = 0;
        /// Where it opens on this line; where it goes on, s_goesOn.
        std::uint32_t open = s_goesOn;
        /// First in its parent on the line.
        bool isFirst = true;
        /// Something in it, or in what goes on in it, is complete.
        bool hasChild = false;
    };

    /// A word or an element that does not fit: where it begins, and what is behind it.
    struct Unfitting {
        bool isFirst = true;
        Position begin;
        Position end;
    };

    /// Of a word or a block: what counts for breaking, and what it takes up, in columns.
    struct Width {
        std::int64_t content;
        std::int64_t outer;
    };

    Position breakIn(Position from, Position limit);
    Position skipGoingOn(Position from, Position limit);
    Position takeOpen(std::uint32_t opened, Position limit);
    std::optional<Position> takeWords(Position at, Position limit);
    std::optional<Position> takeWhole(Position at, Width width, Position behind, Position limit);
    std::optional<Position> takeClose(std::uint32_t close, Position from, Position limit);
    std::int64_t endLevel(std::uint32_t close, Position from);
    Position takeEnd(Position limit);
    Position cut(Unfitting part, Position limit);
    void begin();
    void accept(Position from, Position end);
    bool mayGoOn(Item const& item) const;
    bool holdsOpen(Position from, Position end) const;
    void take(std::int64_t columnsLeft, std::int64_t width);
    bool opensHere() const { return levels.back().open != s_goesOn; }

    Items const& items;
    std::int32_t available;
    /// Of all blocks the largest width with edges, once all have been laid out.
    std::int64_t widestBlock = std::numeric_limits<std::int64_t>::max();
    /// Only where edges may take columns off.
    std::optional<WidthSums> sums;
    std::int64_t room = 0;
    /// Where lines end, the next one last: found with the line before, and what is behind them.
    std::vector<Position> limits;
    /// Where elements that go on on the line open: those with edges, or all of them where edges may
    /// take columns off. Outermost first.
    std::vector<std::uint32_t> goingOn;
    /// The line itself first.
    std::vector<Level> levels;
};

}  // namespace CLI::XML

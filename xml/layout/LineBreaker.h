#pragma once

#include <cstdint>
#include <limits>
#include <string_view>
#include <vector>

#include "base/Walk.h"
#include "xml/layout/Items.h"

namespace CLI::XML {

/// The bytes of as many words, each with the space behind it, as fit into that many columns.
std::size_t lengthOfFitting(std::string_view words, std::int64_t columns);

/// Breaks a paragraph into lines, as splitting its boxes one after the other does, without a box:
/// a line is a range of items. Widths must tell where lines end: `Items::breaksByWidths`.
///
/// What is too wide is found from the left: the first child of the line that is wider than what is
/// left of it; if that is an element the first such child of that, and so on inwards. The break is
/// before it, or behind it where it is the first in its parent on the line. What the line keeps of
/// an element may not fit either, though: so the shorter line is looked at again.
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

    /// The line, or an element on it that is too wide.
    struct Level {
        /// Where it opens on this line; where it goes on, s_goesOn.
        std::uint32_t open = s_goesOn;
        /// First in its parent on the line.
        bool isFirst = true;
        /// Something in it, or in what goes on in it without a level, is complete.
        bool hasChild = false;
    };

    /// What does not fit: where it begins, and what is behind it.
    struct Unfitting {
        bool isFirst = true;
        Position begin;
        Position end;
    };

    void sumUp(std::uint32_t begin, std::uint32_t end);
    /// The width with edges of a part, in columns, as if all of it stood on one line: an edge
    /// counts where its element opens, and a block has been laid out.
    std::int64_t widthOf(Position begin, Position end) const {
        return rests[begin.item] - begin.offset - (rests[end.item] - end.offset);
    }
    Position breakIn(Position from, Position limit);
    Position skipGoingOn(Position from, Position limit);
    Position takeElement(std::uint32_t opened, Position limit);
    Position takeFittingWords(Position at, std::string_view words);
    bool takeGoingOn(std::uint32_t close, Position from);
    Position cutAtLevel(Position end, Position limit);
    Position cut(Unfitting part, Position limit);
    void accept(Position from, Position end);
    bool hasLevel(Item const& item) const;
    void take(std::int64_t columns);
    bool opensHere() const { return levels.back().open != s_goesOn; }

    Items const& items;
    std::int32_t available;
    /// Of each item the width of all from there on, and of nothing.
    std::vector<std::int64_t> rests;
    /// Of all blocks the largest width with edges, once all have been laid out.
    std::int64_t widestBlock = std::numeric_limits<std::int64_t>::max();
    /// What is left of the line, in columns.
    std::int64_t room = 0;
    /// Edges of elements that go on on the line and fit.
    std::int64_t edgesGoingOn = 0;
    /// Where lines end, the next one last: found with the line before, and what is behind them.
    std::vector<Position> limits;
    /// Where elements that go on on the line open: those that may have a level. Outermost first.
    std::vector<std::uint32_t> goingOn;
    /// The line itself first.
    std::vector<Level> levels;
};

}  // namespace CLI::XML

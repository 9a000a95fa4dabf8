#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "xml/layout/Items.h"

namespace CLI::XML {

/// Breaks a paragraph into lines, as splitting its boxes one after the other does, without a box:
/// a line is a range of items. No edge in the paragraph is negative.
///
/// What is too wide is found from the left: the first word that does not fit into the room that its
/// line has left, or the first element whose content with the edges in it does not. The break is
/// before it, or behind it where it is the first in its parent on the line. What the line keeps of
/// an element may not fit either, though: so the shorter line is looked at again.
class LineBreaker {
public:
    /// Of the items up to `end`, on lines of that many columns. The items outlive it.
    LineBreaker(Items const& paragraph, Position end, std::int32_t columns);

    /// The end of the line that begins at `from`, where the one before it ended.
    Position next(Position from);

private:
    static constexpr std::uint32_t s_goesOn = 0xFFFFFFFF;

    /// An element on the line: one that is opened on it, or that goes on on it and is styled. One
    /// that goes on and is not needs none, since all that is on the line before is in it.
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

    Position breakIn(Position from, Position limit);
    std::optional<Position> takeWords(Position at, Position limit);
    std::optional<Position> takeWord(Position at, std::string_view word, Position behind,
                                     Position limit);
    std::optional<Position> takeClose(std::uint32_t close, Position from, Position limit);
    Position takeEnd(Position limit);
    Position cut(Unfitting part, Position limit);
    void open(std::uint32_t item);
    void begin();
    void accept(Position from, Position end);
    bool holdsOpen(Position from, Position end) const;
    void take(std::int64_t columnsLeft, std::int64_t width);
    bool opensHere() const { return levels.back().open != s_goesOn; }

    Items const& items;
    std::int32_t available;
    std::int64_t room = 0;
    /// Where lines end, the next one last: found with the line before, and what is behind them.
    std::vector<Position> limits;
    /// Styled elements that go on on the line, outermost first.
    std::vector<ElementStyle const*> goingOn;
    /// The line itself first.
    std::vector<Level> levels;
};

}  // namespace CLI::XML

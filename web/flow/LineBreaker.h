#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "web/flow/TextBreaker.h"

namespace galley::web {

/// A part of a paragraph that stands in one row.
struct TextLine {
    Place begin;
    Place end;
    /// In cells, without the white space at its end, which hangs.
    int width = 0;
    /// Its last text ends with a soft hyphen, which counts.
    bool hyphenates = false;
    /// It ends a paragraph, or is ended by a line feed: its text is not justified.
    bool isLast = false;
};

/// Where words may be parted: where their style says so, or as if the cells around them said
/// `overflow-wrap: anywhere`.
enum class Wrapping : std::uint8_t { asStyled, anywhere };

/// Breaks a paragraph into lines as Chromium does: takes parts of texts, and beginnings and ends of
/// elements with their edges, up to one that has no room, and goes back to the last opportunity
/// for which all before it fits. Where there is none, the line is filled again with words parted
/// anywhere, as far as their style says so; where that does not help, it sticks out up to the first
/// opportunity.
///
/// A break is behind the white space at it, and behind the ends of elements and the empty elements
/// there, whose edges stay.
class LineBreaker {
public:
    /// To measure how narrow a paragraph can be, `break-word` parts no word.
    enum class Purpose { layingOut, measuring };

    /// For a container of that many columns, of which per cent count.
    LineBreaker(Paragraph const& broken, int columns, Purpose what, Wrapping wrapped)
        : paragraph(broken), texts(broken), container(columns), purpose(what), wrapping(wrapped) {}

    /// The line that begins at `from`, of at most that many columns where it can be; the first of
    /// them are its indent.
    TextLine next(Place from, int columns, int indentation = 0);

    /// Whether words of a style may be parted anywhere if they have no room.
    static bool mayPart(Style const& style, Purpose purpose, Wrapping wrapping);

    bool isAtEnd(Place place) const { return place.item >= paragraph.end(); }

private:
    enum class State : std::uint8_t {
        filling,
        /// The line sticks out and ends at the next opportunity.
        overflowing,
        /// Only what trails may come: white space, edges of elements.
        trailing,
        done,
    };

    /// What the line holds: a part of a text, a tab, or an item that is none.
    struct Part {
        Place begin;
        Place end;
        int width = 0;
        bool mayEndLine = false;
        /// There may be an opportunity in it.
        bool isBreakable = false;
        bool hyphenates = false;
        /// Words of its style, or those that it ends, may be parted anywhere if they have no room.
        bool mayPart = false;
    };

    void step();
    void takeEnd();
    void takeOpen(Item const& item);
    void takeClose(Item const& item);
    void takeText(Item const& item);
    void takeWrapped(Item const& item);
    bool isBeforeOpen() const;
    void takeBreakable();
    void takeLineFeed();
    void takeTrailingBlanks();
    void leaveOpenTags();
    void finish();
    int trailingBlanks() const;

    Part& add(Place end, int width);
    TextPart breakText(Place begin, int room, int roomWithHyphen);
    int cellsToTabStop(Style const& style) const;
    void removeHyphen();

    // When the line is too long.
    void overflow();
    bool shorten(std::size_t index, int room);
    void fillAgain();
    void endBehind(std::size_t count);
    bool isTrailing(Part const& part) const;
    void goBack(std::size_t count);
    void restoreHyphen();

    bool mayEndBehindLast() const { return !parts.empty() && parts.back().mayEndLine; }
    bool isWithin(Place place) const { return texts.goesOn(parts.back().begin, place); }
    Item const& itemOf(Part const& part) const { return paragraph.items()[part.begin.item]; }
    Style const& styleOf(Item const& item) const { return *paragraph.element(item).style; }
    bool isWrapping(Item const& item) const { return wraps(styleOf(item)); }
    bool mayPart(Style const& style) const { return mayPart(style, purpose, wrapping); }

    Paragraph const& paragraph;
    TextBreaker texts;
    int container;
    Purpose purpose;
    Wrapping wrapping;
    int indent = 0;
    /// Columns without the indent.
    int available = 0;
    TextLine line;
    Place at;
    State state = State::filling;
    std::vector<Part> parts;
    /// The sum of all widths.
    int used = 0;
    /// The part that would end the line with a hyphen if nothing came behind it.
    std::optional<std::size_t> hyphenated;
    /// White space that comes now would begin the line.
    bool isLeading = true;
    /// Words are parted where there is no other way.
    bool isParting = false;
};

}  // namespace galley::web

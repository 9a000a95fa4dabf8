#pragma once

#include <cstdint>
#include <optional>

#include "web/flow/Paragraph.h"

namespace galley::web {

/// A place in a paragraph: before an item, or so many bytes within its text.
struct Place {
    std::uint32_t item = 0;
    std::uint32_t offset = 0;

    bool operator==(Place const&) const = default;
};

/// A part of a paragraph that stands in one row.
struct TextLine {
    Place begin;
    Place end;
    /// In cells, without the white space at its end, which hangs.
    int width = 0;
    /// It ends with a soft hyphen, which counts.
    bool hyphenates = false;
    /// It ends a paragraph, or is ended by a line feed: its text is not justified.
    bool isLast = false;
};

/// Where words may be parted: where their style says so, or as if it said `overflow-wrap:
/// anywhere`.
enum class Wrapping : std::uint8_t { asStyled, anywhere };

/// Breaks a paragraph into lines, each as long as fits: at the last opportunity for which all
/// before it fits. Where there is none a word is parted anywhere, if its style says so, or sticks
/// out.
///
/// A break is behind the white space at it, and behind the ends of elements there, whose edges go
/// with the text before them.
class LineBreaker {
public:
    /// To measure how narrow a paragraph can be, `break-word` parts no word.
    enum class Purpose { layingOut, measuring };

    /// For a container of that many columns, of which per cent count.
    LineBreaker(Paragraph const& broken, int columns, Purpose what, Wrapping wrapped)
        : paragraph(broken), container(columns), purpose(what), wrapping(wrapped) {}

    /// The line that begins at `from`, of at most that many cells where it can be.
    TextLine next(Place from, int cells);

    bool isAtEnd(Place place) const { return place.item >= paragraph.end(); }

private:
    /// A place where the line may end.
    struct Opportunity {
        Place place;
        int width = 0;
        bool hyphenates = false;
        bool isThere = false;
    };

    /// A part of a word.
    struct Part {
        std::size_t bytes = 0;
        /// In cells.
        int width = 0;
    };

    bool step();
    bool takeWords(Item const& item);
    bool endInWords(std::size_t blank);
    bool takeWord(Item const& item);
    bool takeIdeographs(Item const& item);
    Part partOf(Item const& item, std::string_view word, bool isAll) const;
    Part partOfPlain(std::string_view word, bool isAll) const;
    bool part(Item const& item, bool isAll = true);
    bool partLastWord();
    bool endBefore(Place place);
    void takeLineFeed();
    int restWidth(Item const& item) const;
    int cellsToTabStop(Style const& style) const;
    void offer(Place place, int width, bool hyphenates = false);
    bool commit();
    bool end(Opportunity const& where);
    Style const& styleOf(Item const& item) const { return *paragraph.element(item).style; }

    bool mayPart(Style const& style) const;

    Paragraph const& paragraph;
    int container;
    Purpose purpose;
    Wrapping wrapping;
    int available = 0;
    TextLine line;
    Place at;
    /// Cells so far, with white space; and without that at the end.
    ///@{
    int used = 0;
    int printed = 0;
    ///@}
    /// There is more than edges.
    bool hasText = false;
    /// The last word on the line that is whole, if there is one, and the cells before it.
    ///@{
    std::optional<Place> lastWord;
    int usedBeforeWord = 0;
    ///@}
    /// The last one that fits, and the newest one, which the ends of elements may still join.
    ///@{
    Opportunity fitting;
    Opportunity newest;
    ///@}
};

}  // namespace galley::web

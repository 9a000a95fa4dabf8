#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "web/flow/Look.h"
#include "web/text/SegmentReader.h"

namespace galley::web {

/// An inline element in a paragraph, or as the first one the block that the paragraph is in.
struct Inline {
    Style const* style = nullptr;
    /// On a background that is transparent where neither it nor an element around it has one.
    Look look;
    /// The background that its margins stand on, likewise.
    Colour around;
    std::uint32_t parent = 0;
    /// It begins here, and ends here: a block in it parts it, and its edges are at its ends.
    ///@{
    bool begins = true;
    bool ends = true;
    ///@}

    /// Columns of margin, border and padding at either end, in a container of so many columns.
    ///@{
    int leftEdge(int columns) const;
    int rightEdge(int columns) const;
    ///@}
};

/// A part of a paragraph.
struct Item {
    enum class Kind : std::uint8_t {
        words,       ///< Plain ASCII, each word with one blank behind it, where a line may break.
        ideographs,  ///< And marks among them; a line may break behind the last.
        word,        ///< No line breaks in it unless it has to.
        blank,       ///< Of collapsed white space, which nothing shows of at either end of a line.
        blanks,      ///< That count.
        tab,         ///< That counts.
        lineFeed,    ///< The line ends here.
        open,
        close,
        breakable,  ///< A line may break here.
    };

    Kind kind = Kind::blank;
    /// It is the first of a text that was added at once: lines are filled text by text.
    bool beginsText = false;
    /// Of a word: it is printed as it is, a cell a byte.
    bool isPlain = true;
    /// Likewise, but its cells are to be counted.
    bool isPrintedAsIs = true;
    /// A line may break behind a word, or where `white-space` says otherwise, and whether that then
    /// shows a hyphen.
    ///@{
    bool mayBreakBehind = false;
    bool hyphenates = false;
    ///@}
    /// The innermost element that it is in; of one that opens or closes, that element.
    std::uint32_t element = 0;
    /// Bytes of the text.
    std::uint32_t begin = 0;
    std::uint32_t end = 0;
    /// In cells.
    std::uint32_t width = 0;
};

/// Whether an inline element begins or ends there.
inline bool isTag(Item const& item) {
    return item.kind == Item::Kind::open || item.kind == Item::Kind::close;
}

/// Whether it is text in which white space is at most part of a word.
inline bool isUnbrokenText(Item const& item) {
    return item.kind == Item::Kind::word || item.kind == Item::Kind::ideographs;
}

/// A place in a paragraph: before an item, or so many bytes within its text.
struct Place {
    std::uint32_t item = 0;
    std::uint32_t offset = 0;

    // NOLINTNEXTLINE(modernize-use-nullptr): there is none
    auto operator<=>(Place const&) const = default;
};

/// Text and inline elements between two blocks: what lines are made of. White space is collapsed
/// when it is added, but for what depends on where lines break.
class Paragraph {
public:
    /// Begins the paragraph of a block, with no element in it.
    void begin(Style const& block);
    void open(Style const& style, Link const* link);
    void close();
    /// Adds text of the innermost element.
    void addText(std::string_view decoded);
    /// Adds text of which no letter is transformed, here or behind it.
    void addGenerated(std::string_view decoded);
    /// Ends the line, whatever white space means here.
    void addLineFeed();
    /// Lets a line break here.
    void addBreakable();

    /// To be called when all has been added.
    void finish();
    /// Parts the open elements: what has been added becomes `done`, and this one goes on with them.
    void partInto(Paragraph& done);

    Style const& block() const { return *elements.front().style; }
    bool isAmbiguousWide() const { return block().cells.isAmbiguousWide; }
    /// Whether it makes lines: text, or an edge of an element, is there.
    bool isEmpty() const { return contentEnd == 0; }
    /// Behind the last item that makes a line.
    std::size_t end() const { return contentEnd; }
    std::vector<Item> const& items() const { return all; }
    Inline const& element(Item const& item) const { return elements[item.element]; }
    Inline const& around(Inline const& element) const { return elements[element.parent]; }
    std::string_view textOf(Item const& item) const {
        return std::string_view(text).substr(item.begin, item.end - item.begin);
    }
    /// So many bytes behind a place in the text of an item, where that ends before the next one.
    Place behind(Place place, std::size_t bytes) const {
        place.offset += static_cast<std::uint32_t>(bytes);
        Item const& item = all[place.item];
        return item.begin + place.offset == item.end ? Place{place.item + 1, 0} : place;
    }
    /// Whether an inline element is.
    bool hasOpen() const { return current > 0; }

private:
    friend class PackedParagraph;

    void addItems(std::string_view decoded);
    void joinTo(std::string_view decoded);
    void partBefore(std::size_t index, std::size_t bytes);
    void addWord(std::string_view bytes, Segment const& segment);
    void addWords(std::string_view words);
    void addIdeographs(std::string_view ideographs);
    void addUnbroken(std::string_view bytes);
    void addBehind(Segment const& segment);
    void addBlank();
    void dropBlank();
    void keepOpportunity();
    Item& add(Item::Kind kind);
    Item* lastContent() { return tagsBegin > 0 ? &all[tagsBegin - 1] : nullptr; }
    Style const& style() const { return *elements[current].style; }

    std::string text;
    std::vector<Item> all;
    std::vector<Inline> elements;
    /// The innermost one that is open.
    std::uint32_t current = 0;
    /// White space that comes now is no more than what is there: behind a blank, or at the start of
    /// a line.
    bool isBehindBlank = true;
    std::size_t contentEnd = 0;
    /// Behind the last item that is no tag, and behind the last one that is no text either: however
    /// many tags follow, they are found at once.
    ///@{
    std::size_t tagsBegin = 0;
    std::size_t textBegins = 0;
    ///@}
    /// Of the text that was added last, a blank if there is none.
    char32_t lastCharacter = ' ';
};

}  // namespace galley::web

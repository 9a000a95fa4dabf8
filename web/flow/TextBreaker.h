#pragma once

#include <cstdint>

#include "web/flow/Paragraph.h"

namespace galley::web {

/// What of a text goes into a row.
struct TextPart {
    /// White space there is left to hang.
    Place end;
    /// In cells, with the hyphen that it shows at the end of a line.
    int width = 0;
    bool hyphenates = false;
    bool fits = true;
    /// A line may end behind it.
    bool mayEndLine = false;
    /// Nothing shorter may end a line.
    bool isLeast = false;
    /// It is white space for which there is no room.
    bool hangs = false;
};

/// Where a text may be parted.
enum class Parting : std::uint8_t {
    opportunities,
    /// Likewise, but where none fits a part has no end.
    fittingOpportunities,
    /// Behind any cluster.
    anywhere,
};

/// Breaks the texts of a paragraph. A text is what stands in one element up to where an element
/// begins or ends, a tab, a line feed or a `wbr`.
class TextBreaker {
public:
    explicit TextBreaker(Paragraph const& broken) : paragraph(broken) {}

    /// Whether a text that begins at a place goes on behind another.
    bool goesOn(Place begin, Place place) const;
    /// Whether white space begins at a place.
    bool isBlank(Place place) const;
    /// Behind the white space at a place; `cells` are those that it takes.
    Place behindBlank(Place place, int& cells) const;
    /// Cells of the white space at the end of a part.
    int blanksAtEnd(Place begin, Place end) const;

    /// The longest part of a text for which there is room, or else the least; its hyphen may have
    /// more room.
    TextPart take(Place begin, int room, int roomWithHyphen, Parting parting);
    /// All that is left of a text.
    TextPart takeAll(Place begin) const;

    /// Whether a line may break at a place behind text, elements there left out: white space comes
    /// next, or comes before, or the letters on both sides say so.
    ///@{
    bool isBeforeBlank(Place place);
    bool isBehindBlank(Place place);
    /// Text that does not end with a blank, whether that may hang or not.
    bool isBehindText(Place place);
    bool isOpportunity(Place place);
    /// Whether the line may begin within a word where a part of a text does and end with that word,
    /// if it may end there at all.
    bool mayBreakBehindRest(Place begin, Place end);
    ///@}

private:
    std::size_t textAt(Place place);
    std::size_t textBefore(Place place);
    void findTags(Place place);

    Paragraph const& paragraph;
    /// What was found last: all items between two of text are where elements begin and end.
    ///@{
    std::size_t behindText = 0;
    std::size_t nextText = 0;
    ///@}
};

}  // namespace galley::web

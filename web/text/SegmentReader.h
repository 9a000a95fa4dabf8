#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "web/text/Cluster.h"
#include "web/text/LineBreaks.h"

namespace galley::web {

/// What is done with a text, as `white-space` and `word-break` say.
struct TextOptions {
    enum class WhiteSpace : std::uint8_t {
        collapsed,  ///< Any run of it is one space: `normal`, `nowrap`.
        lines,      ///< Likewise, but line feeds are kept: `pre-line`.
        preserved,  ///< Every blank and tab counts: `pre`, `pre-wrap`.
    };
    enum class WordBreak : std::uint8_t { normal, keepAll, breakAll };

    WhiteSpace whiteSpace = WhiteSpace::collapsed;
    WordBreak wordBreak = WordBreak::normal;
    /// What stands before the text: hyphens at its start may begin a word.
    char32_t before = ' ';
    /// East Asian ambiguous characters have two cells.
    bool isAmbiguousWide = false;
};

/// A part of a text in which no line breaks, unless it has to, and what is behind it.
struct Segment {
    enum class Behind : std::uint8_t {
        end,          ///< The text's end: a line breaks there only if what follows says so.
        opportunity,  ///< A line may break, nothing is printed between this segment and the next.
        softHyphen,   ///< A line may break, and then ends with `-`, one more cell.
        space,        ///< White space that may be broken: one blank; if preserved, a blank a byte.
        tab,          ///< One tab, only if preserved.
        lineFeed,     ///< The line ends here; never if all is collapsed.
    };

    /// Bytes of the text; empty where white space begins the text or follows white space.
    std::size_t begin = 0;
    std::size_t end = 0;
    /// Where the next segment begins. What is between `end` and `next` is not printed but for what
    /// `behind` says.
    std::size_t next = 0;
    /// Cells that the bytes take. 0 also where they are there but none is printed.
    std::size_t width = 0;
    Behind behind = Behind::end;
    /// Printable ASCII: a cell a byte, printed as it is. Else `clusterAt`, given the text up to
    /// `end`, goes through it, and `appendPrinted` prints it.
    bool isPlain = true;
    /// Besides, there may be common letters beyond ASCII; each character has a cell.
    bool isOfLetters = true;
    /// `appendPrinted` appends just the bytes, as of all that is plain.
    bool isPrintedAsIs = true;
};

/// Reads one text node, its references decoded, in segments: one pass, at a bounded cost a byte,
/// without memory of its own. The text outlives it and need not be well-formed. White space is
/// blanks, tabs and line feeds, as which CR and CR LF count; other controls are characters.
///
/// The segments cover the text: each begins where the one before it ends with all that is behind
/// it. What is collapsed across nodes, and at the ends of lines, is the caller's business: so white
/// space at both ends of a text is reported.
class SegmentReader {
public:
    explicit SegmentReader(std::string_view source, TextOptions how = {})
        : text(source), options(how) {}

    bool isAtEnd() const { return at == text.size(); }

    /// The next segment; false, and the segment as it was, once there is none. An empty text has
    /// none, and one that ends with white space has none behind that.
    bool next(Segment& segment);

    /// Takes what comes next as far as it is plain words with one blank behind each, where nothing
    /// but these blanks lets a line break; what is behind it is not white space. At the text's end
    /// the last word is without a blank. Empty where no such word comes. This is what most of a
    /// text in ASCII is, faster than by segments: a line is filled by a search for a blank, from
    /// behind.
    std::string_view takeWords();

    /// Takes what comes next as far as it is ideographs and the marks among them, each of three
    /// bytes and two cells, with an opportunity behind the last. Empty where none comes, and where
    /// `word-break` keeps them together.
    std::string_view takeIdeographs();

    /// Takes what comes next as far as it is blanks and printable ASCII, which makes up most of a
    /// text that is preserved, and where no line breaks. Not before a character that could join the
    /// last of them.
    std::string_view takeUnbroken();

private:
    bool readAscii(Segment& segment) const;
    bool readLetters(Segment& segment) const;
    void readClusters(Segment& segment);
    Cluster startWord();
    bool mayBreakBetween(Cluster const& before, Cluster const& behind) const;
    void take(Cluster const& cluster);
    Properties tailored(Properties properties) const;
    void readBehind(Segment& segment) const;
    void readPreserved(Segment& segment) const;

    std::string_view text;
    TextOptions options;
    std::size_t at = 0;
    /// The white space, or the end, behind what has been read cluster by cluster.
    std::size_t wordEnd = 0;
    /// What has been read in that manner, and what comes next if it begins at `at`.
    LineBreaks breaks = LineBreaks({});
    Cluster following;
};

}  // namespace galley::web

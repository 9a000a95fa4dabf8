#include "bench/corpus.h"

#include <charconv>
#include <cstdint>
#include <limits>

namespace Bench {

namespace {

constexpr std::size_t s_unlimited = std::numeric_limits<std::size_t>::max();

/// SplitMix64, with numbers in a range by multiplication: the same everywhere.
class Random {
public:
    /// From `first` to `last`, both included.
    std::size_t between(std::size_t first, std::size_t last) {
        state += 0x9E3779B97F4A7C15;
        std::uint64_t bits = state;
        bits = (bits ^ (bits >> 30)) * 0xBF58476D1CE4E5B9;
        bits = (bits ^ (bits >> 27)) * 0x94D049BB133111EB;
        bits ^= bits >> 31;
        return first + static_cast<std::size_t>((bits >> 32) * (last - first + 1) >> 32);
    }

private:
    std::uint64_t state = 1;
};

class Writer {
public:
    Corpus corpus;

    explicit Writer(Size wanted) : size(wanted) {}

    /// Whether one more part is wanted, which is counted then.
    bool next(std::string const& text) {
        if (text.size() + owed >= size.bytes || parts >= size.parts) return false;
        ++parts;
        return true;
    }
    bool next() { return next(corpus.markup); }
    /// Whether there is room left in the first half of the corpus.
    bool nextOfFirstHalf() {
        return (corpus.markup.size() < size.bytes / 2 && parts < size.parts / 2) && next();
    }

    Writer& add(std::string_view markup) {
        corpus.markup += markup;
        return *this;
    }
    Writer& addWord() {
        addLetters(random.between(2, 10));
        ++corpus.words;
        return *this;
    }
    void addLetters(std::size_t count) {
        for (; count > 0; --count) add(letter());
    }
    void addWords(std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            if (i > 0) add(" ");
            addWord();
        }
    }
    void addParagraphOfWords() { addWords(random.between(50, 150)); }

    /// One row of cells with a word in each.
    void addRow(std::size_t cells) {
        add("<tr>");
        for (; cells > 0; --cells) add("<td>").addWord().add("</td>");
        add("</tr>\n");
    }

    /// Elements in one another, a part each: `open`, and what `fill` adds, at every level.
    template <class Fill>
    void nest(std::string_view open, std::string_view close, Fill const& fill) {
        std::size_t levels = 0;
        for (; next(); ++levels) {
            add(open);
            owed += close.size();
            fill();
        }
        for (; levels > 0; --levels) add(close);
        owed = 0;
    }

    std::size_t between(std::size_t first, std::size_t last) { return random.between(first, last); }
    /// Bytes that a text without parts is to have.
    std::size_t length() const { return size.bytes == s_unlimited ? size.parts : size.bytes; }
    std::size_t partCount() const { return parts; }

private:
    std::string_view letter() {
        static constexpr std::string_view s_letters = "abcdefghijklmnopqrstuvwxyz";
        return s_letters.substr(random.between(0, s_letters.size() - 1), 1);
    }

    Size size;
    std::size_t parts = 0;
    /// Bytes of the end tags that are still to come.
    std::size_t owed = 0;
    Random random;
};

void paragraphs(Writer& to) {
    while (to.next()) {
        to.add("<p>").addParagraphOfWords();
        to.add("</p>\n");
    }
}

void words(Writer& to) {
    to.add("<p>");
    while (to.next()) to.addWord().add(" ");
    to.add("</p>\n");
}

void word(Writer& to) {
    to.add("<p>").addLetters(to.length());
    to.add("</p>\n");
    to.corpus.words = 1;
}

void inlines(Writer& to) {
    to.add("<p>");
    while (to.next()) to.add(R"(<b margin-right="1" padding-left="1">)").addWord().add(" </b>");
    to.add("</p>\n");
}

void siblings(Writer& to) {
    to.add("<div>");
    while (to.next()) to.add("<p>").addWord().add("</p>");
    to.add("</div>\n");
}

/// A line that breaks again and again in front of blocks.
void splitting(Writer& to) {
    to.add("<div>");
    while (to.nextOfFirstHalf()) to.addWord().add(" ");
    while (to.next()) to.add("<p>").addWord().add("</p>");
    to.add("</div>\n");
}

void tableOf(Writer& to, std::size_t columns) {
    to.add("<table>");
    while (to.next()) to.addRow(columns);
    to.add("</table>\n");
}

void table(Writer& to) { tableOf(to, 5); }
void wideTable(Writer& to) { tableOf(to, 500); }

void cells(Writer& to) {
    to.add("<table><tr>");
    while (to.next()) to.add("<td>").addWord().add("</td>");
    to.add("</tr></table>\n");
}

void tables(Writer& to) {
    to.add("<div>");
    while (to.next()) {
        to.add("<table>").addRow(2);
        to.add("</table>");
    }
    to.add("</div>\n");
}

/// A cell is never broken, so this is a single line.
void line(Writer& to) {
    to.add("<table><tr><td>");
    while (to.next()) to.addWord().add(" ");
    to.add("</td></tr></table>\n");
}

void nestedBlocks(Writer& to) {
    to.nest("<div>", "</div>", [&] { to.addWord(); });
}

void nestedInlines(Writer& to) {
    to.nest("<b>", "</b>", [&] { to.addWord().add(" "); });
}

void nestedInlineParagraphs(Writer& to) {
    to.nest("<b>", "</b>", [&] {
        to.addParagraphOfWords();
        to.add(" ");
    });
}

void nestedInlinesWithTails(Writer& to) {
    to.nest("<b>", "behind it </b>", [&] { to.addWord().add(" "); });
}

void nestedStyledInlines(Writer& to) {
    to.nest("<i color=\"red\">", "end </i>", [&] { to.addWord().add(" "); });
}

/// Two styles in turn, and a word behind each element.
void nestedStylesInTurn(Writer& to) {
    to.nest("<b color=\"red\"><i color=\"blue\">", "end </i>end </b>",
            [&] { to.addWord().add(" "); });
}

constexpr std::string_view s_backgroundStart =
    "<div background-color=\"red\" border-right-width=\"1\">";

/// Many levels around a few rows.
void levelsOfBackgrounds(Writer& to) {
    to.nest(s_backgroundStart, "</div>", [&] {
        if (to.partCount() <= 50) to.addWord();
    });
}

/// A few levels around many rows.
void rowsOnBackgrounds(Writer& to) {
    constexpr unsigned s_levels = 50;
    for (unsigned i = 0; i < s_levels; ++i) to.add(s_backgroundStart);
    while (to.next()) to.add("<p>").addWord().add("</p>");
    for (unsigned i = 0; i < s_levels; ++i) to.add("</div>");
}

void borderedParagraphs(Writer& to) {
    to.add("<div border-width=\"1\">");
    paragraphs(to);
    to.add("</div>");
}

void dashedParagraphs(Writer& to) {
    paragraphs(to);
    to.corpus.sheet = "p { border-style: -; border-left-style: -; border-corner-style: -; }";
}

/// One element of many may reach up.
void oneNegativeEdge(Writer& to) {
    paragraphs(to);
    to.add("<p margin-top=\"-1\">").addWord().add("</p>");
}

void stairs(Writer& to) {
    to.nest("<b><p>", "</b>", [&] { to.addWord().add(" ").addWord().add("</p>"); });
}

/// No line is certain to stay too wide before all of it has been read.
void negativeEdges(Writer& to) {
    while (to.next()) to.addWord().add(" <b margin-left=\"-1\">").addWord().add(" </b>");
}

void blocksInInlines(Writer& to) {
    while (to.next()) to.add("<div><b><div>").addWord().add("</div></b></div>");
}

void blocksInOneInline(Writer& to) {
    to.corpus.markup = "<b>";
    while (to.next()) to.add("<p>").addWord().add(" ").addWord().add("</p>").addWord().add(" ");
    to.add("</b>");
}

void inlinesInOneInline(Writer& to) {
    to.corpus.markup = "<b>";
    while (to.next()) to.add("<i>").addWord().add(" ").addWord().add(" </i>");
    to.add("</b>");
}

void nestedBlocksInInlines(Writer& to) {
    to.nest("<div><b>", "</b></div>", [&] { to.addWord(); });
}

void nestedTables(Writer& to) {
    to.nest("<table><tr><td><div>", "</div></td></tr></table>", [&] { to.addWord(); });
}

/// One rule for ten elements; every other rule has a selector that matches some.
void rules(Writer& to) {
    while (to.next()) to.add("<p>").addWord().add("</p>");
    std::string& sheet = to.corpus.sheet;
    for (std::size_t i = 0; i < to.partCount() / 10; ++i) {
        sheet += i % 2 == 0 ? "p" : "e" + std::to_string(i);
        sheet += " { margin-left: " + std::to_string(i % 3) + "; }\n";
    }
}

void references(Writer& to) {
    to.add("<p color=\"");
    while (to.next()) to.add("&lt;a&amp;");
    to.add("\">").addWord().add("</p>\n");
}

void attributes(Writer& to) {
    to.add("<p");
    while (to.next()) to.add(" a" + std::to_string(to.partCount()) + "=\"1\"");
    to.add(">").addWord().add("</p>\n");
}

void declarations(Writer& to) {
    std::string& sheet = to.corpus.sheet;
    sheet = "p {";
    while (to.next(sheet)) sheet += " d" + std::to_string(to.partCount()) + ": 1;";
    sheet += " }\n";
    to.add("<p>").addWord().add("</p>\n");
}

void comments(Writer& to) {
    to.add("<p>");
    while (to.next()) to.addWord().add("<!-- no word -->");
    to.add("</p>\n");
}

void cdata(Writer& to) {
    to.add("<p>");
    while (to.next()) to.add("<![CDATA[").addWord().add(" ]]>");
    to.add("</p>\n");
}

/// Prose in elements of many names, under a sheet that has a rule for each of them and more.
void styled(Writer& to) {
    static constexpr std::string_view s_blocks[] = {"p", "p", "p", "div", "h1", "h2", "h3"};
    static constexpr std::string_view s_inlines[] = {"b", "strong", "i", "em"};
    static constexpr std::string_view s_colors[] = {"red", "green", "yellow", "blue", "cyan"};
    static constexpr std::size_t s_rules = 50;
    std::string& sheet = to.corpus.sheet;
    std::size_t count = 0;
    auto const addRule = [&](std::string_view selector) {
        sheet.append(selector).append(" { color: ").append(s_colors[count % std::size(s_colors)]);
        sheet += "; }\n";
        ++count;
    };
    for (std::string_view const name : s_inlines) addRule(name);
    for (std::size_t i = 2; i < std::size(s_blocks); ++i) addRule(s_blocks[i]);
    while (count < s_rules) addRule("name" + std::to_string(count));

    while (to.next()) {
        std::string_view const block = s_blocks[to.between(0, std::size(s_blocks) - 1)];
        to.add("<").add(block).add(">");
        for (std::size_t runs = to.between(10, 20); runs > 0; --runs) {
            std::string_view const inlined = s_inlines[to.between(0, std::size(s_inlines) - 1)];
            to.addWords(to.between(1, 8));
            to.add(" <").add(inlined).add(">").addWord().add(" </").add(inlined).add(">");
        }
        to.add("</").add(block).add(">\n");
    }
}

/// A heading, some prose and a table.
void page(Writer& to) {
    to.add("<h1>").addWord().add("</h1>\n<p>");
    while (to.nextOfFirstHalf()) to.addWord().add(" ");
    to.add("</p>\n");
    tableOf(to, 3);
}

struct Shape {
    std::string_view name;
    void (*write)(Writer& to);
};

constexpr Shape s_shapes[] = {
    {"attributes", attributes},
    {"blocks-in-inlines", blocksInInlines},
    {"blocks-in-one-inline", blocksInOneInline},
    {"bordered-paragraphs", borderedParagraphs},
    {"cdata", cdata},
    {"cells", cells},
    {"comments", comments},
    {"dashed-paragraphs", dashedParagraphs},
    {"declarations", declarations},
    {"inlines", inlines},
    {"inlines-in-one-inline", inlinesInOneInline},
    {"levels-of-backgrounds", levelsOfBackgrounds},
    {"line", line},
    {"negative-edges", negativeEdges},
    {"nested-blocks", nestedBlocks},
    {"nested-blocks-in-inlines", nestedBlocksInInlines},
    {"nested-inline-paragraphs", nestedInlineParagraphs},
    {"nested-inlines", nestedInlines},
    {"nested-inlines-with-tails", nestedInlinesWithTails},
    {"nested-styled-inlines", nestedStyledInlines},
    {"nested-styles-in-turn", nestedStylesInTurn},
    {"nested-tables", nestedTables},
    {"one-negative-edge", oneNegativeEdge},
    {"page", page},
    {"paragraphs", paragraphs},
    {"references", references},
    {"rows-on-backgrounds", rowsOnBackgrounds},
    {"rules", rules},
    {"siblings", siblings},
    {"splitting", splitting},
    {"stairs", stairs},
    {"styled", styled},
    {"table", table},
    {"tables", tables},
    {"wide-table", wideTable},
    {"word", word},
    {"words", words},
};

}  // namespace

std::optional<Size> parseSize(std::string_view text) {
    std::size_t number = 0;
    auto const [rest, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc()) return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(rest - text.data()));
    if (text.empty()) return Size{number, s_unlimited};
    if (text == "x") return Size{s_unlimited, number};
    return std::nullopt;
}

std::vector<std::string_view> shapeNames() {
    std::vector<std::string_view> names;
    for (Shape const& shape : s_shapes) names.push_back(shape.name);
    return names;
}

std::optional<Corpus> makeCorpus(std::string_view shape, Size size) {
    for (Shape const& known : s_shapes) {
        if (known.name != shape) continue;
        Writer writer(size);
        known.write(writer);
        return std::move(writer.corpus);
    }
    return std::nullopt;
}

}  // namespace Bench

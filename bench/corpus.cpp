#include "bench/corpus.h"

#include <charconv>

#include "bench/CorpusWriter.h"
#include "bench/webShapes.h"

namespace Bench {

namespace {

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
    for (Shape const& shape : webShapes()) names.push_back(shape.name);
    return names;
}

std::optional<Corpus> makeCorpus(std::string_view shape, Size size) {
    for (std::span<Shape const> const shapes : {std::span<Shape const>(s_shapes), webShapes()}) {
        for (Shape const& known : shapes) {
            if (known.name != shape) continue;
            Writer writer(size);
            known.write(writer);
            return std::move(writer.corpus);
        }
    }
    return std::nullopt;
}

}  // namespace Bench

#include <algorithm>

#include "base/append.h"
#include "galley/formats/characters.h"
#include "galley/formats/formats.h"
#include "galley/formats/palette.h"
#include "galley/formats/style.h"

namespace galley {

using CLI::XML::append;

// A cell is 9 pixels wide and 18 high, as the glyphs of most fixed pitch fonts are three fifths as
// wide as their size. The origin is that of the first cell; there is a margin around the cells.

namespace {

constexpr std::size_t s_cellWidth = 9;
constexpr std::size_t s_cellHeight = 18;
constexpr char const* s_fontSize = "15";
/// Of a row, from its top.
constexpr std::size_t s_baseline = 14;
constexpr std::size_t s_margin = 9;
/// Where the margin begins, in both directions.
constexpr char const* s_start = "-9";

std::string pixels(std::size_t cells, std::size_t cellSize) {
    return std::to_string(cells * cellSize);
}

struct Size {
    std::size_t columns = 0;
    std::size_t rows = 0;
};

Size pageSize(std::string_view page) {
    Size size;
    std::size_t column = 0;
    AnsiReader reader(page);
    for (AnsiReader::Run run; reader.next(run);) {
        column += countCharacters(run.text);
        size.columns = std::max(size.columns, column);
        if (!run.endsRow) continue;
        ++size.rows;
        column = 0;
    }
    return size;
}

/// Draws runs one after the other.
class Picture {
public:
    Picture(String& target, std::string_view page, Theme colors)
        : svg(target), theme(colors), usual(cellColors({}, colors)) {
        auto const [columns, rows] = pageSize(page);
        std::string const width = std::to_string(columns * s_cellWidth + 2 * s_margin);
        std::string const height = std::to_string(rows * s_cellHeight + 2 * s_margin);
        append(svg, "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"", width, "\" height=\"",
               height, "\" viewBox=\"", s_start, " ", s_start, " ", width, " ", height,
               "\" font-family=\"", s_fontFamily, "\" font-size=\"", s_fontSize, "\" fill=\"",
               usual.text, "\">\n");
        std::string_view const rule = blinkRule(page);
        if (!rule.empty()) append(svg, "<style>", rule, "</style>");
        append(svg, "<rect x=\"", s_start, "\" y=\"", s_start, "\" width=\"", width, "\" height=\"",
               height, "\" fill=\"", usual.ground, "\"/>\n");
    }

    void draw(AnsiReader::Run const& run) {
        drawGround(run);
        drawText(run);
        if (run.endsRow) endRow();
    }

    void end() { append(svg, "</svg>\n"); }

private:
    void drawGround(AnsiReader::Run const& run) {
        std::string const ground = cellColors(run.look, theme).ground;
        if (ground == usual.ground) return;
        append(svg, "<rect x=\"", pixels(column, s_cellWidth), "\" y=\"", pixels(row, s_cellHeight),
               "\" width=\"", pixels(countCharacters(run.text), s_cellWidth), "\" height=\"",
               pixels(1, s_cellHeight), "\" fill=\"", ground,
               "\" shape-rendering=\"crispEdges\"/>\n");
    }

    void drawText(AnsiReader::Run const& run) {
        std::string const color = cellColors(run.look, theme).text;
        std::string attributes;
        if (color != usual.text) attributes += " fill=\"" + color + "\"";
        std::string const css = attributeCss(run.look);
        if (!css.empty()) attributes += " style=\"" + css + "\"";
        if (!attributes.empty()) append(words, "<tspan", attributes, ">");
        drawWords(run.text);
        if (!attributes.empty()) append(words, "</tspan>");
    }

    /// Spaces have no place of their own, and stay for whoever reads or copies the text.
    void drawWords(std::string_view text) {
        while (!text.empty()) {
            std::size_t const spaces = std::min(text.find_first_not_of(' '), text.length());
            append(words, text.substr(0, spaces));
            column += spaces;
            text.remove_prefix(spaces);
            std::string_view const word = text.substr(0, text.find(' '));
            drawWord(word);
            text.remove_prefix(word.length());
        }
    }

    void drawWord(std::string_view word) {
        if (word.empty()) return;
        std::size_t const characters = countCharacters(word);
        append(words, "<tspan x=\"", pixels(column, s_cellWidth), "\" textLength=\"",
               pixels(characters, s_cellWidth), "\" lengthAdjust=\"spacingAndGlyphs\">");
        appendEscaped(words, word);
        append(words, "</tspan>");
        column += characters;
    }

    /// The text of a row comes behind all its grounds.
    void endRow() {
        if (words.length() > 0) {
            append(svg, "<text y=\"", std::to_string(row * s_cellHeight + s_baseline),
                   "\" xml:space=\"preserve\">", words.view(), "</text>\n");
        }
        words.clear();
        column = 0;
        ++row;
    }

    String& svg;
    /// Of the row that is being drawn.
    String words;
    Theme const theme;
    CellColors const usual;
    std::size_t column = 0;
    std::size_t row = 0;
};

}  // namespace

void makeSvg(String& page, Theme theme) {
    String svg;
    Picture picture(svg, page.view(), theme);
    AnsiReader reader(page.view());
    for (AnsiReader::Run run; reader.next(run);) picture.draw(run);
    picture.end();
    page = std::move(svg);
}

}  // namespace galley

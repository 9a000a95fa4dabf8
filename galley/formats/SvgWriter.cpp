#include "galley/formats/SvgWriter.h"

#include <algorithm>

#include "base/append.h"
#include "galley/formats/characters.h"
#include "galley/formats/encodeAddress.h"
#include "galley/formats/style.h"

namespace galley {

using CLI::XML::append;
using web::Look;
using web::Row;

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

std::size_t cellsOf(std::string_view text, CellRule rule) {
    std::size_t cells = 0;
    while (!text.empty()) cells += takePiece(text, rule).cells;
    return cells;
}

}  // namespace

SvgWriter::SvgWriter(String& page, Theme colours, CellRule cellRule)
    : out(page), theme(colours), rule(cellRule), usual(cellColors({}, colours)) {}

void SvgWriter::take(Row const& row) {
    for (Row::Span const& span : row.spans()) {
        std::string_view const text = row.textOf(span);
        drawGround(text, span.look);
        changeLink(span.look.link);
        drawText(text, span.look);
    }
    changeLink(nullptr);
    endRow();
}

void SvgWriter::drawGround(std::string_view text, Look const& look) {
    std::string const ground = cellColors(look, theme).ground;
    if (ground == usual.ground) return;
    append(rows, "<rect x=\"", pixels(column, s_cellWidth), "\" y=\"",
           pixels(rowCount, s_cellHeight), "\" width=\"", pixels(cellsOf(text, rule), s_cellWidth),
           "\" height=\"", pixels(1, s_cellHeight), "\" fill=\"", ground,
           "\" shape-rendering=\"crispEdges\"/>\n");
}

void SvgWriter::drawText(std::string_view text, Look const& look) {
    std::string const colour = cellColors(look, theme).text;
    std::string attributes;
    if (colour != usual.text) attributes += " fill=\"" + colour + "\"";
    std::string const css = attributeCss(look);
    if (!css.empty()) attributes += " style=\"" + css + "\"";
    if (look.isBlinking) blinks = true;
    if (!attributes.empty()) append(words, "<tspan", attributes, ">");
    while (!text.empty()) drawPiece(takePiece(text, rule));
    if (!attributes.empty()) append(words, "</tspan>");
}

/// Spaces have no place of their own, and stay for whoever reads or copies the text.
void SvgWriter::drawPiece(Piece const& piece) {
    if (piece.kind == Piece::Kind::blank) {
        append(words, piece.text);
    } else {
        append(words, "<tspan x=\"", pixels(column, s_cellWidth), "\" textLength=\"",
               pixels(piece.cells, s_cellWidth), "\" lengthAdjust=\"spacingAndGlyphs\">");
        appendEscaped(words, piece.text);
        append(words, "</tspan>");
    }
    column += piece.cells;
}

void SvgWriter::changeLink(web::Link const* next) {
    if (next == link) return;
    if (link != nullptr) append(words, "</a>");
    link = next;
    if (link == nullptr) return;
    append(words, "<a href=\"");
    appendEscaped(words, encodeAddress(link->address));
    append(words, "\">");
}

void SvgWriter::endRow() {
    if (words.length() > 0) {
        append(rows, "<text y=\"", std::to_string(rowCount * s_cellHeight + s_baseline),
               "\" xml:space=\"preserve\">", words.view(), "</text>\n");
    }
    words.clear();
    columnCount = std::max(columnCount, column);
    column = 0;
    ++rowCount;
}

void SvgWriter::finish() {
    std::string const width = std::to_string(columnCount * s_cellWidth + 2 * s_margin);
    std::string const height = std::to_string(rowCount * s_cellHeight + 2 * s_margin);
    append(out, "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"", width, "\" height=\"", height,
           "\" viewBox=\"", s_start, " ", s_start, " ", width, " ", height, "\" font-family=\"",
           s_fontFamily, "\" font-size=\"", s_fontSize, "\" fill=\"", usual.text, "\">\n");
    if (blinks) append(out, "<style>", s_blinkRule, "</style>");
    append(out, "<rect x=\"", s_start, "\" y=\"", s_start, "\" width=\"", width, "\" height=\"",
           height, "\" fill=\"", usual.ground, "\"/>\n", rows.view(), "</svg>\n");
}

}  // namespace galley

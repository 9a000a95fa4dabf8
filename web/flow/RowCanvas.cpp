#include "web/flow/RowCanvas.h"

#include <algorithm>

#include "web/text/Cluster.h"

namespace galley::web {

namespace {

/// Of a border: a character of the block Box Drawing.
bool isLine(std::string_view cluster) { return cluster >= "\u2500" && cluster <= "\u257F"; }

/// Whether one cell shows on another (CSS 2.2, E.2): no border on text, and a blank, which then has
/// a background of its own, only on borders.
bool covers(std::string_view cluster, std::string_view below, bool hidesBorders) {
    if (below == " ") return true;
    if (cluster == " ") return hidesBorders && isLine(below);
    return !isLine(cluster) || isLine(below);
}

}  // namespace

RowCanvas::RowCanvas(RowView const& row, bool isAmbiguousWide)
    : areAmbiguousWide(isAmbiguousWide), drawn(cellsOf(row)) {}

std::vector<RowCanvas::Cell> RowCanvas::cellsOf(RowView const& row) const {
    std::vector<Cell> cells;
    for (RowSpan const& span : row.spans) {
        std::string_view const text = row.textOf(span);
        for (std::size_t i = 0; i < text.size();) {
            Cluster const cluster = clusterAt(text, i, areAmbiguousWide);
            cells.push_back({text.substr(i, cluster.end - i), span.look});
            if (cluster.width == 2) cells.push_back({{}, span.look});
            i = cluster.end;
        }
    }
    return cells;
}

void RowCanvas::draw(int column, RowView const& other, Row::Manner const& manner) {
    auto at = static_cast<std::size_t>(column);
    for (Cell cell : cellsOf(other)) {
        if (drawn.size() <= at) drawn.resize(at + 1, Cell{" ", blankOn(manner.beyond)});
        Cell& below = drawn[at++];
        bool const hasBackground = cell.look.background != manner.ground;
        if (!hasBackground) cell.look.background = below.look.background;
        if (covers(cell.text, below.text, hasBackground && !manner.keepsBorders)) {
            below = cell;
        } else if (!isLine(cell.text)) {
            below.look.background = cell.look.background;
        }
    }
}

Row RowCanvas::row() const {
    Row result;
    for (std::size_t i = 0; i < drawn.size(); ++i) {
        bool const hasSecond = i + 1 < drawn.size() && drawn[i + 1].text.empty();
        bool const isWide = hasSecond && countCells(drawn[i].text, areAmbiguousWide) == 2;
        bool const isHalf =
            drawn[i].text.empty() || (!isWide && countCells(drawn[i].text, areAmbiguousWide) == 2);
        result.add(isHalf ? " " : drawn[i].text, isWide ? 2 : 1, drawn[i].look);
        if (isWide) ++i;
    }
    return result;
}

}  // namespace galley::web

#include "web/flow/Row.h"

#include <algorithm>
#include <utility>

#include "web/flow/PageBudget.h"
#include "web/text/Cluster.h"

namespace galley::web {

namespace {

/// In cells.
constexpr int s_widest = 1'000'000;

struct Cell {
    /// A cluster; empty in the second cell of a wide one.
    std::string_view text;
    Look look;
};

std::vector<Cell> cellsOf(RowView const& row, bool isAmbiguousWide) {
    std::vector<Cell> cells;
    for (RowSpan const& span : row.spans) {
        std::string_view const text = row.textOf(span);
        for (std::size_t i = 0; i < text.size();) {
            Cluster const cluster = clusterAt(text, i, isAmbiguousWide);
            cells.push_back({text.substr(i, cluster.end - i), span.look});
            if (cluster.width == 2) cells.push_back({{}, span.look});
            i = cluster.end;
        }
    }
    return cells;
}

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

void Row::add(std::string_view printed, int columns, Look const& look) {
    bytes.append(printed);
    cells += columns;
    close(look, bytes.size());
}

void Row::fill(int column, Look const& look) {
    if (column <= cells) return;
    if (column > s_widest) throw PageTooLarge();
    bytes.append(static_cast<std::size_t>(column - cells), ' ');
    cells = column;
    close(look, bytes.size());
}

void Row::add(RowView const& other, Colour ground, Colour shown) {
    std::size_t const begin = bytes.size();
    bytes.append(other.text);
    for (Span const& span : other.spans) {
        Look look = span.look;
        if (look.background == ground) look.background = shown;
        close(look, begin + span.end);
    }
    cells += other.width;
}

void Row::draw(int column, RowView const& other, Manner const& manner) {
    bool const isAmbiguousWide = manner.isAmbiguousWide;
    if (column >= cells) {
        if (other.width == 0) return;
        fill(column, blankOn(manner.beyond));
        return add(other, manner.ground, manner.beyond);
    }
    std::vector<Cell> drawn = cellsOf(view(), isAmbiguousWide);
    int at = column;
    for (Cell cell : cellsOf(other, isAmbiguousWide)) {
        drawn.resize(std::max(drawn.size(), static_cast<std::size_t>(at) + 1),
                     Cell{" ", blankOn(manner.beyond)});
        Cell& below = drawn[static_cast<std::size_t>(at++)];
        bool const hasBackground = cell.look.background != manner.ground;
        if (!hasBackground) cell.look.background = below.look.background;
        if (covers(cell.text, below.text, hasBackground && !manner.keepsBorders)) {
            below = cell;
        } else if (!isLine(cell.text)) {
            below.look.background = cell.look.background;
        }
    }
    Row result;
    for (std::size_t i = 0; i < drawn.size(); ++i) {
        bool const hasSecond = i + 1 < drawn.size() && drawn[i + 1].text.empty();
        bool const isWide = hasSecond && countCells(drawn[i].text, isAmbiguousWide) == 2;
        bool const isHalf =
            drawn[i].text.empty() || (!isWide && countCells(drawn[i].text, isAmbiguousWide) == 2);
        result.add(isHalf ? " " : drawn[i].text, isWide ? 2 : 1, drawn[i].look);
        if (isWide) ++i;
    }
    *this = std::move(result);
}

void Row::addPart(RowView const& other, int begin, int end, bool isAmbiguousWide) {
    int column = 0;
    for (Span const& span : other.spans) {
        std::string_view const text = other.textOf(span);
        for (std::size_t i = 0; i < text.size() && column < end;) {
            Cluster const cluster = clusterAt(text, i, isAmbiguousWide);
            int const next = column + static_cast<int>(cluster.width);
            if (column >= begin && next <= end) {
                add(text.substr(i, cluster.end - i), next - column, span.look);
            } else if (next > begin) {
                fill(cells + 1, span.look);
            }
            column = next;
            i = cluster.end;
        }
    }
}

void Row::clear() {
    bytes.clear();
    all.clear();
    cells = 0;
}

/// Ends a span before a byte.
void Row::close(Look const& look, std::size_t end) {
    std::size_t const begin = all.empty() ? 0 : all.back().end;
    if (end == begin) return;
    if (!all.empty() && all.back().look == look) {
        all.back().end = end;
    } else {
        all.push_back({begin, end, look});
    }
}

}  // namespace galley::web

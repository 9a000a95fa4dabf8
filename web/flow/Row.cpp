#include "web/flow/Row.h"

#include <utility>

#include "web/flow/PageBudget.h"
#include "web/text/Cluster.h"

namespace galley::web {

namespace {

/// In cells.
constexpr int s_widest = 1'000'000;

}  // namespace

void Row::add(std::string_view printed, int columns, Look const& look) {
    bytes.append(printed);
    cells += columns;
    close(look);
}

void Row::fill(int column, Look const& look) {
    if (column <= cells) return;
    if (column > s_widest) throw PageTooLarge();
    bytes.append(static_cast<std::size_t>(column - cells), ' ');
    cells = column;
    close(look);
}

void Row::add(RowView const& other) {
    for (Span const& span : other.spans) {
        bytes.append(other.textOf(span));
        close(span.look);
    }
    cells += other.width;
}

void Row::draw(int column, RowView const& other, Colour background, bool isAmbiguousWide) {
    if (column >= cells) {
        if (other.width == 0) return;
        fill(column, blankOn(background));
        add(other);
        return;
    }
    Row result;
    result.addPart(view(), 0, column, isAmbiguousWide);
    result.add(other);
    result.addPart(view(), column + other.width, cells, isAmbiguousWide);
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

/// Ends a span behind the text.
void Row::close(Look const& look) {
    std::size_t const begin = all.empty() ? 0 : all.back().end;
    if (bytes.size() == begin) return;
    if (!all.empty() && all.back().look == look) {
        all.back().end = bytes.size();
    } else {
        all.push_back({begin, bytes.size(), look});
    }
}

}  // namespace galley::web

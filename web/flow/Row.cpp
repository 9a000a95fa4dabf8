#include "web/flow/Row.h"

#include "web/flow/PageBudget.h"
#include "web/flow/RowCanvas.h"

namespace galley::web {

void Row::add(std::string_view printed, int columns, Look const& look) {
    bytes.append(printed);
    cells += columns;
    close(look, bytes.size());
}

void Row::fill(int column, Look const& look) {
    if (column <= cells) return;
    if (column > s_widestRow) throw PageTooLarge();
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
    if (column >= cells) {
        if (other.width == 0) return;
        fill(column, blankOn(manner.beyond));
        return add(other, manner.ground, manner.beyond);
    }
    RowCanvas canvas(view(), manner.isAmbiguousWide);
    canvas.draw(column, other, manner);
    *this = canvas.row();
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

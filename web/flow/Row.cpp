#include "web/flow/Row.h"

namespace galley::web {

void Row::add(std::string_view printed, int columns, Look const& look) {
    bytes.append(printed);
    cells += columns;
    close(look);
}

void Row::fill(int column, Look const& look) {
    if (column <= cells) return;
    bytes.append(static_cast<std::size_t>(column - cells), ' ');
    cells = column;
    close(look);
}

void Row::add(Row const& other) {
    for (Span const& span : other.all) {
        bytes.append(other.textOf(span));
        close(span.look);
    }
    cells += other.cells;
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

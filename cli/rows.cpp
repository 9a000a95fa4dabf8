#include "cli/rows.h"

#include <algorithm>

#include "galley/terminal/columns.h"

namespace {

/// Columns between the stops of tabs.
constexpr std::size_t s_tab = 8;

}  // namespace

std::vector<std::string> splitRows(std::string_view text) {
    std::vector<std::string> rows;
    while (!text.empty()) {
        std::size_t const end = std::min(text.find('\n'), text.length());
        rows.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.length()));
    }
    return rows;
}

std::size_t endOfRow(std::string_view row, std::size_t i, std::size_t width) {
    std::size_t column = 0;
    while (i < row.length()) {
        if (row[i] == '\x1b') {
            i = std::min(row.find('m', i), row.length() - 1) + 1;
            continue;
        }
        column += row[i] == '\t' ? s_tab - column % s_tab : galley::columnsAt(row, i);
        if (column > width) break;
        i += galley::lengthAt(row, i);
    }
    return i;
}

std::vector<std::string> breakRows(std::string_view text, std::size_t width) {
    std::vector<std::string> broken;
    for (std::string const& row : splitRows(text)) {
        std::size_t start = 0;
        do {
            // One that is wider than the screen has a row, too.
            std::size_t const end =
                std::max(endOfRow(row, start, width),
                         start + (row.empty() ? 0 : galley::lengthAt(row, start)));
            broken.push_back(row.substr(start, end - start));
            start = end;
        } while (start < row.length());
    }
    return broken;
}

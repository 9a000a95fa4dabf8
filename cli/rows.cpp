#include "cli/rows.h"

#include <algorithm>

#include "galley/terminal/columns.h"

namespace {

/// Columns between the stops of tabs.
constexpr std::size_t s_tab = 8;

/// Bytes of the escape sequence that begins at the start of `text` (ECMA-48, 5.4 and 5.6): a string
/// such as OSC is ended by ST, or as xterm has it by BEL.
std::size_t sequenceLength(std::string_view text) {
    if (text.length() < 2) return text.length();
    if (text[1] == '[') {
        auto const* const end =
            std::find_if(text.begin() + 2, text.end(), [](char c) { return c >= '@' && c <= '~'; });
        return std::min(static_cast<std::size_t>(end - text.begin()) + 1, text.length());
    }
    if (text[1] != ']') return 2;
    std::size_t const end = text.find_first_of("\a\x1b", 2);
    if (end == std::string_view::npos) return text.length();
    return std::min(end + (text[end] == '\a' ? 1 : 2), text.length());
}

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
            i += sequenceLength(row.substr(i));
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

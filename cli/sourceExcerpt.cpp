#include "cli/sourceExcerpt.h"

#include <algorithm>

#include "cli/columns.h"
#include "cli/terminal/controls.h"

using CLI::XML::characterLength;

namespace {

/// In columns, of the text of a line.
constexpr unsigned s_longestExcerpt = 72;
constexpr std::size_t s_longestCharacter = 4;
constexpr std::string_view s_cut = "...";
/// Digits that a line number has room for.
constexpr std::size_t s_numberWidth = 5;

/// The index behind the characters from `i` on that fit into `room` columns.
std::size_t forward(std::string_view line, std::size_t i, unsigned room) {
    while (i < line.length() && columnsAt(line, i) <= room) {
        room -= columnsAt(line, i);
        i += lengthAt(line, i);
    }
    return i;
}

/// The index of the first of the characters before `i` that fit into `room` columns.
std::size_t backward(std::string_view line, std::size_t i, unsigned room) {
    while (i > 0) {
        std::size_t length = std::min(i, s_longestCharacter);
        while (length > 1 && characterLength(line, i - length) != length) --length;
        unsigned const columns = columnsAt(line, i - length);
        if (columns > room) break;
        room -= columns;
        i -= length;
    }
    return i;
}

/// Leaves only bytes in a part of a line that take the cursor to the right.
std::string printable(std::string_view part) {
    std::string text(part);
    auto const isVertical = [](char c) { return c == '\v' || c == '\f' || c == '\r'; };
    std::replace_if(text.begin(), text.end(), isVertical, ' ');
    return text;
}

/// Blanks as wide as `text`, with its tabs.
std::string padding(std::string_view text) {
    std::string blanks;
    for (std::size_t i = 0; i < text.length(); i += lengthAt(text, i)) {
        if (text[i] == '\t') {
            blanks += '\t';
        } else {
            blanks.append(columnsAt(text, i), ' ');
        }
    }
    return blanks;
}

std::string margin(std::string const& number) {
    std::size_t const width = std::max(number.length(), s_numberWidth);
    return std::string(width - number.length(), ' ') + number + " | ";
}

}  // namespace

std::size_t lineNumber(std::string_view source, std::size_t position) {
    auto const before = source.substr(0, position);
    return 1 + static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
}

std::string sourceExcerpt(std::string_view source, std::size_t position) {
    // At the end, the last line that there is.
    if (position >= source.length()) position = source.find_last_not_of("\r\n") + 1;
    std::size_t const feedBefore = source.substr(0, position).rfind('\n');
    std::size_t const start = feedBefore == std::string_view::npos ? 0 : feedBefore + 1;
    std::string_view line = source.substr(start, source.find('\n', position) - start);
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line.empty()) return "";

    std::size_t const column = std::min(position - start, line.length());
    // At an end of the line, what that leaves free goes to the other side.
    std::size_t const behind = forward(line, column, s_longestExcerpt / 2);
    std::size_t const first = backward(line, behind, s_longestExcerpt);
    std::size_t const last = forward(line, first, s_longestExcerpt);

    std::string const opening(first > 0 ? s_cut : "");
    std::string const text = opening + printable(line.substr(first, last - first));
    std::string const number = std::to_string(lineNumber(source, position));
    std::string_view const before =
        std::string_view(text).substr(0, opening.length() + column - first);
    return margin(number) + text + (last < line.length() ? "...\n" : "\n") +
           margin(std::string(number.length(), ' ')) + padding(before) + "^\n";
}

#include "galley/Places.h"

#include <algorithm>

#include "base/append.h"
#include "galley/terminal/columns.h"
#include "galley/terminal/controls.h"

namespace galley {

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

/// Leaves only bytes in a part of a line that take the cursor to the right, also of a source whose
/// control characters are wanted on the page.
std::string printable(std::string_view part) {
    String cleaned;
    CLI::XML::append(cleaned, part);
    replaceControls(cleaned);
    std::string text(cleaned.view());
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

Places::Places(std::string_view source) : text(source) { beginLine(0, 1); }

void Places::beginLine(std::size_t first, unsigned number) {
    start = first;
    current = first;
    end = std::min(text.find('\n', first), text.length());
    place = {number, 1};
}

void Places::goTo(std::size_t position) {
    if (position < start) beginLine(0, 1);
    while (position > end) beginLine(end + 1, place.line + 1);
    if (position < current) beginLine(start, place.line);
    for (; current < position; current += lengthAt(text, current)) ++place.column;
}

Places::Place Places::at(std::size_t position) {
    goTo(position);
    return place;
}

std::string Places::excerpt(std::size_t position) {
    // At the end, the last line that there is.
    if (position >= text.length()) position = text.find_last_not_of("\r\n") + 1;
    goTo(position);
    std::string_view line = text.substr(start, end - start);
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line.empty()) return "";

    std::size_t const column = std::min(position - start, line.length());
    // At an end of the line, what that leaves free goes to the other side.
    std::size_t const behind = forward(line, column, s_longestExcerpt / 2);
    std::size_t const first = backward(line, behind, s_longestExcerpt);
    std::size_t const last = forward(line, first, s_longestExcerpt);

    std::string const opening(first > 0 ? s_cut : "");
    std::string const shown = opening + printable(line.substr(first, last - first));
    std::string const number = std::to_string(place.line);
    std::string_view const before =
        std::string_view(shown).substr(0, opening.length() + column - first);
    return margin(number) + shown + (last < line.length() ? "...\n" : "\n") +
           margin(std::string(number.length(), ' ')) + padding(before) + "^\n";
}

}  // namespace galley

#include "galley/Places.h"

#include <algorithm>

#include "galley/terminal/columns.h"
#include "galley/terminal/controls.h"
#include "web/text/utf8.h"
#include "web/text/visible.h"

namespace galley {

namespace {

/// In columns, of the text of a line.
constexpr unsigned s_longestExcerpt = 72;
constexpr std::size_t s_longestCharacter = 4;
constexpr std::string_view s_cut = "...";
/// Digits that a line number has room for.
constexpr std::size_t s_numberWidth = 5;

/// How a character is shown that would not be seen, drive a terminal or is none; empty for another.
/// Tabs are shown as tabs, and other white space of ASCII as a blank.
std::string replacementAt(std::string_view line, std::size_t i) {
    if (line[i] == '\t') return "";
    if (line[i] == '\v' || line[i] == '\f' || line[i] == '\r') return " ";
    web::CodePoint const c = web::decodeAt(line, i);
    // What is no UTF-8 may be a control to a terminal, and stops who reads messages strictly.
    if (!c.isWellFormed) return "?";
    return web::isHidden(c.value) ? web::notation(c.value) : "";
}

/// Columns that the character at `i` is shown in.
unsigned shownColumns(std::string_view line, std::size_t i) {
    std::string const replacement = replacementAt(line, i);
    return replacement.empty() ? columnsAt(line, i) : static_cast<unsigned>(replacement.length());
}

/// The index behind the characters from `i` on that fit into `room` columns.
std::size_t forward(std::string_view line, std::size_t i, unsigned room) {
    while (i < line.length() && shownColumns(line, i) <= room) {
        room -= shownColumns(line, i);
        i += lengthAt(line, i);
    }
    return i;
}

/// The index of the first of the characters before `i` that fit into `room` columns.
std::size_t backward(std::string_view line, std::size_t i, unsigned room) {
    while (i > 0) {
        std::size_t length = std::min(i, s_longestCharacter);
        while (length > 1 && characterLength(line, i - length) != length) --length;
        unsigned const columns = shownColumns(line, i - length);
        if (columns > room) break;
        room -= columns;
        i -= length;
    }
    return i;
}

/// Leaves only what takes the cursor to the right, also of a source whose control characters are
/// wanted on the page.
std::string printable(std::string_view part) {
    std::string shown;
    for (std::size_t i = 0; i < part.length(); i += lengthAt(part, i)) {
        std::string const replacement = replacementAt(part, i);
        shown += replacement.empty() ? part.substr(i, lengthAt(part, i)) : replacement;
    }
    return shown;
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
    std::size_t const reached = forward(line, column, s_longestExcerpt / 2);
    std::size_t const first = backward(line, reached, s_longestExcerpt);
    std::size_t const last = forward(line, first, s_longestExcerpt);

    std::string const opening(first > 0 ? s_cut : "");
    std::string const before = opening + printable(line.substr(first, column - first));
    std::string const behind = printable(line.substr(column, last - column));
    std::string const number = std::to_string(place.line);
    return margin(number) + before + behind + (last < line.length() ? "...\n" : "\n") +
           margin(std::string(number.length(), ' ')) + padding(before) + "^\n";
}

}  // namespace galley

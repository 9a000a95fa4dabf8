#include "cli/Screen.h"

#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <utility>

#include "cli/files.h"
#include "galley/terminal/columns.h"

namespace {

// Control sequences of xterm. Modes: 1049 the alternate screen, 25 the cursor, 7 whether a row that
// is too long goes on in the next.
constexpr std::string_view s_enter = "\x1b[?1049h\x1b[?25l\x1b[?7l";
constexpr std::string_view s_leave = "\x1b[0m\x1b[?7h\x1b[?25h\x1b[?1049l";
constexpr std::string_view s_home = "\x1b[H";
/// Attributes as the terminal begins with, and an empty row.
constexpr std::string_view s_clearRow = "\x1b[0m\x1b[2K";
constexpr std::string_view s_clearBelow = "\x1b[0m\x1b[J";
constexpr std::string_view s_inverse = "\x1b[7m";

/// Columns between the stops of tabs.
constexpr std::size_t s_tab = 8;

/// What `leave` goes back to.
termios s_before = {};
volatile std::sig_atomic_t s_isKnown = 0;
volatile std::sig_atomic_t s_isEntered = 0;

void writeNow(std::string_view text) {
    // There is nobody to tell that it failed.
    while (write(STDOUT_FILENO, text.data(), text.length()) < 0 && errno == EINTR) continue;
}

winsize terminalSize() {
    winsize size{};
    if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_row == 0) size.ws_row = 24;
    if (size.ws_col == 0) size.ws_col = 80;
    return size;
}

std::vector<std::string> splitRows(std::string_view text) {
    std::vector<std::string> rows;
    while (!text.empty()) {
        std::size_t const end = std::min(text.find('\n'), text.length());
        rows.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.length()));
    }
    return rows;
}

/// The index behind what fits into `width` columns of a row from `i` on. Sequences take none, and a
/// tab what is left up to the next stop.
std::size_t endOfRow(std::string_view row, std::size_t i, std::size_t width) {
    std::size_t column = 0;
    while (i < row.length()) {
        if (row[i] == '\x1b') {
            i = std::min(row.find('m', i), row.length() - 1) + 1;
            continue;
        }
        column += row[i] == '\t' ? s_tab - column % s_tab : columnsAt(row, i);
        if (column > width) break;
        i += lengthAt(row, i);
    }
    return i;
}

/// Goes on in a further row where a character finds no room.
std::vector<std::string> breakRows(std::string_view text, std::size_t width) {
    std::vector<std::string> broken;
    for (std::string const& row : splitRows(text)) {
        std::size_t start = 0;
        do {
            // One that is wider than the screen has a row, too.
            std::size_t const end = std::max(endOfRow(row, start, width),
                                             start + (row.empty() ? 0 : lengthAt(row, start)));
            broken.push_back(row.substr(start, end - start));
            start = end;
        } while (start < row.length());
    }
    return broken;
}

/// Which of `count` rows stands at the top of the screen, which has `room` for some: `top` as long
/// as that shows the row `change`. No room is left empty that rows above could take.
std::size_t scroll(std::size_t top, std::size_t change, std::size_t room, std::size_t count) {
    if (change < top || change >= top + room) top = change - std::min(change, room / 3);
    return std::min(top, count - std::min(count, room));
}

std::size_t firstChange(std::vector<std::string> const& a, std::vector<std::string> const& b) {
    auto const ends = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    return static_cast<std::size_t>(ends.first - a.begin());
}

}  // namespace

void Screen::enter() {
    if (s_isEntered == 0) s_isKnown = tcgetattr(STDOUT_FILENO, &s_before) == 0 ? 1 : 0;
    s_isEntered = 1;
    termios silent = s_before;
    silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    if (s_isKnown != 0) tcsetattr(STDOUT_FILENO, TCSANOW, &silent);
    writeNow(s_enter);
}

void Screen::leave() {
    if (s_isEntered == 0) return;
    s_isEntered = 0;
    // In this order: what is typed once the old screen is back counts.
    tcflush(STDOUT_FILENO, TCIFLUSH);
    if (s_isKnown != 0) tcsetattr(STDOUT_FILENO, TCSANOW, &s_before);
    writeNow(s_leave);
}

int Screen::show(std::string_view page, std::string_view errors) {
    winsize const size = terminalSize();
    std::vector<std::string> const former = std::exchange(rows, splitRows(page));
    std::vector<std::string> below = breakRows(errors, size.ws_col);
    // An error that is too long for all of the screen leaves a row to the page.
    std::size_t const most = size.ws_row - (rows.empty() ? 0U : 1U);
    below.resize(std::min(below.size(), most));
    std::size_t room = size.ws_row - below.size();
    bool const isCut = rows.size() > room && room > 1;
    if (isCut) --room;

    // Another width moves all rows, which says nothing about where the change is.
    bool const isComparable = !former.empty() && columns == size.ws_col && former != rows;
    top = scroll(top, isComparable ? firstChange(former, rows) : top, room, rows.size());
    columns = size.ws_col;
    std::size_t const end = std::min(top + room, rows.size());
    std::vector<std::string> shown(rows.begin() + static_cast<std::ptrdiff_t>(top),
                                   rows.begin() + static_cast<std::ptrdiff_t>(end));
    if (isCut) {
        shown.push_back(std::string(s_inverse) + "rows " + std::to_string(top + 1) + " to " +
                        std::to_string(end) + " of " + std::to_string(rows.size()));
    }
    shown.insert(shown.end(), below.begin(), below.end());

    std::string text(s_home);
    for (std::size_t i = 0; i < shown.size(); ++i) {
        // The terminal would show the end of a row that is too long in its last column.
        std::size_t const length = endOfRow(shown[i], 0, columns);
        text.append(i == 0 ? "" : "\r\n").append(s_clearRow).append(shown[i], 0, length);
    }
    if (shown.size() < size.ws_row) text.append(shown.empty() ? "" : "\r\n").append(s_clearBelow);
    return writeOutput(text);
}

#include "cli/Screen.h"

#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <utility>

#include "cli/files.h"
#include "cli/rows.h"

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

constexpr std::string_view s_help = " (arrows scroll, q quits)";

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

/// Which of `count` rows stands at the top of the screen, which has `room` for some: `top` as long
/// as that shows the row `change`. No room is left empty that rows above could take.
std::size_t topAround(std::size_t change, std::size_t top, std::size_t room, std::size_t count) {
    if (change < top || change >= top + room) top = change - std::min(change, room / 3);
    return std::min(top, count - std::min(count, room));
}

/// The same after a key.
std::size_t topAfter(Key key, std::size_t top, std::size_t room, std::size_t count) {
    std::size_t const last = count - std::min(count, room);
    switch (key) {
        case Key::Up:
            return top - std::min<std::size_t>(top, 1);
        case Key::Down:
            return std::min(top + 1, last);
        case Key::PageUp:
            return top - std::min(top, room);
        case Key::PageDown:
            return std::min(top + room, last);
        case Key::Home:
            return 0;
        case Key::End:
            return last;
        case Key::Quit:
            break;
    }
    return top;
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
    silent.c_lflag &= ~static_cast<tcflag_t>(ECHO | ICANON);
    // With one byte as the least, whoever else reads the terminal meanwhile finds no end of it.
    silent.c_cc[VMIN] = 1;
    silent.c_cc[VTIME] = 0;
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

int Screen::show(std::string_view page, std::string_view errorText) {
    std::vector<std::string> const former = std::exchange(rows, splitRows(page));
    errors = errorText;
    std::size_t const formerColumns = columns;
    measure();
    // Another width moves all rows, which says nothing about where the change is.
    bool const isComparable = !former.empty() && columns == formerColumns && former != rows;
    top = topAround(isComparable ? firstChange(former, rows) : top, top, room, rows.size());
    return draw();
}

int Screen::scroll(std::vector<Key> const& keys) {
    measure();
    top = topAround(top, top, room, rows.size());
    for (Key const key : keys) top = topAfter(key, top, room, rows.size());
    return draw();
}

void Screen::measure() {
    winsize const size = terminalSize();
    columns = size.ws_col;
    height = size.ws_row;
    below = breakRows(errors, columns);
    // An error that is too long for all of the screen leaves a row to the page.
    below.resize(std::min(below.size(), height - (rows.empty() ? 0 : 1)));
    room = height - below.size();
    isCut = rows.size() > room && room > 1;
    if (isCut) --room;
}

std::string Screen::position(std::size_t end) const {
    std::string text = "rows " + std::to_string(top + 1) + " to " + std::to_string(end) + " of " +
                       std::to_string(rows.size());
    if (keyboard.descriptor() >= 0 && text.length() + s_help.length() <= columns) text += s_help;
    return std::string(s_inverse) + text;
}

int Screen::draw() const {
    std::size_t const end = std::min(top + room, rows.size());
    std::vector<std::string> shown(rows.begin() + static_cast<std::ptrdiff_t>(top),
                                   rows.begin() + static_cast<std::ptrdiff_t>(end));
    if (isCut) shown.push_back(position(end));
    shown.insert(shown.end(), below.begin(), below.end());

    std::string text(s_home);
    for (std::size_t i = 0; i < shown.size(); ++i) {
        // The terminal would show the end of a row that is too long in its last column.
        std::size_t const length = endOfRow(shown[i], 0, columns);
        text.append(i == 0 ? "" : "\r\n").append(s_clearRow).append(shown[i], 0, length);
    }
    if (shown.size() < height) text.append(shown.empty() ? "" : "\r\n").append(s_clearBelow);
    return writeOutput(text);
}

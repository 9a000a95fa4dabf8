#include "galley/terminal/terminal.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include "base/String.h"

namespace galley {

namespace {

/// Empty where the environment does not have it.
std::string_view variable(char const* name) {
    char const* const value = std::getenv(name);
    return value != nullptr ? value : "";
}

}  // namespace

unsigned terminalWidth(std::FILE* out) {
    constexpr unsigned s_defaultWidth = 80;
    winsize size{};
    if (ioctl(fileno(out), TIOCGWINSZ, &size) == 0 && size.ws_col > 0) return size.ws_col;
    std::string_view const columns = variable("COLUMNS");
    bool const isNumber = columns.find_first_not_of("0123456789") == std::string_view::npos;
    int const width = isNumber ? String(columns.data()).toInteger() : 0;
    return width > 0 ? static_cast<unsigned>(width) : s_defaultWidth;
}

bool isTerminal(std::FILE* out) { return isatty(fileno(out)) == 1; }

bool isColorWelcome(std::FILE* out) {
    return isTerminal(out) && variable("NO_COLOR").empty() && variable("TERM") != "dumb";
}

ColourDepth colourDepthOfTerminal() {
    return std::max(colourDepth(variable("COLORTERM"), variable("TERM"), {}), ColourDepth::sixteen);
}

}  // namespace galley

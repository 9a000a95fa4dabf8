#include "cli/terminalWidth.h"

#include <sys/ioctl.h>
#include <unistd.h>

unsigned terminalWidth() {
    constexpr unsigned s_defaultWidth = 80;
    winsize size{};
    bool const known = ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return known ? size.ws_col : s_defaultWidth;
}

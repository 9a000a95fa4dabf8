#include "cli/Keyboard.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace {

/// Whoever's it is, a program may open the terminal that it belongs to.
int openTerminal() {
    bool const isOwn = tcgetpgrp(STDOUT_FILENO) >= 0;
    return open(isOwn ? "/dev/tty" : "/proc/self/fd/1",
                O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
}

}  // namespace

Keyboard::Keyboard() : terminal(openTerminal()) {}

Keyboard::~Keyboard() {
    if (terminal >= 0) close(terminal);
}

std::vector<Key> Keyboard::read() {
    char bytes[256];
    ssize_t const length = ::read(terminal, bytes, sizeof bytes);
    if (length > 0) return reader.read({bytes, static_cast<std::size_t>(length)});
    bool const isGone = length == 0 || (errno != EAGAIN && errno != EINTR);
    if (isGone) close(std::exchange(terminal, -1));
    return {};
}

#pragma once

#include <pty.h>
#include <unistd.h>

#include <string>

/// A terminal of 6 columns to write to.
struct Terminal {
    Terminal() {
        winsize const size{24, 6, 0, 0};
        isOpen = openpty(&controller, &terminal, nullptr, nullptr, &size) == 0;
    }
    Terminal(Terminal const&) = delete;
    Terminal& operator=(Terminal const&) = delete;
    ~Terminal() {
        close(controller);
        close(terminal);
    }
    /// All that was written to it, once nobody else has it open. Closes it.
    std::string seen() {
        close(terminal);
        terminal = -1;
        std::string all;
        char piece[256];
        for (ssize_t n = 0; (n = ::read(controller, piece, sizeof piece)) > 0;) {
            all.append(piece, static_cast<std::size_t>(n));
        }
        return all;
    }

    int controller = -1;
    int terminal = -1;
    bool isOpen = false;
};

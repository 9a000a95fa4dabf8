#pragma once

#include <vector>

#include "cli/Keys.h"

/// The keys of the terminal that standard output goes to, wherever standard input comes from.
class Keyboard {
public:
    Keyboard();
    Keyboard(Keyboard const&) = delete;
    Keyboard& operator=(Keyboard const&) = delete;
    ~Keyboard();

    /// Readable when there are keys; -1 where the terminal cannot be read, or is gone.
    int descriptor() const { return terminal; }
    /// The keys that there are, without waiting for any.
    std::vector<Key> read();

private:
    /// Open once more, so that it waits for nobody and others who have it open still do.
    int terminal;
    KeyReader reader;
};

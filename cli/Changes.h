#pragma once

#include <string>
#include <vector>

#include "cli/FileWatch.h"
#include "cli/Options.h"

/// What makes it necessary to render again.
class Changes {
public:
    explicit Changes(Options const& options);
    Changes(Changes const&) = delete;
    Changes& operator=(Changes const&) = delete;
    ~Changes();

    /// From now on none is missed. Returns 0 or why there is no such thing.
    int follow() { return files.follow(inputs); }
    /// Returns true when there was one, and what belongs to it is over; false when there is
    /// something to read from `keys`, if that is not -1. While the program is suspended, the
    /// screen, if it has one, is left.
    bool wait(bool hasScreen, int keys);

private:
    bool handleSignal(bool hasScreen) const;
    void settle();
    void noteWhole();
    bool isBeingSaved() const;

    std::vector<std::string> inputs;
    /// Of each, whether it was when changes settled last. What was missing then need not be now.
    std::vector<bool> wereWhole;
    FileWatch files;
    int signals;
};

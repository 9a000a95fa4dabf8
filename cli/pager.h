#pragma once

#include "cli/ExitStatus.h"
#include "cli/Options.h"

/// Renders every document into the environment's PAGER, a command of the shell, or `less -R`, and
/// waits for that to end. Errors follow on standard error, where its screen does not hide them.
/// Quitting it early is no failure. Pages go straight to standard output where it cannot be run.
///
/// Without LESS in the environment, `less` is told by it to pass escape sequences on, and to leave
/// a page that fits on the screen, and end.
ExitStatus renderInPager(Options const& options);

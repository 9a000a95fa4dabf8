#pragma once

#include "cli/ExitStatus.h"
#include "cli/Options.h"

/// Renders every document, and once more whenever one of them, a sheet or the width of the terminal
/// has changed: on a screen of its own, where the last page that was right stays above the errors,
/// or to files where these are named.
///
/// Keys of the terminal scroll that screen; `q` ends it. SIGINT, SIGTERM, SIGHUP and SIGQUIT,
/// unless the caller had them ignored, end the program with the status 0 and the terminal as it
/// was. Returns otherwise only where files cannot be watched or the terminal is gone.
ExitStatus watch(Options const& options);

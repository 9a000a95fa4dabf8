#pragma once

#include "cli/ExitStatus.h"
#include "cli/Options.h"
#include "cli/Output.h"
#include "galley/galley.h"

/// Adds all sheets, of one dialect, to `sheet`, in order. A sheet that fails is reported to
/// `output` and leaves no rule; the status is that of the first.
ExitStatus readSheets(Options const& options, galley::Dialect dialect, galley::Sheet& sheet,
                      Output& output);

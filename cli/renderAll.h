#pragma once

#include "cli/ExitStatus.h"
#include "cli/Options.h"
#include "cli/Output.h"

/// Reads the sheets and renders every document that `output` has a use for. The status is that of
/// the first failure; a sheet that fails ends the run, unless it is a check.
ExitStatus renderAll(Options const& options, Output& output);

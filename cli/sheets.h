#pragma once

#include "cli/ExitStatus.h"
#include "cli/Options.h"
#include "cli/Output.h"
#include "xml/css/StyleNode.h"

/// Appends the rules of all sheets to `styles`, in order. A sheet that fails is reported to
/// `output` and leaves no rule; the status is that of the first.
ExitStatus readSheets(Options const& options, CLI::XML::StyleList& styles, Output& output);

#pragma once

#include <string>

#include "cli/Options.h"

/// Completes `files` of `options` with the names in its directory. Returns what is wrong with where
/// the pages are to go, or an empty text.
std::string nameOutputs(Options& options);

#pragma once

#include <CLI/CLI.hpp>

#include "cli/Options.h"

/// Makes `app` read everything that the tool understands into `options`, which has to outlive it.
/// What no option knows by itself remains to be checked.
void defineOptions(CLI::App& app, Options& options);

#pragma once

#include <cstdio>

#include "galley/terminal/ColourDepth.h"

namespace galley {

/// Columns of the terminal that `out` goes to; where it goes elsewhere, the environment's COLUMNS
/// if that is a positive number, else 80.
unsigned terminalWidth(std::FILE* out);

bool isTerminal(std::FILE* out);

/// Whether `out` goes to a terminal whose user has nothing against colours.
bool isColorWelcome(std::FILE* out);

/// How many colours a page is to have that has any: by COLORTERM and TERM in the environment, and
/// at least a terminal's own.
ColourDepth colourDepthOfTerminal();

}  // namespace galley

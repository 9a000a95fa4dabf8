#pragma once

#include <cstdio>

namespace galley {

/// Columns of the terminal that `out` goes to; where it goes elsewhere, the environment's COLUMNS
/// if that is a positive number, else 80.
unsigned terminalWidth(std::FILE* out);

/// Whether `out` goes to a terminal whose user has nothing against colours.
bool isColorWelcome(std::FILE* out);

}  // namespace galley

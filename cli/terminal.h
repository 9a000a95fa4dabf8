#pragma once

/// Columns of the terminal that standard output goes to; where it goes elsewhere, the environment's
/// COLUMNS if that is a positive number, else 80.
unsigned terminalWidth();

/// Whether standard output is a terminal whose user has nothing against colours.
bool isColorWelcome();

#pragma once

/// Columns of the terminal that standard output goes to; 80 where it goes elsewhere.
unsigned terminalWidth();

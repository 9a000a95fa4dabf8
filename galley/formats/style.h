#pragma once

#include <string>
#include <string_view>

#include "galley/terminal/AnsiReader.h"

/// The colours of a cell as a terminal would choose them, as "#rrggbb".
struct CellColors {
    std::string text;
    std::string ground;
};

CellColors cellColors(CLI::XML::Look const& look);

/// CSS declarations, each ended by a semicolon, for what colours do not show.
std::string attributeCss(CLI::XML::Look const& look);

/// The element that `attributeCss` needs beside it where something in `page` blinks; else empty.
std::string_view blinkElement(std::string_view page);

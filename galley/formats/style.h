#pragma once

#include <string>
#include <string_view>

#include "galley/terminal/AnsiReader.h"

namespace galley {

/// The CSS value for fonts whose characters are all one cell wide.
constexpr std::string_view s_fontFamily =
    "ui-monospace,Menlo,Consolas,'DejaVu Sans Mono',monospace";

/// CSS declarations, each ended by a semicolon, for what colours do not show.
std::string attributeCss(Look const& look);

/// The rule that `attributeCss` needs beside it where something in `page` blinks; else empty.
std::string_view blinkRule(std::string_view page);

}  // namespace galley

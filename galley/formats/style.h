#pragma once

#include <string>
#include <string_view>

#include "web/flow/Look.h"

namespace galley {

/// The CSS value for fonts whose characters are all one cell wide.
constexpr std::string_view s_fontFamily =
    "ui-monospace,Menlo,Consolas,'DejaVu Sans Mono',monospace";

/// CSS declarations, each ended by a semicolon, for what colours do not show.
std::string attributeCss(web::Look const& look);

/// The rule that `attributeCss` needs beside it where something blinks.
constexpr std::string_view s_blinkRule =
    "@keyframes galley-blink{50%{color:transparent;fill:transparent}}\n";

}  // namespace galley

#pragma once

#include <string>

#include "galley/galley.h"
#include "web/flow/Look.h"

namespace galley {

/// The colours of a cell as a terminal would choose them, as "#rrggbb".
struct CellColors {
    std::string text;
    std::string ground;
};

/// Automatic is dark.
CellColors cellColors(web::Look const& look, Theme theme);

}  // namespace galley

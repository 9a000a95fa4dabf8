#pragma once

#include <cstdint>

#include "web/Colour.h"

namespace galley {

/// The number of the colour of xterm's first 16 that is nearest to one of 24 bits; of equally near
/// ones the first. A person may have given these others.
std::uint8_t nearestOf16(web::Colour colour);

/// The same of xterm's other 240, which are the same everywhere.
std::uint8_t nearestOf256(web::Colour colour);

}  // namespace galley

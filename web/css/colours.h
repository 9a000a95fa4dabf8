#pragma once

#include "web/Colour.h"
#include "web/css/ValueReader.h"

namespace galley::web {

/// A colour by its name, as `#` and hexadecimal digits, or as `rgb()`. An opacity means nothing but
/// that with none the colour is transparent.
bool readColour(ValueReader& reader, Colour& colour);

}  // namespace galley::web

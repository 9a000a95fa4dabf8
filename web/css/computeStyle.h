#pragma once

#include <span>

#include "web/css/Declarations.h"

namespace galley::web {

/// The style of an element whose parent has the style `parent`, by declarations in ascending order
/// of precedence.
Style computeStyle(Style const& parent, std::span<Declarations const* const> declared);

}  // namespace galley::web

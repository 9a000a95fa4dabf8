#pragma once

#include <string>

#include "web/Style.h"

namespace galley::web {

/// The properties in which a style differs from what it would be without declarations, as CSS has
/// them, each ended by "; ". Null stands for no parent.
std::string describeStyle(Style const& style, Style const* parent);

}  // namespace galley::web

#pragma once

#include <string_view>

#include "web/css/properties.h"

namespace galley::web {

/// The word that was probably meant by one that is no value of the property; empty where there is
/// none that is.
std::string_view suggestValue(Property const& property, std::string_view word);

}  // namespace galley::web

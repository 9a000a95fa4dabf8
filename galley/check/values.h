#pragma once

#include <string>
#include <string_view>

#include "xml/css/properties.h"

namespace galley {

/// What is to be said about a value of a property; empty where it does what it says.
std::string warningAbout(CLI::XML::Property::Value kind, std::string_view value);

}  // namespace galley

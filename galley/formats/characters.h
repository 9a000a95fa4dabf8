#pragma once

#include <string_view>

#include "base/String.h"

namespace galley {

/// Appends `text` as the content of an XML or HTML element, in ASCII. Control characters and bytes
/// that belong to no character become U+FFFD.
void appendEscaped(String& out, std::string_view text);

}  // namespace galley

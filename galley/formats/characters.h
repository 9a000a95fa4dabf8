#pragma once

#include <cstddef>
#include <string_view>

#include "base/String.h"

namespace galley {

/// Characters of `text`, each byte that belongs to none counted as one.
std::size_t countCharacters(std::string_view text);

/// Appends `text` as the content of an XML or HTML element, in ASCII. Control characters and bytes
/// that belong to no character become U+FFFD.
void appendEscaped(String& out, std::string_view text);

}  // namespace galley

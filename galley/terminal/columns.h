#pragma once

#include <cstddef>
#include <string_view>

namespace galley {

/// Bytes of the character at `i`; one where there is none in UTF-8.
std::size_t lengthAt(std::string_view text, std::size_t i);

/// Columns that the character at `i` takes on a terminal, a tab one: none where it is shown with
/// the one before it, two where it is wide.
unsigned columnsAt(std::string_view text, std::size_t i);

}  // namespace galley

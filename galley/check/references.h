#pragma once

#include <string_view>

#include "galley/check/Finding.h"

namespace galley {

/// Adds what is to be said about the references in a word of running text or in the value of an
/// attribute, which begins at `position` of the source.
///@{
void checkReferencesInText(std::string_view word, std::size_t position, Findings& findings);
void checkReferencesInValue(std::string_view value, std::size_t position, Findings& findings);
///@}

}  // namespace galley

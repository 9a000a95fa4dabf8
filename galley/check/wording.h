#pragma once

#include <string>

#include "galley/check/Finding.h"

/// How findings are worded.
namespace galley {

/// `text` in single quotes, in one line, and not all of it where it is long.
std::string quoted(std::string_view text);

/// "; did you mean 'SUGGESTION'?", or `otherwise` where there is none.
std::string didYouMean(std::string_view suggestion, std::string_view otherwise);

/// Adds a warning.
void warn(Findings& findings, std::size_t position, std::string message);

/// Brings findings into the order of the source, those about one place in that of their addition.
void sort(Findings& findings);

}  // namespace galley

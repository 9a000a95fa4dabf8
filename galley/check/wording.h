#pragma once

#include <string>

#include "galley/check/Finding.h"
#include "web/wording.h"

/// How findings are worded.
namespace galley {

using web::didYouMean;
using web::quoted;

/// Adds a warning.
void warn(Findings& findings, std::size_t position, std::string message);

/// Brings findings into the order of the source, those about one place in that of their addition.
void sort(Findings& findings);

}  // namespace galley

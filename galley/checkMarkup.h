#pragma once

#include <vector>

#include "base/String.h"
#include "galley/galley.h"

namespace galley {

/// All errors and warnings of a document, without those of its sheet. `markup` loses its control
/// characters unless they are wanted. The options are settled.
std::vector<Diagnostic> checkMarkup(String& markup, Sheet const& sheet, Options const& options);

}  // namespace galley

#pragma once

#include <cstdio>

#include "base/String.h"
#include "galley/galley.h"

namespace galley {

/// `options` with what the surroundings of `out` say where they leave that open: afterwards the
/// width is not 0, neither colour nor links are automatic, and the format is what is written.
Options settle(Options options, std::FILE* out);

/// Puts the page of `markup`, which loses its control characters unless they are wanted, in `page`.
/// The options are settled.
Result<void> makePage(String& page, String& markup, Sheet const& sheet, Options const& options);

}  // namespace galley

#pragma once

#include "base/String.h"
#include "cli/Options.h"
#include "galley/galley.h"

/// Puts one of the trees that a conversion makes on its way in `tree`, as text. The options are
/// settled, and `markup` loses its control characters unless they are wanted.
galley::Result<void> dumpTree(String& tree, String& markup, Product product,
                              galley::Sheet const& sheet, galley::Options const& options);

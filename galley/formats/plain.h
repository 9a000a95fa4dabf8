#pragma once

#include "base/String.h"

namespace CLI::XML {

/// Leaves of a page as the library makes it the text without escape sequences, byte for byte.
/// Throws std::bad_alloc where there is no memory for that.
void makePlain(String& page);

}  // namespace CLI::XML

#pragma once

#include "base/String.h"

namespace galley {

/// Leaves of a page as the library makes it the text without escape sequences and without the
/// blanks at the ends of rows, all other bytes as they are.
void makePlain(String& page);

}  // namespace galley

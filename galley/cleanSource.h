#pragma once

#include "base/String.h"

namespace galley {

/// Makes of a document or a sheet as it was written what the core is given: without the mark U+FEFF
/// that some editors begin a file with, which would be a word or a part of a selector, and, unless
/// it is raw, without control characters. Returns whether that changed anything.
bool cleanSource(String& text, bool isRaw);

}  // namespace galley

#pragma once

#include "../../base/String.h"
#include "../../base/export.h"

namespace CLI::XML {

/// `text` with its character references decoded: "nbsp", "amp", "lt" and "gt". Any other name is
/// dropped with its reference ("&copy;" becomes nothing); an ampersand that no semicolon follows
/// stays.
GALLEY_EXPORT String replaceEntities(String const& text);

}  // namespace CLI::XML

#pragma once

#include "base/String.h"

namespace CLI::XML {

/// `text` with its character references decoded: "nbsp", "amp", "lt" and "gt". Any other name is
/// dropped with its reference ("&copy;" becomes nothing); an ampersand that no semicolon follows
/// stays.
String replaceEntities(String const& text);

}  // namespace CLI::XML

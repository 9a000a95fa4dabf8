#pragma once

#include "base/String.h"
#include "base/XCode.h"

namespace CLI::XML {

class DomNode;

/// The value that an element's own attributes or style rule give to `property`. For null, a text
/// node, or a property that is not set: the generic failure without a message, `value` untouched.
/// Nothing is inherited.
XCode getNodeStyle(DomNode const* node, String const& property, String& value);

}  // namespace CLI::XML

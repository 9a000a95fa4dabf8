#pragma once

#include "../../base/String.h"
#include "../../base/XCode.h"
#include "../../base/export.h"
#include "properties.h"

namespace CLI::XML {

class DomNode;

/// The value that an element's own attributes or style rule give to `property`. For null, a text
/// node, or a property that is not set: the generic failure without a message, `value` untouched.
/// Nothing is inherited.
GALLEY_EXPORT XCode getNodeStyle(DomNode const* node, String const& property, String& value);

/// The same without a copy: null where the property is not set. The text belongs to the element or
/// to its rule.
String const* findStyle(DomNode const* node, StyleProperty const& property);

/// `property`, or `fallback` where that is not set.
inline String const* findStyle(DomNode const* node, StyleProperty const& property,
                               StyleProperty const& fallback) {
    String const* const value = findStyle(node, property);
    return value != nullptr ? value : findStyle(node, fallback);
}

}  // namespace CLI::XML

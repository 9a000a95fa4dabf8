#pragma once

#include "../../base/export.h"
#include "DomElement.h"

namespace CLI::XML {

/// A new element for a tag of the vocabulary, with the display kind that the tag starts with and
/// nothing else set; null for any other tag name. Names are compared exactly.
GALLEY_EXPORT ZRLWPtr<DomElement> createDomElement(String const& tag);

}  // namespace CLI::XML

#pragma once

#include "base/String.h"
#include "xml/css/StyleNode.h"

namespace CLI::XML {

/// Whether a box may come to lie above one before it: where a vertical edge may be negative, or
/// near the limit of geometry, in a rule or in what looks like an attribute. Rows of a page are
/// final only where none does.
bool mayReachUp(String const& xml, StyleList const& styles);

}  // namespace CLI::XML

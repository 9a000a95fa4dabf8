#pragma once

#include "xml/dom/DomNode.h"
#include "xml/layout/Dimensions.h"

namespace CLI::XML {

/// Reads padding, border and margin from the style of a node: of each side its own property, else
/// the one for all sides, else 0.
void readEdges(DomNode const* node, Dimensions& box);

}  // namespace CLI::XML

#pragma once

#include "base/XCode.h"
#include "xml/layout/Box.h"

namespace CLI::XML {

/// Says that `parent` cannot hold `child`, an element or null for running text: "Cannot layout '%s'
/// within '%s'".
XCode refuse(DomElement const& parent, DomElement const* child);

/// Whether an element that is displayed as `parent` can hold a child that is displayed as `child`,
/// which running text is as `DomNode::Inline`. The parent is not `DomNode::None`.
bool mayHold(DomNode::Display parent, DomNode::Display child);

/// Adds the box of a child that is displayed to that of its parent, or to a line in it, and returns
/// it; null where the parent cannot hold it.
Box* addBox(Box& parent, DomNode& child);

}  // namespace CLI::XML

#pragma once

#include "base/XCode.h"
#include "xml/layout/Box.h"

namespace CLI::XML {

/// Success where `parent` can hold `child`, an element that is displayed or null for running text,
/// otherwise "Cannot layout '%s' within '%s'".
XCode checkChild(DomElement const& parent, DomElement const* child);

/// Whether an element that is displayed as `parent` can hold a child that is displayed as `child`,
/// which running text is as `DomNode::Inline`. The parent is not `DomNode::None`.
bool mayHold(DomNode::Display parent, DomNode::Display child);

/// Adds the box of a child that is displayed to that of its parent, or to a line in it, and returns
/// it; null where the parent cannot hold it.
Box* addBox(Box& parent, DomNode& child);

}  // namespace CLI::XML

#pragma once

#include "xml/dom/DomElement.h"
#include "xml/layout/Box.h"

namespace CLI::XML {

/// A new box for a child of the node of `parent`, without boxes below it and not put anywhere yet.
/// Null for a child that `parent` cannot hold; then `result` is "Cannot layout '%s' within '%s'".
/// The child's display kind is not `DomNode::None`.
ZRLWPtr<Box> makeChild(Box const& parent, DomNode& child, XCode& result);

/// Success where `parent` can hold `child`, an element that is displayed or null for running text,
/// otherwise "Cannot layout '%s' within '%s'".
XCode checkChild(DomElement const& parent, DomElement const* child);

/// Whether an element that is displayed as `parent` can hold a child that is displayed as `child`,
/// which running text is as `DomNode::Inline`. The parent is not `DomNode::None`.
bool mayHold(DomNode::Display parent, DomNode::Display child);

}  // namespace CLI::XML

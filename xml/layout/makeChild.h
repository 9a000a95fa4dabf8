#pragma once

#include "xml/layout/Box.h"

namespace CLI::XML {

/// A new box for a child of the node of `parent`, without boxes below it and not put anywhere yet.
/// Null for a child that `parent` cannot hold; then `result` is "Cannot layout '%s' within '%s'".
/// The child's display kind is not `DomNode::None`.
ZRLWPtr<Box> makeChild(Box const& parent, DomNode& child, XCode& result);

/// Success where `parent` can hold running text, otherwise "Cannot layout 'text' within '%s'".
XCode checkText(Box const& parent);

/// Whether an element that is displayed as `parent` can hold a child that is displayed as `child`,
/// which running text is as `DomNode::Inline`. The parent is not `DomNode::None`.
bool mayHold(DomNode::Display parent, DomNode::Display child);

}  // namespace CLI::XML

#pragma once

#include "xml/layout/Box.h"

namespace CLI::XML {

/// Makes the box for a child of the node of `parent`, without boxes below it and without putting
/// it anywhere. Fails with "Cannot layout '%s' within '%s'" on a child that `parent` cannot hold.
/// The child's display kind is not `DomNode::None`.
XCode makeChild(Box const& parent, DomNode& child, ZRLWPtr<Box>& made);

}  // namespace CLI::XML

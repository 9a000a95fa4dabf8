#pragma once

#include "xml/layout/Box.h"
#include "xml/layout/Items.h"
#include "xml/render/Grid.h"

namespace CLI::XML {

/// The elements and texts of items as a tree, below a root of its own. Adds the number of texts to
/// `words`.
ZRLWPtr<DomElement> treeOf(Items const& items, std::int64_t& words);

/// Paints a box that is laid out, and all in it, in the innermost frame.
void paintBox(Grid& grid, Box& box, Canvas::Attributes const& attributes);

}  // namespace CLI::XML

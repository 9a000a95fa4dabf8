#pragma once

#include <vector>

#include "xml/layout/Box.h"
#include "xml/layout/Items.h"
#include "xml/render/Grid.h"

namespace CLI::XML {

/// The elements and texts of items from `begin` up to `end` as a tree, below a root of its own.
/// Adds the number of texts to `words`.
ZRLWPtr<DomElement> treeOf(Items const& items, std::uint32_t begin, std::uint32_t end,
                           std::int64_t& words);

/// The items of a paragraph, in which blocks in inline elements are boxes: so lines around these
/// take no tree, in which all elements that go on would be there on each line.
class ItemsOfBlocks {
public:
    /// The paragraph outlives it.
    explicit ItemsOfBlocks(Items const& paragraph);

    Items const& items() const { return all; }

private:
    // What boxes are of outlives them.
    std::vector<ZRLWPtr<DomElement>> roots;
    std::vector<ZRLWPtr<Box>> blocks;
    Items all;
};

/// Paints a box that is laid out, and all in it, in the innermost frame.
void paintBox(Grid& grid, Box& box, Canvas::Attributes const& attributes);

}  // namespace CLI::XML

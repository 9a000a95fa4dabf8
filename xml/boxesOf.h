#pragma once

#include <vector>

#include "xml/layout/Box.h"
#include "xml/layout/Items.h"
#include "xml/render/Grid.h"

namespace CLI::XML {

/// The boxes of items, as they would be built from the elements that these stand for: where blocks
/// stand in inline elements or in cells, and where an edge is negative, what a layout does depends
/// on those before it, so that they are done as they are defined.
class ItemBoxes {
public:
    explicit ItemBoxes(Items const& items);

    /// Lays them out in a block of that geometry, one below the other.
    void layOut(Dimensions const& containing) { block->layout(containing); }
    /// The lines, or the table.
    ZRVector<ZRLWPtr<Box>> const& boxes() const { return block->children; }

private:
    void addTexts(Box& parent, Item::Kind kind, std::string_view text);

    /// What the boxes are of. It outlives them.
    ///@{
    ZRLWPtr<DomElement> root;
    std::vector<ZRLWPtr<DomNode>> texts;
    ///@}
    ZRLWPtr<Box> block;
};

/// Paints a box that is laid out, and all in it, in the innermost frame.
void paintBox(Grid& grid, Box& box, Canvas::Attributes const& attributes);

}  // namespace CLI::XML

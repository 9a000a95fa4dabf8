#pragma once

#include "xml/layout/Box.h"
#include "xml/layout/Items.h"
#include "xml/render/Grid.h"

namespace CLI::XML {

/// The boxes of items for which a tree is needed: those of a table, or of a paragraph, with blocks
/// in it, or of which widths are no sums.
class BoxesOfItems {
public:
    explicit BoxesOfItems(Items const& items);

    /// How many words there are boxes for.
    std::int64_t words() const { return wordCount; }
    /// Lays them out in a block of that geometry, one below the other.
    void layOut(Dimensions const& containing) { block->layout(containing); }
    /// The lines, or the table.
    ZRVector<ZRLWPtr<Box>> const& boxes() const { return block->children; }

private:
    void addElements(Items const& items);

    // What boxes are of outlives them.
    ZRLWPtr<DomElement> root;
    ZRLWPtr<Box> block;
    std::int64_t wordCount = 0;
};

/// Paints a box that is laid out, and all in it, in the innermost frame.
void paintBox(Grid& grid, Box& box, Canvas::Attributes const& attributes);

}  // namespace CLI::XML

#pragma once

#include <vector>

#include "xml/layout/Box.h"
#include "xml/layout/Items.h"
#include "xml/render/Grid.h"

namespace CLI::XML {

/// The boxes of items, as they would be built from the elements that these stand for.
class ItemBoxes {
public:
    /// Of the items in the element that opens at `opened`: a block. Good as long as this is.
    ZRLWPtr<Box> blockAt(Items const& items, std::uint32_t opened);
    /// How many words there are boxes for.
    std::int64_t words() const { return static_cast<std::int64_t>(texts.size()); }
    /// Adds the boxes of the items from `begin` to `end` to `box`.
    void addTo(Box& box, Items const& items, std::uint32_t begin, std::uint32_t end);

private:
    void addTexts(Box& parent, Item::Kind kind, std::string_view text);

    std::vector<ZRLWPtr<DomNode>> texts;
};

/// Items of which all are boxes: those of a table with blocks in its cells, and of a paragraph of
/// which each layout depends on those before it, so that they are done as they are defined.
class BoxesOfItems {
public:
    explicit BoxesOfItems(Items const& items);

    std::int64_t words() const { return made.words(); }
    /// Lays them out in a block of that geometry, one below the other.
    void layOut(Dimensions const& containing) { block->layout(containing); }
    /// The lines, or the table.
    ZRVector<ZRLWPtr<Box>> const& boxes() const { return block->children; }

private:
    // What boxes are of outlives them.
    ZRLWPtr<DomElement> root;
    ItemBoxes made;
    ZRLWPtr<Box> block;
};

/// The items of a paragraph, in which blocks in inline elements are boxes.
class ItemsOfBlocks {
public:
    explicit ItemsOfBlocks(Items const& paragraph);

    Items const& items() const { return all; }

private:
    ItemBoxes made;
    std::vector<ZRLWPtr<Box>> blocks;
    Items all;
};

/// Paints a box that is laid out, and all in it, in the innermost frame.
void paintBox(Grid& grid, Box& box, Canvas::Attributes const& attributes);

}  // namespace CLI::XML

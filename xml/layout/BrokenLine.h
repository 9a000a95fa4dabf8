#pragma once

#include <vector>

#include "base/Walk.h"
#include "xml/layout/Items.h"

namespace CLI::XML {

/// A line of boxes that has been laid out, on its way to become several: all breaks are found
/// before the boxes are parted, from the last one on, so that each box moves once.
class BrokenLine {
public:
    explicit BrokenLine(ZRLWPtr<Box> const& whole);

    /// Whether widths tell where it breaks. Otherwise `split` does, step by step.
    bool isKnown() const { return areKnown && items.breaksByWidths(); }
    /// Finds the breaks for lines of that many columns. Blocks are laid out as often as it takes.
    Walk breakInto(std::int32_t columns);
    /// Parts the boxes at the breaks. The lines in their order; the line itself is the first.
    std::vector<ZRLWPtr<Box>> cut() const;

private:
    /// Where the box of an item is; nowhere where an element closes.
    struct Place {
        Box* parent = nullptr;
        unsigned index = 0;
        /// Where the parent opens; of the line itself, its number is of no item.
        std::uint32_t parentItem = 0;
    };

    bool addBoxes();
    bool add(Box& box);
    ZRLWPtr<Box> cutAt(std::uint32_t item) const;

    ZRLWPtr<Box> line;
    Items items;
    /// Of each item.
    std::vector<Place> places;
    /// The first item of each line but the first.
    std::vector<std::uint32_t> breaks;
    bool areKnown;
};

}  // namespace CLI::XML

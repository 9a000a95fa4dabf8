#pragma once

#include <vector>

#include "xml/layout/layOut.h"
#include "xml/layout/placement.h"

namespace CLI::XML {

/// The layout of a block: the children go in one after the other, are laid out one below the other,
/// and lines that are too wide are broken.
class BlockFlow {
public:
    /// Begins the layout of `laidOut`, which must outlive the flow.
    BlockFlow(BlockBox& laidOut, Dimensions const& containing);

    /// Lays out `child` and whatever is broken off it.
    Walk add(ZRLWPtr<Box> const& child, LayoutPass pass);

    /// Gives the block its width, and its children where lines were broken.
    void finish();

private:
    /// What `placePending` knows from box to box.
    struct Placing {
        LayoutPass pass;
        /// The box that is next has been too wide, however often it was laid out.
        bool staysTooWide = false;
    };

    /// The width that the children are offered, in columns: what they read from the block.
    std::int32_t available() const { return block.dimensions.content.width; }
    LayoutPass passAfterBreak(bool isLimited) const;
    Walk placePending(LayoutPass pass);
    Walk placeRemaining(Placing placing, Walk layoutOfNext);
    bool isTooWide(Box const& box) const { return box.dimensions.marginBox().width > available(); }
    Walk layOutNext(Placing& placing);
    bool breakNext(Placing& placing);
    bool takeNext(Placing& placing);

    BlockBox& block;
    DownwardStack stack;
    /// What is still to be placed, the next one last.
    std::vector<ZRLWPtr<Box>> pending;
    ZRVector<ZRLWPtr<Box>> placed;
};

}  // namespace CLI::XML

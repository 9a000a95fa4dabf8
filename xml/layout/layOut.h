#pragma once

#include "base/Walk.h"
#include "xml/layout/boxes.h"

namespace CLI::XML {

/// What one layout of a box may leave out.
enum class LayoutPass : bool {
    First,  ///< Nothing.
    /// The box has been laid out before by the operation that this pass belongs to: what is settled
    /// stays as it is.
    Again,
};

/// Lays out a child of a box, as a call of its `layout` does, but without recursion.
Walk layOut(Box& child, Dimensions const& containing, LayoutPass pass);

/// What the `layout` of blocks and tables does.
///@{
Walk layOutBlock(BlockBox& block, Dimensions const& containing, LayoutPass pass);
Walk layOutTable(TableBox& table, LayoutPass pass);
///@}

/// Whether a box or one below it, as of the last layout, has an edge that takes something off the
/// width of its parent.
inline bool mayTakeOff(Box const& box) { return box.mayShrink || box.dimensions.hasNegativeSide(); }

/// What a box knows of its layout when that begins, and from each child that has been laid out.
///@{
inline void beginLayout(Box& box) {
    box.isSettled = true;
    box.mayShrink = false;
}
inline void addLayout(Box& box, Box const& child) {
    box.isSettled = box.isSettled && child.isSettled;
    box.mayShrink = box.mayShrink || mayTakeOff(child);
}
///@}

/// Whether a box is of a class that derives from the six of the library: its operations are called
/// as any virtual operation is.
bool isForeign(Box const& box);

/// Moves the children of a box from `first` on into a clone of it, behind `part` if there is one.
ZRLWPtr<Box> splitOff(Box& box, unsigned first, ZRLWPtr<Box> part);

}  // namespace CLI::XML

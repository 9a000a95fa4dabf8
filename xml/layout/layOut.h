#pragma once

#include "base/Walk.h"
#include "xml/layout/TableBox.h"

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

/// What the `layout` of each class does.
///@{
Walk layOutBlock(BlockBox& block, Dimensions const& containing, LayoutPass pass);
Walk layOutLine(Box& line, LayoutPass pass);
Walk layOutInline(Box& element, LayoutPass pass);
Walk layOutTable(TableBox& table, LayoutPass pass);
Walk layOutRow(RowBox& box, LayoutPass pass);
///@}

/// Whether a box or one below it, as of the last layout, has an edge that takes something off the
/// width of its parent.
inline bool mayTakeOff(Box const& box) { return box.mayShrink || box.dimensions.hasNegativeSide(); }

/// Whether a box is of a class that derives from the six of the library: its operations are called
/// as any virtual operation is.
bool isForeign(Box const& box);

}  // namespace CLI::XML

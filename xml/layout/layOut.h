#pragma once

#include "base/Walk.h"
#include "xml/layout/TableBox.h"

namespace CLI::XML {

/// What one layout of a box may leave out.
struct LayoutPass {
    /// The box has been laid out before by the operation that this pass belongs to: what is settled
    /// stays as it is.
    bool again = false;
    /// The line is known to be too wide: its layout ends with the first box, at every depth, that
    /// does not fit into `room` columns behind the content before it, since breaking looks no
    /// further.
    bool isLimited = false;
    /// Where the pass is limited.
    std::int64_t room = 0;
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

/// Whether a box is of a class that derives from the six of the library: its operations are called
/// as any virtual operation is.
bool isForeign(Box const& box);

}  // namespace CLI::XML

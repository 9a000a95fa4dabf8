#pragma once

#include "../../base/export.h"
#include "BlockBox.h"
#include "RowBox.h"

namespace CLI::XML {

/// A table. Its children are rows, and cells with the same index form a column as wide as its
/// widest cell, whatever width there is.
///
/// Layout in order: measure the rows freely; raise the column records; impose them on the cells;
/// stack the rows.
class GALLEY_EXPORT TableBox final : public BlockBox {
public:
    /// One record a column: the maxima of its cells' horizontal positions, widths and edges.
    /// Records outlive a layout; a later one starts from them.
    ZRVector<Dimensions> columns;

    /// The box of an element that is displayed as a table.
    explicit TableBox(DomNode* rendered) : BlockBox(rendered, Table) {}
    /// As any box is copied: without column records.
    TableBox(TableBox const& other) : BlockBox(other) {}
    ~TableBox() override = default;

    ZRLWPtr<Box> clone() override;
    XCode createChildren() override;
    /// Does not depend on `containing`.
    void layout(Dimensions const& containing) override;

    /// The row at an index below the number of children.
    ///@{
    RowBox& operator[](unsigned i) { return static_cast<RowBox&>(*children[i]); }
    RowBox const& operator[](unsigned i) const { return static_cast<RowBox const&>(*children[i]); }
    ///@}
};

}  // namespace CLI::XML

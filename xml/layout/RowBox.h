#pragma once

#include "../../base/export.h"
#include "CellBox.h"
#include "LineBox.h"

namespace CLI::XML {

/// A table row. Its children are cells.
class GALLEY_EXPORT RowBox final : public LineBox {
public:
    /// The box of an element that is displayed as a table row.
    explicit RowBox(DomNode* rendered) : LineBox(rendered, Row) {}
    RowBox(RowBox const& other) = default;
    ~RowBox() override = default;

    ZRLWPtr<Box> clone() override;
    XCode createChildren() override;
    /// Places the cells, each freely or at its column's position and width.
    void layout(Dimensions const& containing) override;

    /// The cell at an index below the number of children.
    ///@{
    CellBox& operator[](unsigned i) { return static_cast<CellBox&>(*children[i]); }
    CellBox const& operator[](unsigned i) const {
        return static_cast<CellBox const&>(*children[i]);
    }
    ///@}
};

}  // namespace CLI::XML

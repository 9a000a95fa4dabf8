#pragma once

#include "../../base/export.h"
#include "InlineBox.h"

namespace CLI::XML {

/// A table cell: its content stands side by side on one line and is never broken.
class GALLEY_EXPORT CellBox final : public InlineBox {
public:
    /// The width of a column record that constrains nothing.
    static constexpr std::int32_t s_unconstrainedWidth = 0x7FFFFFFF;

    /// The width of the content itself at the last layout.
    std::int32_t naturalWidth = 0;
    /// What the cell's column imposes on it. Set by table layout only.
    Dimensions columnDimensions;

    /// The box of an element that is displayed as a table cell.
    explicit CellBox(DomNode* rendered) : InlineBox(rendered, Cell) {}
    /// As any box is copied: what its column imposes is not.
    CellBox(CellBox const& other) : InlineBox(other) {}
    ~CellBox() override = default;

    ZRLWPtr<Box> clone() override;

    /// Whether a column imposes its width.
    bool isConstrained() const { return columnDimensions.content.width != s_unconstrainedWidth; }
};

}  // namespace CLI::XML

#pragma once

#include <string_view>

#include "../../base/ZRLWPtr.h"
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
    Walk layOut(Dimensions const& containing, LayoutPass pass) override;

    /// Takes the words out of a run that is the only child, and lets go of that: most cells then
    /// take up half the memory. Only for a cell that nobody sees and nothing is added to any more.
    void takeRun();
    /// The words of that run, which stand at the origin of the content; none where none was taken.
    std::string_view run() const;

    /// Whether a column imposes its width.
    bool isConstrained() const { return columnDimensions.content.width != s_unconstrainedWidth; }

private:
    /// What the run that was taken is in, from `runBegin` on and `naturalWidth` bytes long.
    ZRLWPtr<DomNode> runText;
};

}  // namespace CLI::XML

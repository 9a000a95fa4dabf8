#pragma once

#include "../../base/export.h"
#include "Box.h"

/// The classes of boxes.
namespace CLI::XML {

/// Stacks blocks, tables and line boxes downwards, and breaks the lines that are too wide for it.
class GALLEY_EXPORT BlockBox : public Box {
public:
    /// The box of an element that is displayed as a block.
    explicit BlockBox(DomNode* rendered) : BlockBox(rendered, Block) {}
    BlockBox(BlockBox const& other) = default;
    ~BlockBox() override = default;

    ZRLWPtr<Box> clone() override;
    XCode createChildren() override;
    /// The last child if it is a line box, otherwise a new one.
    ZRLWPtr<Box> getOrCreateLineBox() override;
    /// Offers its children the width of `containing` less its own edges and becomes as wide as
    /// the widest of them.
    void layout(Dimensions const& containing) override;

protected:
    /// For a derived class, with the kind that it is.
    BlockBox(DomNode* rendered, Type boxType) : Box(rendered, boxType) {}
};

/// One line of inline boxes, or the run of them that a block has yet to break into lines. Has no
/// node and no edges.
class GALLEY_EXPORT LineBox : public Box {
public:
    /// An empty line.
    LineBox() : LineBox(nullptr, Line) {}
    LineBox(LineBox const& other) = default;
    ~LineBox() override = default;

    ZRLWPtr<Box> clone() override;
    XCode createChildren() override;
    /// This box.
    ZRLWPtr<Box> getOrCreateLineBox() override;
    /// Places the children side by side, the larger of two neighbouring margins between them.
    void layout(Dimensions const& containing) override;
    ZRLWPtr<Box> split(int width) override;

protected:
    /// For a derived class, with the kind that it is.
    LineBox(DomNode* rendered, Type boxType) : Box(rendered, boxType) {}
};

/// A word, or the part of an inline element that stands on one line.
class GALLEY_EXPORT InlineBox : public Box {
public:
    /// The box of a word, or of an element that is displayed inline.
    explicit InlineBox(DomNode* rendered) : InlineBox(rendered, Inline) {}
    InlineBox(InlineBox const& other) = default;
    ~InlineBox() override = default;

    ZRLWPtr<Box> clone() override;
    XCode createChildren() override;
    /// This box.
    ZRLWPtr<Box> getOrCreateLineBox() override;
    /// A word takes a column a byte and one row. An element places its children side by side, a
    /// left margin counting only as far as it exceeds the right margin before it.
    void layout(Dimensions const& containing) override;
    ZRLWPtr<Box> split(int width) override;
    /// Draws a word, or an element with the flag that its name adds. An element without children
    /// paints nothing.
    void drawTo(Canvas& canvas, Canvas::Attributes const& attributes) override;

protected:
    /// For a derived class, with the kind that it is.
    InlineBox(DomNode* rendered, Type boxType) : Box(rendered, boxType) {}
};

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

/// Whether a box is painted as inline boxes are, which cells are, too.
inline bool paintsAsInline(Box const& box) {
    return box.type == Box::Inline || box.type == Box::Cell;
}

}  // namespace CLI::XML

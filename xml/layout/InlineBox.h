#pragma once

#include <typeinfo>

#include "../../base/export.h"
#include "Box.h"

namespace CLI::XML {

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
    /// An element places its children side by side, a left margin counting only as far as it
    /// exceeds the right margin before it.
    void layout(Dimensions const& containing) override;
    ZRLWPtr<Box> split(int width) override;
    /// Draws a word, or an element with the flag that its name adds. An element without children
    /// paints nothing.
    void drawTo(Canvas& canvas, Canvas::Attributes const& attributes) override;

protected:
    /// For a derived class, with the kind that it is.
    InlineBox(DomNode* rendered, Type boxType) : Box(rendered, boxType) {}
};

/// A word, or an element without children.
inline bool isLeaf(Box const& box) {
    return box.children.count == 0 && typeid(box) == typeid(InlineBox);
}

/// Whether a box is painted as inline boxes are, which cells are, too.
inline bool paintsAsInline(Box const& box) {
    return box.type == Box::Inline || box.type == Box::Cell;
}

/// Lays out a box without children: a word takes a column a byte and one row, anything else
/// nothing.
void sizeLeaf(Box& box);

}  // namespace CLI::XML

#pragma once

#include "../../base/export.h"
#include "Box.h"

namespace CLI::XML {

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

}  // namespace CLI::XML

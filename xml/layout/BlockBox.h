#pragma once

#include "../../base/export.h"
#include "Box.h"

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

}  // namespace CLI::XML

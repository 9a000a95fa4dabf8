#include "xml/layout/layOut.h"

#include <typeinfo>

namespace CLI::XML {

bool isForeign(Box const& box) {
    std::type_info const& actual = typeid(box);
    switch (box.type) {
        case Box::Block:
            return actual != typeid(BlockBox);
        case Box::Line:
            return actual != typeid(LineBox);
        case Box::Inline:
            return actual != typeid(InlineBox);
        case Box::Table:
            return actual != typeid(TableBox);
        case Box::Row:
            return actual != typeid(RowBox);
        case Box::Cell:
            return actual != typeid(CellBox);
    }
    return true;
}

Walk layOut(Box& child, Dimensions const& containing, LayoutPass pass) {
    if (isForeign(child)) {
        child.layout(containing);
        child.isSettled = false;
        return {};
    }
    switch (child.type) {
        case Box::Block:
            return layOutBlock(static_cast<BlockBox&>(child), containing, pass);
        case Box::Line:
            return layOutLine(child, pass);
        case Box::Table:
            return layOutTable(static_cast<TableBox&>(child), pass);
        case Box::Row:
            return layOutRow(static_cast<RowBox&>(child), pass);
        case Box::Inline:
        case Box::Cell:
            return layOutInline(child, pass);
    }
    return {};
}

void BlockBox::layout(Dimensions const& containing) {
    Walk::run(layOutBlock(*this, containing, LayoutPass::First));
}
void LineBox::layout(Dimensions const&) { Walk::run(layOutLine(*this, LayoutPass::First)); }
void InlineBox::layout(Dimensions const&) { Walk::run(layOutInline(*this, LayoutPass::First)); }
void TableBox::layout(Dimensions const&) { Walk::run(layOutTable(*this, LayoutPass::First)); }
void RowBox::layout(Dimensions const&) { Walk::run(layOutRow(*this, LayoutPass::First)); }

}  // namespace CLI::XML

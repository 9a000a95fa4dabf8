// A new box for the same node, to go on with on the next line.

#include "xml/layout/TableBox.h"

namespace CLI::XML {

namespace {

template <class BoxClass>
ZRLWPtr<Box> cloneOf(BoxClass const& box) {
    return ZR::MovePtr<Box>(new BoxClass(box));
}

}  // namespace

ZRLWPtr<Box> BlockBox::clone() { return cloneOf(*this); }
ZRLWPtr<Box> TableBox::clone() { return cloneOf(*this); }
ZRLWPtr<Box> LineBox::clone() { return cloneOf(*this); }
ZRLWPtr<Box> RowBox::clone() { return cloneOf(*this); }
ZRLWPtr<Box> InlineBox::clone() { return cloneOf(*this); }
ZRLWPtr<Box> CellBox::clone() { return cloneOf(*this); }

}  // namespace CLI::XML

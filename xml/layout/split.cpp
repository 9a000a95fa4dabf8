// How a line, or an inline element on it, is broken where it exceeds the width.

#include "base/saturate.h"
#include "xml/layout/InlineBox.h"
#include "xml/layout/LineBox.h"

namespace CLI::XML {

namespace {

/// Breaks at the first child that does not fit. What counts are the children's content widths of
/// their last layout, not their edges. The first child stays even where it does not fit, so that
/// every break moves something on and breaking ends.
ZRLWPtr<Box> splitChildren(Box& box, int width) {
    ZRVector<ZRLWPtr<Box>>& children = box.children;
    std::int64_t remaining = width;
    unsigned i = 0;
    while (i < children.count && children[i]->dimensions.content.width <= remaining) {
        remaining -= children[i]->dimensions.content.width;
        ++i;
    }
    if (i == children.count) return {};

    ZRLWPtr<Box> const childRest = children[i]->split(saturate(remaining));
    unsigned const firstMoved = childRest || i == 0 ? i + 1 : i;
    if (!childRest && firstMoved == children.count) return {};
    ZRLWPtr<Box> rest = box.clone();
    if (childRest) rest->children.add(childRest);
    children.moveTailTo(firstMoved, rest->children);
    return rest;
}

}  // namespace

ZRLWPtr<Box> LineBox::split(int width) { return splitChildren(*this, width); }
ZRLWPtr<Box> InlineBox::split(int width) { return splitChildren(*this, width); }

}  // namespace CLI::XML

// How a line, or an inline element on it, is broken where it exceeds the width.

#include <vector>

#include "base/saturate.h"
#include "xml/layout/InlineBox.h"
#include "xml/layout/LineBox.h"

namespace CLI::XML {

namespace {

/// A box on the way down to the break, and its first child that does not fit.
struct Level {
    Box* box;
    unsigned unfitting;
    /// What that child is offered, in columns.
    std::int32_t room;
};

bool isBreakable(Box const& box) { return box.type != Box::Block && box.type != Box::Table; }

/// The boxes that the break goes through, outermost first: each is the child that does not fit of
/// the one before. What counts are content widths of the last layout, not edges.
std::vector<Level> findBreak(Box& outermost, std::int64_t room) {
    std::vector<Level> path;
    Box* box = &outermost;
    do {
        ZRVector<ZRLWPtr<Box>> const& children = box->children;
        unsigned i = 0;
        while (i < children.count && children[i]->dimensions.content.width <= room) {
            room -= children[i]->dimensions.content.width;
            ++i;
        }
        if (i == children.count) break;
        room = saturate(room);
        path.push_back({box, i, static_cast<std::int32_t>(room)});
        box = children[i].object;
    } while (isBreakable(*box) && !box->isForeign());
    return path;
}

/// Moves what stands behind the break off the box of `level`. `childRest` is what was moved off
/// the child that does not fit; where nothing was, that child moves itself, unless it is the
/// first: it stays although it does not fit, so that every break moves something on and breaking
/// ends.
ZRLWPtr<Box> moveRest(Level const& level, ZRLWPtr<Box> const& childRest) {
    Box& box = *level.box;
    bool const staysInPart = childRest || level.unfitting == 0;
    unsigned const firstMoved = staysInPart ? level.unfitting + 1 : level.unfitting;
    if (!childRest && firstMoved == box.children.count) return {};
    ZRLWPtr<Box> rest = box.clone();
    if (childRest) rest->children.add(childRest);
    box.children.moveTailTo(firstMoved, rest->children);
    box.isSettled = false;
    rest->holdsBlock = box.holdsBlock;
    return rest;
}

ZRLWPtr<Box> splitBox(Box& box, int width) {
    std::vector<Level> const path = findBreak(box, width);
    if (path.empty()) return {};
    Level const& innermost = path.back();
    Box& unfitting = *innermost.box->children[innermost.unfitting];
    ZRLWPtr<Box> rest = unfitting.isForeign() ? unfitting.split(innermost.room) : nullptr;
    for (std::size_t depth = path.size(); depth-- > 0;) rest = moveRest(path[depth], rest);
    return rest;
}

}  // namespace

ZRLWPtr<Box> LineBox::split(int width) { return splitBox(*this, width); }
ZRLWPtr<Box> InlineBox::split(int width) { return splitBox(*this, width); }

}  // namespace CLI::XML

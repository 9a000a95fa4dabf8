// How a line, or an inline element on it, is split where it exceeds a width.

#include <vector>

#include "base/saturate.h"
#include "xml/layout/layOut.h"

namespace CLI::XML {

namespace {

/// A box on the way down to the break, and its first child that does not fit.
struct Level {
    Box* box;
    unsigned unfitting;
    /// What that child is offered, in columns.
    std::int32_t room;
};

bool isSplit(Box const& box) { return box.type != Box::Block && box.type != Box::Table; }

/// The boxes that the break goes through, outermost first: each is the child that does not fit of
/// the one before. What counts are content widths of the last layout, not edges.
std::vector<Level> findBreak(Box& outermost, std::int64_t room) {
    std::vector<Level> path;
    Box* box = &outermost;
    do {
        auto const& children = box->children;
        unsigned i = 0;
        while (i < children.count && children[i]->dimensions.content.width <= room) {
            room -= children[i]->dimensions.content.width;
            ++i;
        }
        if (i == children.count) break;
        room = saturate(room);
        path.push_back({box, i, static_cast<std::int32_t>(room)});
        box = children[i].object;
    } while (isSplit(*box) && !isForeign(*box));
    return path;
}

/// Moves what stands behind the break into a clone of the box of `level`, behind `part`, which was
/// split off the child that does not fit. Where that was not split, it moves itself, unless it is
/// the first: it stays although it does not fit, so that every break moves something on and
/// breaking ends.
ZRLWPtr<Box> splitAt(Level const& level, ZRLWPtr<Box> part) {
    Box& box = *level.box;
    bool const staysInPart = part || level.unfitting == 0;
    unsigned const firstMoved = staysInPart ? level.unfitting + 1 : level.unfitting;
    if (!part && firstMoved >= box.children.count) return {};
    ZRLWPtr<Box> rest = box.clone();
    if (part) rest->children.add(std::move(part));
    box.children.moveTailTo(firstMoved, rest->children);
    box.isSettled = false;
    return rest;
}

ZRLWPtr<Box> splitBox(Box& box, int width) {
    std::vector<Level> path = findBreak(box, width);
    ZRLWPtr<Box> part;
    if (path.empty()) return part;
    Level const& last = path.back();
    Box& unfitting = *last.box->children[last.unfitting];
    if (isForeign(unfitting)) part = unfitting.split(last.room);
    for (; !path.empty(); path.pop_back()) part = splitAt(path.back(), std::move(part));
    return part;
}

}  // namespace

ZRLWPtr<Box> LineBox::split(int width) { return splitBox(*this, width); }
ZRLWPtr<Box> InlineBox::split(int width) { return splitBox(*this, width); }

}  // namespace CLI::XML

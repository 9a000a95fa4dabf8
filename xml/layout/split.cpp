// How a line, or an inline element on it, is split where it exceeds a width.

#include <utility>
#include <vector>

#include "base/saturate.h"
#include "xml/layout/layOut.h"

namespace CLI::XML {

namespace {

/// A box that the break goes through, and its first child that does not fit.
struct Level {
    Box* box;
    unsigned unfitting;
};

bool isSplit(Box const& box) { return box.type != Box::Block && box.type != Box::Table; }

/// Goes down to what does not fit, and splits the boxes on the way from there upwards. What counts
/// are content widths of the last layout, not edges.
ZRLWPtr<Box> splitBox(Box& outermost, std::int64_t room) {
    std::vector<Level> path;
    ZRLWPtr<Box> part;
    for (Box* box = &outermost;;) {
        auto const& children = box->children;
        unsigned i = 0;
        for (; i < children.count && children[i]->dimensions.content.width <= room; ++i) {
            room -= children[i]->dimensions.content.width;
        }
        if (i == children.count) break;
        room = saturate(room);
        path.push_back({box, i});
        box = children[i].object;
        if (isForeign(*box)) part = box->split(static_cast<int>(room));
        if (isForeign(*box) || !isSplit(*box)) break;
    }
    for (; !path.empty(); path.pop_back()) {
        auto const [box, unfitting] = path.back();
        // A child that was not split moves itself, unless it is the first: it stays although it
        // does not fit, so that every break moves something on and breaking ends.
        unsigned const firstMoved = part || unfitting == 0 ? unfitting + 1 : unfitting;
        if (!part && firstMoved >= box->children.count) continue;
        part = splitOff(*box, firstMoved, std::move(part));
    }
    return part;
}

}  // namespace

ZRLWPtr<Box> splitOff(Box& box, unsigned first, ZRLWPtr<Box> part) {
    ZRLWPtr<Box> rest = box.clone();
    if (part) rest->children.add(std::move(part));
    box.children.moveTailTo(first, rest->children);
    box.isSettled = false;
    return rest;
}

ZRLWPtr<Box> Box::split(int) { return {}; }
ZRLWPtr<Box> LineBox::split(int width) { return splitBox(*this, width); }
ZRLWPtr<Box> InlineBox::split(int width) { return splitBox(*this, width); }

}  // namespace CLI::XML

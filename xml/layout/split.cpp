// How a line, or an inline element on it, is broken where it exceeds the width.

#include <vector>

#include "base/saturate.h"
#include "xml/dom/DomElement.h"
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

/// As many names as there are of inline elements.
constexpr unsigned s_plainNames = 5;

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

/// Moves the words that do not fit off a run of them. Where not even the first fits it stays only
/// if `isFirst`, and then alone; null where that leaves nothing to move.
ZRLWPtr<Box> splitRun(Box& run, std::int32_t room, bool isFirst) {
    std::string_view const text = shownText(run);
    std::size_t space = std::string_view::npos;
    if (room > 0) space = text.rfind(' ', static_cast<std::size_t>(room) - 1);
    if (space == std::string_view::npos && isFirst) space = text.find(' ');
    if (space == std::string_view::npos || space + 1 == text.length()) return {};
    auto const kept = static_cast<std::int32_t>(space) + 1;
    ZRLWPtr<Box> rest = run.clone();
    rest->runBegin += kept;
    rest->dimensions.content.width = run.dimensions.content.width - kept;
    run.dimensions.content.width = kept;
    sizeLeaf(*rest);
    return rest;
}

/// What does not fit of the box at the end of the way, where it can tell.
ZRLWPtr<Box> splitUnfitting(Level const& level) {
    Box& box = *level.box->children[level.unfitting];
    if (box.isForeign()) return box.split(level.room);
    return box.isRun ? splitRun(box, level.room, level.unfitting == 0) : nullptr;
}

bool isPlain(Box const& box) { return box.type == Box::Inline && !hasStyle(box.node); }

/// Whether `rest`, which was broken off the last child of `box`, needs no clone of `box` around it:
/// an element without style shows only in its name, and one of the same name is around all of
/// `rest`. Only where nobody sees the boxes. Otherwise every line within many elements would have a
/// box for each of them.
bool goesWithout(Box const& box, Box const& rest) {
    if (!box.isUnseen() || box.holdsBlock || !isPlain(box)) return false;
    Box const* around = &rest;
    // Elements that look alike are the same one. Any style on the way would count in the widths.
    for (unsigned depth = 0; depth < s_plainNames && around->node != box.node; ++depth) {
        if (around->children.count != 1 || !isPlain(*around)) return false;
        around = around->children[0].object;
    }
    return around->node == box.node;
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
    bool const isAlone = childRest && firstMoved == box.children.count;
    if (isAlone && goesWithout(box, *childRest)) {
        box.isSettled = false;
        return childRest;
    }
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
    ZRLWPtr<Box> rest = splitUnfitting(path.back());
    for (std::size_t depth = path.size(); depth-- > 0;) rest = moveRest(path[depth], rest);
    return rest;
}

}  // namespace

ZRLWPtr<Box> LineBox::split(int width) { return splitBox(*this, width); }
ZRLWPtr<Box> InlineBox::split(int width) { return splitBox(*this, width); }

}  // namespace CLI::XML

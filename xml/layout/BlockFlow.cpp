#include "xml/layout/BlockFlow.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace CLI::XML {

namespace {

constexpr std::int32_t s_largestWidth = std::numeric_limits<std::int32_t>::max();

std::int32_t widthWithin(Dimensions const& containing, EdgeSizes const& edges) {
    return saturate(std::int64_t{containing.content.width} - edges.left - edges.right);
}

/// Where a line need not stay too wide, how wide it is tells where a pass that ends at the break
/// does not.
bool breaksByWidths(Box const& line) { return line.isMeasured && line.mayShrink; }

}  // namespace

BlockFlow::BlockFlow(BlockBox& laidOut, Dimensions const& containing)
    : block(laidOut), stack(block.dimensions) {
    block.dimensions.content.width = widthWithin(containing, block.dimensions.edges());
    block.isSettled = true;
}

Walk BlockFlow::add(ZRLWPtr<Box> const& child, LayoutPass pass) {
    pending.push_back(child);
    return placePending(pass);
}

LayoutPass BlockFlow::passAfterBreak(bool isLimited) const {
    return {.again = true, .isLimited = isLimited, .room = available()};
}

Walk BlockFlow::placePending(LayoutPass pass) {
    // Below the largest width only, since a sum that saturates there is never too wide.
    Placing placing = {pass, available() < s_largestWidth};
    do {
        Walk layoutOfNext = layOutNext(placing);
        if (!layoutOfNext.hasReturned()) return placeRemaining(placing, std::move(layoutOfNext));
    } while (takeNext(placing));
    return {};
}

/// Goes on where the layout of the next box has calls of its own.
Walk BlockFlow::placeRemaining(Placing placing, Walk layoutOfNext) {
    co_await layoutOfNext;
    while (takeNext(placing)) co_await layOutNext(placing);
}

Walk BlockFlow::layOutNext(Placing& placing) {
    // What was broken off need not be laid out to be broken again.
    Box const& whole = *pending.back();
    if (placing.pass.again && breaksByWidths(whole) && isTooWide(whole)) breakNext(placing);
    Box& next = *pending.back();
    stack.place(next.dimensions);
    return layOut(next, block.dimensions, placing.pass);
}

/// Breaks the next box, of which the part that fits comes next then. False where it is not broken.
bool BlockFlow::breakNext(Placing& placing) {
    Box& next = *pending.back();
    bool const byWidths = breaksByWidths(next);
    ZRLWPtr<Box> rest = byWidths ? splitMeasured(next, available()) : next.split(available());
    if (!rest) return false;
    placing.pass = passAfterBreak(placing.staysTooWide && !byWidths);
    pending.insert(pending.end() - 1, std::move(rest));
    return true;
}

/// Gives the next box its place, or breaks it. Returns whether a box is to be laid out after that.
bool BlockFlow::takeNext(Placing& placing) {
    Box& next = *pending.back();
    if (!placing.pass.isLimited) {
        placing.staysTooWide = placing.staysTooWide && !next.mayShrink && next.isSettled;
    }
    // The same box again, now with less content.
    if (isTooWide(next) && breakNext(placing)) return true;
    stack.add(next.dimensions);
    block.isSettled = block.isSettled && next.isSettled;
    placed.add(std::move(pending.back()));
    pending.pop_back();
    return !pending.empty();
}

void BlockFlow::finish() {
    stack.finish();
    block.mayShrink = false;
    block.holdsBlock = true;
    if (placed.count == block.children.count) return;
    // Lines were broken.
    if (placed.capacity < block.children.capacity) placed.enlarge(block.children.capacity - 1);
    block.children = std::move(placed);
}

}  // namespace CLI::XML

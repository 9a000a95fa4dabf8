#include "xml/layout/BlockFlow.h"

#include <limits>


namespace CLI::XML {

namespace {

std::int32_t widthWithin(Dimensions const& containing, EdgeSizes const& edges) {
    return saturate(std::int64_t{containing.content.width} - edges.left - edges.right);
}

}  // namespace

BlockFlow::BlockFlow(BlockBox& laidOut, Dimensions const& containing)
    : block(laidOut),
      available(widthWithin(containing, block.dimensions.edges())),
      stack(block.dimensions) {
    // The children read the width that they are offered from here.
    block.dimensions.content.width = available;
}

Walk BlockFlow::add(ZRLWPtr<Box> const& child, LayoutPass pass) {
    pending.push_back(child);
    return placePending(pass, 0);
}

LineBox& BlockFlow::openLine() {
    if (pending.empty()) pending.emplace_back(ZR::MovePtr<Box>(new LineBox));
    return static_cast<LineBox&>(*pending.front());
}

Walk BlockFlow::breakOpenLine() {
    return placePending({.again = true, .isLimited = true, .room = available}, 1);
}

Walk BlockFlow::closeLine() { return placePending({.again = true}, 0); }

Walk BlockFlow::placePending(LayoutPass pass, std::size_t kept) {
    // Below the largest width only, since a sum that saturates there is never too wide.
    bool staysTooWide = available < std::numeric_limits<std::int32_t>::max();
    while (!pending.empty()) {
        Box& next = *pending.back();
        stack.place(next.dimensions);
        co_await next.layOut(block.dimensions, pass);
        staysTooWide = staysTooWide && !next.mayShrink;
        bool const isTooWide = next.dimensions.marginBox().width > available;
        if (ZRLWPtr<Box> rest = isTooWide ? next.split(available) : nullptr) {
            pass = {true, staysTooWide, available};
            // The same box again, now with less content.
            pending.insert(pending.end() - 1, std::move(rest));
            continue;
        }
        if (pending.size() <= kept) co_return;
        stack.add(next.dimensions);
        areAllSettled = areAllSettled && next.isSettled;
        done.add(std::move(pending.back()));
        pending.pop_back();
    }
}

void BlockFlow::finish() {
    stack.finish();
    block.isSettled = areAllSettled;
    block.mayShrink = false;
    block.holdsBlock = true;
}

}  // namespace CLI::XML

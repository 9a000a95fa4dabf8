// How the children of a block are stacked, and lines that are too wide for it broken.

#include <utility>
#include <vector>

#include "xml/layout/BrokenLine.h"
#include "xml/layout/layOut.h"
#include "xml/layout/placement.h"

namespace CLI::XML {

namespace {

/// The layout of a block: the children go in one after the other.
class BlockFlow {
public:
    /// Offers the children `columns`: what they read from the block until the end.
    BlockFlow(BlockBox& laidOut, std::int32_t columns) : block(laidOut), stack(laidOut.dimensions) {
        block.dimensions.content.width = columns;
        block.isSettled = true;
        block.mayShrink = false;
    }

    Dimensions const& containing() const { return block.dimensions; }
    void place(Box& child) const { stack.place(child.dimensions); }
    bool isTooWide(Box const& child) const {
        return child.dimensions.marginBox().width > block.dimensions.content.width;
    }

    /// Takes the next child in, which has been placed and laid out.
    void take(ZRLWPtr<Box> const& child) {
        stack.add(child->dimensions);
        block.isSettled = block.isSettled && child->isSettled;
        block.mayShrink = block.mayShrink || mayTakeOff(*child);
        placed.add(child);
    }

    /// Gives the block its width, and its children where lines were broken.
    void finish() {
        stack.finish();
        if (placed.count == block.children.count) return;
        if (placed.capacity < block.children.capacity) placed.enlarge(block.children.capacity - 1);
        block.children = std::move(placed);
    }

private:
    BlockBox& block;
    DownwardStack stack;
    ZRVector<ZRLWPtr<Box>> placed;
};

/// Takes a box in that is too wide: as it stands, unless it can be split.
Walk takeInParts(BlockFlow& flow, ZRLWPtr<Box> next) {
    std::vector<ZRLWPtr<Box>> rests;
    for (;;) {
        ZRLWPtr<Box> rest;
        if (flow.isTooWide(*next)) rest = next->split(flow.containing().content.width);
        if (rest) {
            // The same box again, now with less content.
            rests.push_back(std::move(rest));
        } else {
            flow.take(next);
            if (rests.empty()) co_return;
            next = std::move(rests.back());
            rests.pop_back();
        }
        flow.place(*next);
        co_await layOut(*next, flow.containing(), LayoutPass::Again);
    }
}

/// Takes a line in that is too wide, broken into lines.
Walk takeInLines(BlockFlow& flow, ZRLWPtr<Box> line) {
    BrokenLine broken(line);
    if (!broken.isKnown()) {
        co_await takeInParts(flow, std::move(line));
        co_return;
    }
    co_await broken.breakInto(flow.containing().content.width);
    for (ZRLWPtr<Box> const& part : broken.cut()) {
        flow.place(*part);
        co_await layOut(*part, flow.containing(), LayoutPass::Again);
        flow.take(part);
    }
}

}  // namespace

Walk layOutBlock(BlockBox& block, Dimensions const& containing, LayoutPass pass) {
    EdgeSizes const edges = block.dimensions.edges();
    std::int32_t const offered = containing.content.width;
    std::int32_t const available = saturate(std::int64_t{offered} - edges.left - edges.right);
    if (pass == LayoutPass::Again && block.isSettled) {
        bool const fits = block.dimensions.content.width <= available;
        if (fits || offered == block.offeredWidth) co_return;
    }
    block.offeredWidth = offered;
    BlockFlow flow(block, available);
    for (unsigned i = 0; i < block.children.count; ++i) {
        ZRLWPtr<Box> const& child = block.children[i];
        flow.place(*child);
        co_await layOut(*child, flow.containing(), pass);
        if (flow.isTooWide(*child)) {
            co_await takeInLines(flow, child);
        } else {
            flow.take(child);
        }
    }
    flow.finish();
}

}  // namespace CLI::XML

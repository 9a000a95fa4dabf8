#include "xml/layout/BlockBox.h"

#include <limits>
#include <vector>

#include "xml/layout/inlineFlow.h"
#include "xml/layout/placement.h"

namespace CLI::XML {

namespace {

/// The children of a block while they are laid out: those that are done, in the order of the
/// finished block, and the stack that they form.
class BlockFlow {
public:
    explicit BlockFlow(Dimensions& blockDimensions)
        : block(blockDimensions), available(block.content.width), stack(block) {}

    /// Lays out `child` and whatever is broken off it, one below the other.
    void add(ZRLWPtr<Box> const& child) {
        // Below the largest width only, since a sum that saturates there is never too wide.
        bool const isPlain =
            available < std::numeric_limits<std::int32_t>::max() && isPlainLine(*child);
        // What is still to be placed, the next one last.
        std::vector<ZRLWPtr<Box>> pending{child};
        while (!pending.empty()) {
            Box& next = *pending.back();
            layOut(next, isPlain);
            bool const isTooWide = next.dimensions.marginBox().width > available;
            if (ZRLWPtr<Box> rest = isTooWide ? next.split(available) : nullptr) {
                // The same box again, now with less content.
                pending.insert(pending.end() - 1, std::move(rest));
                continue;
            }
            stack.add(next.dimensions);
            done.add(std::move(pending.back()));
            pending.pop_back();
        }
    }

    /// Sizes the block and puts what was broken off into its children.
    void finish(ZRVector<ZRLWPtr<Box>>& children) {
        stack.finish();
        if (done.count == children.count) return;
        if (done.capacity < children.capacity) done.enlarge(children.capacity - 1);
        children = std::move(done);
    }

private:
    void layOut(Box& child, bool isPlain) {
        stack.place(child.dimensions);
        if (isPlain) {
            layoutLineUpTo(static_cast<LineBox&>(child), available);
        } else {
            child.layout(block);
        }
    }

    Dimensions& block;
    std::int32_t const available;
    DownwardStack stack;
    ZRVector<ZRLWPtr<Box>> done;
};

}  // namespace

void BlockBox::layout(Dimensions const& containing) {
    EdgeSizes const edges = dimensions.edges();
    // The children read the width that they are offered from here.
    dimensions.content.width =
        saturate(std::int64_t{containing.content.width} - edges.left - edges.right);
    BlockFlow flow(dimensions);
    for (ZRLWPtr<Box> const& child : children) flow.add(child);
    flow.finish(children);
}

}  // namespace CLI::XML

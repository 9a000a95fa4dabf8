// How the children of a block are stacked, and lines that are too wide for it broken.

#include <utility>
#include <vector>

#include "xml/dom/nodes.h"
#include "xml/layout/LineBreaker.h"
#include "xml/layout/layOut.h"
#include "xml/layout/placement.h"

namespace CLI::XML {

namespace {

/// A line of boxes that has been laid out, on its way to become several: all breaks are found
/// before the boxes are parted, from the last one on, so that each box moves once.
class BrokenLine {
public:
    explicit BrokenLine(Box& whole) : line(whole) {
        areKnown = line.type == Box::Line && !isForeign(line);
        Walk::run(addChildren(line, 0));
    }

    /// Whether widths tell where it breaks. Otherwise `split` does, step by step.
    bool isKnown() const { return areKnown && items.breaksByWidths(); }

    /// Finds the breaks for lines of that many columns. Blocks are laid out as often as it takes.
    Walk breakInto(std::int32_t columns) {
        LineBreaker breaker(items, columns);
        Position const end = {items.count(), 0};
        for (Position at;;) {
            if (items.holdsBlock()) co_await breaker.layOutBlocks(at);
            at = breaker.next(at);
            if (at == end) break;
            breaks.push_back(at.item);
        }
    }

    /// Parts the boxes at the breaks. The new lines, the last one first.
    std::vector<ZRLWPtr<Box>> cut() const {
        std::vector<ZRLWPtr<Box>> lines;
        for (std::size_t i = breaks.size(); i-- > 0;) lines.push_back(cutAt(breaks[i]));
        return lines;
    }

private:
    /// Where the box of an item is; nowhere where an element closes.
    struct Place {
        Box* parent = nullptr;
        unsigned index = 0;
        /// Where the parent opens; of the line itself, its number is of no item.
        std::uint32_t parentItem = 0;
    };

    /// Up to one that is not as the library makes them.
    Walk addChildren(Box& parent, std::uint32_t parentItem) {
        for (unsigned i = 0; i < parent.children.count && areKnown; ++i) {
            Box& child = *parent.children[i];
            std::uint32_t const item = items.count();
            places.push_back({&parent, i, parentItem});
            if (isForeign(child) || (child.type != Box::Block && child.type != Box::Inline)) {
                areKnown = false;
            } else if (child.type == Box::Block) {
                items.addBlock(child);
                areKnown = child.isSettled;
            } else if (asElement(child.node) != nullptr) {
                items.open(child.dimensions);
                co_await addChildren(child, item);
                items.close();
                places.emplace_back();
            } else {
                items.addWord(child);
                areKnown = child.children.count == 0;
            }
        }
    }

    /// Moves the box of `item` and what is behind it on the line into a new line, in clones of the
    /// elements that it is in.
    ZRLWPtr<Box> cutAt(std::uint32_t item) const {
        ZRLWPtr<Box> rest;
        for (;;) {
            auto const& [parent, index, parentItem] = places[item];
            unsigned const firstMoved = rest ? index + 1 : index;
            rest = splitOff(*parent, firstMoved, std::move(rest));
            if (parent == &line) return rest;
            item = parentItem;
        }
    }

    Box& line;
    Items items;
    bool areKnown = false;
    /// Of each item.
    std::vector<Place> places;
    /// The first item of each line but the first.
    std::vector<std::uint32_t> breaks;
};

/// The layout of a block: the children go in one after the other.
class BlockFlow {
public:
    /// Offers the children `columns`: what they read from the block until the end.
    BlockFlow(BlockBox& laidOut, std::int32_t columns)
        : block(laidOut), content(laidOut.dimensions.content) {
        content.width = columns;
        content.height = 0;
        beginLayout(block);
    }

    Walk layOutInPlace(Box& child, LayoutPass pass) {
        stack.place(content, child.dimensions);
        return layOut(child, block.dimensions, pass);
    }
    bool isTooWide(Box const& child) const {
        return child.dimensions.marginBox().width > content.width;
    }

    /// Takes the next child in, which has been laid out.
    void take(ZRLWPtr<Box> const& child) {
        stack.add(content, child->dimensions);
        addLayout(block, *child);
        placed.add(child);
    }

    /// The same with one that is too wide: in parts where it can be broken.
    Walk takeInParts(ZRLWPtr<Box> child) {
        // Those that come next, the first one last.
        std::vector<ZRLWPtr<Box>> rests;
        BrokenLine broken(*child);
        if (broken.isKnown()) {
            co_await broken.breakInto(content.width);
            rests = broken.cut();
            co_await layOutInPlace(*child, LayoutPass::Again);
        }
        for (;;) {
            ZRLWPtr<Box> rest;
            if (!broken.isKnown() && isTooWide(*child)) {
                rest = child->split(content.width);
            }
            if (rest) {
                // The same box again, now with less content.
                rests.push_back(std::move(rest));
            } else {
                take(child);
                if (rests.empty()) co_return;
                child = std::move(rests.back());
                rests.pop_back();
            }
            co_await layOutInPlace(*child, LayoutPass::Again);
        }
    }

    /// Gives the block its width, and its children where lines were broken.
    void finish() {
        stack.finish(content);
        if (placed.count == block.children.count) return;
        if (placed.capacity < block.children.capacity) placed.enlarge(block.children.capacity - 1);
        block.children = std::move(placed);
    }

private:
    BlockBox& block;
    Rect& content;
    DownwardStack stack;
    ZRVector<ZRLWPtr<Box>> placed;
};

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
        co_await flow.layOutInPlace(*child, pass);
        if (flow.isTooWide(*child)) {
            co_await flow.takeInParts(child);
        } else {
            flow.take(child);
        }
    }
    flow.finish();
}

}  // namespace CLI::XML

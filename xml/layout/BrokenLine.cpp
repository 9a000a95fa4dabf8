#include "xml/layout/BrokenLine.h"

#include <utility>

#include "xml/dom/DomElement.h"
#include "xml/dom/DomText.h"
#include "xml/layout/LineBreaker.h"
#include "xml/layout/layOut.h"

namespace CLI::XML {

BrokenLine::BrokenLine(ZRLWPtr<Box> const& whole)
    : line(whole), areKnown(line->type == Box::Line && !isForeign(*line) && addBoxes()) {}

/// False where one is not as the library makes them.
bool BrokenLine::addBoxes() {
    struct Open {
        Box* box;
        std::uint32_t item;
        unsigned next = 0;
    };
    std::vector<Open> open = {{line.object, 0}};
    for (;;) {
        Open& innermost = open.back();
        if (innermost.next < innermost.box->children.count) {
            std::uint32_t const item = items.count();
            Box& child = *innermost.box->children[innermost.next];
            places.push_back({innermost.box, innermost.next++, innermost.item});
            if (!add(child)) return false;
            if (items[item].kind == Item::Open) open.push_back({&child, item});
        } else {
            open.pop_back();
            if (open.empty()) return true;
            items.close();
            places.emplace_back();
        }
    }
}

bool BrokenLine::add(Box& box) {
    if (isForeign(box)) return false;
    if (box.type == Box::Block) {
        items.addBlock(box);
        return box.isSettled;
    }
    if (box.type != Box::Inline) return false;
    if (asElement(box.node) != nullptr) {
        items.open(box);
        return true;
    }
    items.addWord(box);
    return box.children.count == 0;
}

Walk BrokenLine::breakInto(std::int32_t columns) {
    LineBreaker breaker(items, columns);
    Position const end = {items.count(), 0};
    for (Position at;;) {
        if (items.holdsBlock()) co_await breaker.layOutBlocks(at);
        at = breaker.next(at);
        if (at == end) break;
        breaks.push_back(at.item);
    }
}

std::vector<ZRLWPtr<Box>> BrokenLine::cut() const {
    std::vector<ZRLWPtr<Box>> lines(1 + breaks.size());
    lines[0] = line;
    for (std::size_t i = breaks.size(); i > 0; --i) lines[i] = cutAt(breaks[i - 1]);
    return lines;
}

/// Moves the box of `item` and what is behind it on the line into a new line, in clones of the
/// elements that it is in.
ZRLWPtr<Box> BrokenLine::cutAt(std::uint32_t item) const {
    ZRLWPtr<Box> rest;
    for (;;) {
        auto const& [parent, index, parentItem] = places[item];
        ZRLWPtr<Box> clone = parent->clone();
        unsigned const firstMoved = rest ? index + 1 : index;
        if (rest) clone->children.add(std::move(rest));
        parent->children.moveTailTo(firstMoved, clone->children);
        parent->isSettled = false;
        rest = std::move(clone);
        if (parent == line.object) return rest;
        item = parentItem;
    }
}

}  // namespace CLI::XML

#include "xml/layout/Items.h"

#include <cstdlib>

#include "base/append.h"
#include "xml/layout/layOut.h"

namespace CLI::XML {

Item& Items::add(Item::Kind kind) {
    Item item = {};
    item.kind = kind;
    list.add(item);
    return list.data[list.count - 1];
}

void Items::open(Dimensions const& edges) {
    if (edges.hasEdges()) {
        hasEdges = true;
        hasNegativeSide = hasNegativeSide || edges.hasNegativeSide();
        for (EdgeSizes const& sizes : {edges.padding, edges.border, edges.margin}) {
            reach += std::abs(std::int64_t{sizes.left}) + std::abs(std::int64_t{sizes.right});
        }
    }
    openItems.push_back(list.count);
    add(Item::Open).edges = &edges;
}

void Items::close() {
    std::uint32_t const opened = openItems.back();
    openItems.pop_back();
    list.data[opened].other = list.count;
    Item& closed = add(Item::Close);
    closed.edges = list.data[opened].edges;
    closed.other = opened;
}

void Items::addText(std::string_view added, bool isWord) {
    auto const length = static_cast<std::uint32_t>(added.length());
    Item* const last = list.count > 0 ? &list.data[list.count - 1] : nullptr;
    if (!isWord && last != nullptr && last->kind == Item::Words && text(*last).back() == ' ') {
        last->bytes.length += length;
    } else {
        auto const begin = static_cast<std::uint32_t>(allText.length());
        add(isWord ? Item::Word : Item::Words).bytes = {begin, length};
    }
    append(allText, added);
}

void Items::addWord(Box const& box) {
    Item& word = add(Item::Word);
    word.bytes.length = static_cast<std::uint32_t>(box.dimensions.content.width);
    reach += word.bytes.length;
}

void Items::addBlock(Box& block) {
    hasBlock = true;
    addWithinBlock(block);
    add(Item::Block).block = &block;
}

void Items::addWithinBlock(Box const& box) {
    hasNegativeSide = hasNegativeSide || mayTakeOff(box);
    hasTable = hasTable || box.type == Box::Table;
}

void Items::clear() {
    list.count = 0;
    allText.clear();
    reach = 0;
    hasBlock = hasEdges = hasNegativeSide = hasTable = false;
}

bool Items::breaksByWidths() const {
    if (hasBlock) return !hasNegativeSide && !hasTable;
    // Far from the limits, where sums end.
    constexpr std::int64_t s_moderate = 1 << 30;
    return !hasNegativeSide || reach + std::int64_t{allText.length()} < s_moderate;
}

std::int64_t Items::width(std::uint32_t i) const {
    Item const& item = list.data[i];
    if (item.kind == Item::Block) return item.block->dimensions.marginBox().width;
    if (item.kind == Item::Close) return 0;
    if (item.kind != Item::Open) return item.bytes.length;
    Dimensions edges = *item.edges;
    edges.content.width = 0;
    return edges.marginBox().width;
}

}  // namespace CLI::XML

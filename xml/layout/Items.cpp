#include "xml/layout/Items.h"

#include <cstdlib>

#include "base/append.h"
#include "xml/layout/layOut.h"

namespace CLI::XML {

void Items::open(ElementStyle const& style) {
    DomNode::Display const display = style.display();
    hasBlock = hasBlock || display == DomNode::Block;
    hasTable = hasTable || (display == DomNode::Table && list.count > 0);
    open(style.box());
}

void Items::open(Dimensions const& edges) {
    hasNegativeSide = hasNegativeSide || edges.hasNegativeSide();
    openItems.push_back(list.count);
    Item item = {};
    item.edges = &edges;
    item.kind = Item::Open;
    list.add(item);
}

void Items::close() {
    std::uint32_t const opened = openItems.back();
    openItems.pop_back();
    list.data[opened].other = list.count;
    Item item = list.data[opened];
    item.other = opened;
    item.kind = Item::Close;
    list.add(item);
}

void Items::addWords(std::string_view words) {
    Item* const last = list.count > 0 ? &list.data[list.count - 1] : nullptr;
    if (last != nullptr && last->kind == Item::Words && text(*last).back() == ' ') {
        append(allText, words);
        last->bytes.length += static_cast<std::uint32_t>(words.length());
    } else {
        addText(words, Item::Words);
    }
}

void Items::addWord(std::string_view word) { addText(word, Item::Word); }

void Items::addText(std::string_view added, Item::Kind kind) {
    Item item = {};
    item.bytes = {static_cast<std::uint32_t>(allText.length()),
                  static_cast<std::uint32_t>(added.length())};
    item.kind = kind;
    if (!added.empty()) append(allText, added);
    list.add(item);
}

void Items::addWord(Box const& box) {
    Item item = {};
    item.bytes.length = static_cast<std::uint32_t>(box.dimensions.content.width);
    item.kind = Item::Word;
    list.add(item);
}

void Items::addBlock(Box& block) {
    hasBlock = true;
    hasNegativeSide = hasNegativeSide || mayTakeOff(block);
    Item item = {};
    item.block = &block;
    item.kind = Item::Block;
    list.add(item);
}

void Items::clear() {
    list.count = 0;
    allText.clear();
    hasBlock = hasNegativeSide = hasTable = false;
}

bool Items::breaksByWidths() const {
    if (hasBlock) return !hasNegativeSide && !hasTable;
    // Far from the limits, where sums end.
    constexpr std::int64_t s_moderate = 1 << 30;
    return !hasNegativeSide || reach() < s_moderate;
}

/// Of all words and edges, whatever their signs, in columns.
std::int64_t Items::reach() const {
    std::int64_t sum = 0;
    for (Item const& item : list) {
        if (item.kind == Item::Open) {
            Dimensions const& edges = *item.edges;
            for (EdgeSizes const& sizes : {edges.padding, edges.border, edges.margin}) {
                sum += std::abs(std::int64_t{sizes.left}) + std::abs(std::int64_t{sizes.right});
            }
        } else if (item.kind == Item::Words || item.kind == Item::Word) {
            sum += item.bytes.length;
        }
    }
    return sum;
}

WidthSums::WidthSums(Items const& summed) : items(summed), rests(summed.count() + 1) {
    update(0, items.count());
}

void WidthSums::update(std::uint32_t begin, std::uint32_t end) {
    for (std::uint32_t i = end; i-- > begin;) {
        Item const& item = items[i];
        std::int64_t width = 0;
        if (item.kind == Item::Open) {
            Dimensions edges = *item.edges;
            edges.content.width = 0;
            width = edges.marginBox().width;
        } else if (item.kind == Item::Block) {
            width = item.block->dimensions.marginBox().width;
        } else if (item.kind != Item::Close) {
            width = item.bytes.length;
        }
        rests[i] = rests[i + 1] + width;
    }
}

}  // namespace CLI::XML

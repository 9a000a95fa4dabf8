#include "xml/layout/Items.h"

#include <cstdlib>

#include "base/append.h"
#include "xml/layout/layOut.h"
#include "xml/layout/placement.h"

namespace CLI::XML {

void Items::open(ElementStyle const& style) {
    DomNode::Display const display = style.display();
    hasBlock = hasBlock || display == DomNode::Block;
    hasTable = hasTable || (display == DomNode::Table && list.count > 0);
    Item item = {};
    item.style = &style;
    addOpen(item);
}

void Items::open(Box& box) {
    areBoxes = true;
    Item item = {};
    item.box = &box;
    addOpen(item);
}

void Items::addOpen(Item item) {
    hasNegativeSide = hasNegativeSide || edges(item).hasNegativeSide();
    openItems.push_back(list.count);
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

void Items::addWord(std::string_view word) {
    // No line is broken behind a space within a word.
    bool const isPlain = !word.empty() && word.find(' ') >= word.length() - 1;
    if (isPlain) {
        addWords(word);
    } else {
        addText(word, Item::Word);
    }
}

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
    item.box = &block;
    item.kind = Item::Block;
    list.add(item);
}

void Items::clear() {
    list.count = 0;
    allText.clear();
    areBoxes = hasBlock = hasNegativeSide = hasTable = false;
}

std::int32_t Items::outerWidth(Item const& item, std::int32_t content) const {
    Dimensions box = edges(item);
    box.content.width = content;
    return box.marginBox().width;
}

bool Items::breaksByWidths() const {
    if (hasBlock) return !hasNegativeSide && !hasTable;
    return !hasNegativeSide || isModerate(reach());
}

/// Of all words and edges, whatever their signs, in columns.
std::int64_t Items::reach() const {
    std::int64_t sum = 0;
    for (Item const& item : list) {
        if (item.kind == Item::Open) {
            Dimensions const& box = edges(item);
            for (EdgeSizes const& sizes : {box.padding, box.border, box.margin}) {
                sum += std::abs(std::int64_t{sizes.left}) + std::abs(std::int64_t{sizes.right});
            }
        } else if (item.kind == Item::Words || item.kind == Item::Word) {
            sum += item.bytes.length;
        }
    }
    return sum;
}

}  // namespace CLI::XML

#include "xml/layout/Items.h"

#include "base/append.h"

namespace CLI::XML {

void Items::open(ElementStyle const& style) {
    openItems.push_back(list.count);
    Item item = {};
    item.style = &style;
    item.kind = Item::Open;
    list.add(item);
}

void Items::close() {
    std::uint32_t const opened = openItems.back();
    openItems.pop_back();
    list.data[opened].other = list.count;
    Item item = {};
    item.style = list.data[opened].style;
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

void Items::clear() {
    list.count = 0;
    allText.clear();
}

}  // namespace CLI::XML

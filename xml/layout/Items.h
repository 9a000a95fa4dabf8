#pragma once

#include <algorithm>
#include <compare>
#include <cstdint>
#include <string_view>
#include <vector>

#include "base/String.h"
#include "base/ZRVector.h"
#include "xml/layout/ElementStyle.h"

namespace CLI::XML {

/// A part of a text in elements.
struct Item {
    enum Kind : std::uint32_t {
        Words,  ///< Each with one space behind it, but perhaps the last one.
        Word,   ///< Of any bytes.
        Open,
        Close,
    };

    /// Where words are in the text.
    struct Bytes {
        std::uint32_t begin;
        std::uint32_t length;
    };

    union {
        Bytes bytes;
        /// Of an element that opens or closes.
        ElementStyle const* style;
    };
    /// Of an element that opens where it closes, and the other way round.
    std::uint32_t other;
    Kind kind;
};

/// A place between two items, or between two words.
struct Position {
    std::uint32_t item = 0;
    /// Bytes of the item before it.
    std::uint32_t offset = 0;

    // NOLINTNEXTLINE(modernize-use-nullptr): there is none
    auto operator<=>(Position const&) const = default;
};

/// What stands between two blocks, as it was read: text and the elements in it, or a table.
class Items {
public:
    void open(ElementStyle const& style);
    void close();
    /// Words, at least one, each with the one space behind it: only the last may be without.
    void addWords(std::string_view words);
    /// A word that may hold anything.
    void addWord(std::string_view word);
    void clear();

    std::uint32_t count() const { return list.count; }
    Item const& operator[](std::uint32_t i) const { return list.data[i]; }
    std::string_view text(Item const& item) const {
        return allText.view().substr(item.bytes.begin, item.bytes.length);
    }
    /// The first of words, at least one, with its space.
    static std::string_view firstWord(std::string_view words) {
        return words.substr(0, std::min(words.find(' '), words.length() - 1) + 1);
    }
    /// How many elements are open.
    std::size_t depth() const { return openItems.size(); }
    /// The innermost one.
    ElementStyle const& innermost() const { return *list.data[openItems.back()].style; }

private:
    void addText(std::string_view added, Item::Kind kind);

    ZRVector<Item> list;
    String allText;
    std::vector<std::uint32_t> openItems;
};

}  // namespace CLI::XML

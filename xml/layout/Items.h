#pragma once

#include <algorithm>
#include <compare>
#include <cstdint>
#include <string_view>
#include <vector>

#include "base/String.h"
#include "base/ZRVector.h"
#include "xml/layout/Box.h"
#include "xml/layout/ElementStyle.h"

namespace CLI::XML {

/// A part of what stands in elements.
struct Item {
    enum Kind : std::uint32_t {
        Words,  ///< Each with one space behind it, but perhaps the last one.
        Word,   ///< Of any bytes.
        Block,  ///< A block in an inline element.
        Open,
        Close,
    };

    /// Where words are in the text. Of a box that is a word, only the length counts.
    struct Bytes {
        std::uint32_t begin;
        std::uint32_t length;
    };

    union {
        Bytes bytes;
        /// Of an element that opens or closes.
        ElementStyle const* style;
        /// The block; or what opens or closes, in the items of boxes.
        CLI::XML::Box* box;
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

/// What stands between two blocks, as it was read or as there are boxes for it: text and the inline
/// elements in it, or a table.
class Items {
public:
    void open(ElementStyle const& style);
    /// Opens the box of an element. Then the other elements are boxes, too.
    void open(Box& box);
    void close();
    /// Words, at least one, each with the one space behind it: only the last may be without.
    void addWords(std::string_view words);
    /// A word that may hold anything.
    void addWord(std::string_view word);
    /// A box that is a word and has been laid out.
    void addWord(Box const& box);
    /// A block, which outlives the items.
    void addBlock(Box& block);
    void clear();

    std::uint32_t count() const { return list.count; }
    Item const& operator[](std::uint32_t i) const { return list.data[i]; }
    std::string_view text(Item const& item) const {
        return allText.view().substr(item.bytes.begin, item.bytes.length);
    }
    /// The edges of an element that opens or closes.
    Dimensions const& edges(Item const& item) const {
        return areBoxes ? item.box->dimensions : item.style->box;
    }
    /// The width with edges of an element that opens or closes, and has content that wide.
    std::int32_t outerWidth(Item const& item, std::int32_t content) const;
    /// The first of words, at least one, with its space.
    static std::string_view firstWord(std::string_view words) {
        return words.substr(0, std::min(words.find(' '), words.length() - 1) + 1);
    }
    /// How many elements are open.
    std::size_t depth() const { return openItems.size(); }
    /// The innermost one.
    ElementStyle const& innermost() const { return *list.data[openItems.back()].style; }

    /// Whether they are one table, not a paragraph.
    bool areTable() const {
        return list.data[0].kind == Item::Open && list.data[0].style->display() == DomNode::Table;
    }
    bool holdsBlock() const { return hasBlock; }
    /// Whether an edge takes something off the width.
    bool mayShrink() const { return hasNegativeSide; }
    /// Whether widths tell where the lines of a paragraph end. Otherwise each layout of a block in
    /// it depends on those before, or sums of widths end at the limits of geometry.
    bool breaksByWidths() const;

private:
    void addText(std::string_view added, Item::Kind kind);
    void addOpen(Item item);
    std::int64_t reach() const;

    ZRVector<Item> list;
    String allText;
    std::vector<std::uint32_t> openItems;
    bool areBoxes = false;
    bool hasBlock = false;
    bool hasNegativeSide = false;
    /// In a block, where there is one.
    bool hasTable = false;
};

}  // namespace CLI::XML

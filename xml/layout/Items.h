#pragma once

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
        Dimensions const* edges;
        CLI::XML::Box* block;
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

/// What stands between two blocks: text and the inline elements in it, or a table. What was read
/// has the styles of elements, what there are boxes for has edges and lengths alone.
class Items {
public:
    Items() { list.growBy = 256; }

    /// An element, whose style outlives the items.
    void open(Dimensions const& edges);
    void close();
    /// Words, or one word, as they are read.
    void addText(std::string_view added, bool isWord);
    /// A box that is a word and has been laid out.
    void addWord(Box const& box);
    /// A block, which outlives the items.
    void addBlock(Box& block);
    /// A box in the last block, where that is built after it was added.
    void addWithinBlock(Box const& box);
    void clear();

    std::uint32_t count() const { return list.count; }
    Item const& operator[](std::uint32_t i) const { return list.data[i]; }
    std::string_view text(Item const& item) const {
        return allText.view().substr(item.bytes.begin, item.bytes.length);
    }
    /// Of an element that opens or closes, as it was read.
    ElementStyle const& style(std::uint32_t i) const {
        return static_cast<ElementStyle const&>(*list.data[i].edges);
    }
    /// How many elements are open.
    std::size_t depth() const { return openItems.size(); }
    /// The innermost one.
    ElementStyle const& innermost() const { return style(openItems.back()); }

    /// Whether they are one table, not a paragraph.
    bool areTable() const {
        return list.data[0].kind == Item::Open && style(0).display() == DomNode::Table;
    }
    /// Whether they are words and nothing else, in one piece.
    bool areWords() const { return list.count == 1 && list.data[0].kind == Item::Words; }
    bool holdsBlock() const { return hasBlock; }
    /// Whether an element has edges.
    bool haveEdges() const { return hasEdges; }
    /// Whether an edge takes something off the width.
    bool mayShrink() const { return hasNegativeSide; }
    /// Whether widths are sums, which tell where the lines of a paragraph end. Otherwise each
    /// layout of a block in it depends on those before, or sums end at the limits of geometry.
    bool breaksByWidths() const;
    /// The width of an item, in columns; where an element opens, of its edges.
    std::int64_t width(std::uint32_t i) const;

private:
    Item& add(Item::Kind kind);

    ZRVector<Item> list;
    String allText;
    std::vector<std::uint32_t> openItems;
    /// Of all edges, whatever their signs, and of boxes that are words, in columns.
    std::int64_t reach = 0;
    bool hasBlock = false;
    bool hasEdges = false;
    bool hasNegativeSide = false;
    /// In a block, where there is one.
    bool hasTable = false;
};

}  // namespace CLI::XML

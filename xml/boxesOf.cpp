#include "xml/boxesOf.h"

#include "base/Walk.h"
#include "xml/beneath.h"
#include "xml/dom/DomText.h"
#include "xml/dom/readDocument.h"
#include "xml/layout/TableBox.h"
#include "xml/layout/makeChild.h"

namespace CLI::XML {

namespace {

/// Paints a word; an inline element without children paints nothing. False for any other box.
bool paintLeaf(Grid& grid, Box const& box, Canvas::Attributes const& attributes) {
    if (!paintsAsInline(box) || box.children.count > 0) return false;
    Rect const& content = box.dimensions.content;
    DomText const* const word = asText(box.node);
    if (word != nullptr) grid.draw(word->text.view(), content.x, content.y, attributes);
    return true;
}

Walk paintTree(Grid& grid, Box const& box, Canvas::Attributes attributes) {
    Rect const& content = box.dimensions.content;
    if (paintsAsInline(box)) {
        attributes.flags = static_cast<std::uint8_t>(attributes.flags | flagOfElement(box.node));
    }
    Look const look(box.node);
    Canvas::Attributes const ofContent = look.handDown(attributes);
    grid.enter(content.x, content.y);
    for (ZRLWPtr<Box> const& child : box.children) {
        if (!paintLeaf(grid, *child, ofContent)) co_await paintTree(grid, *child, ofContent);
    }
    leaveBox(grid, box.node, box.dimensions, look, attributes);
}

}  // namespace

ZRLWPtr<Box> ItemBoxes::blockAt(Items const& items, std::uint32_t opened) {
    ZRLWPtr<Box> block = ZR::MovePtr<Box>(new BlockBox(items[opened].style->element.object));
    addTo(*block, items, opened + 1, items[opened].other);
    return block;
}

void ItemBoxes::addTo(Box& box, Items const& items, std::uint32_t begin, std::uint32_t end) {
    std::vector<Box*> open = {&box};
    for (std::uint32_t i = begin; i < end; ++i) {
        Item const& item = items[i];
        Box& parent = *open.back();
        if (item.kind == Item::Close) {
            open.pop_back();
        } else if (item.kind == Item::Open) {
            XCode result;
            ZRLWPtr<Box> const child = makeChild(parent, *item.style->element, result);
            bool const isInline = item.style->display() == DomNode::Inline;
            (isInline ? *parent.getOrCreateLineBox() : parent).children.add(child);
            open.push_back(child.object);
        } else {
            addTexts(parent, item.kind, items.text(item));
        }
    }
}

/// A box for each word; for an empty one, too.
void ItemBoxes::addTexts(Box& parent, Item::Kind kind, std::string_view text) {
    do {
        std::string_view const word = kind == Item::Words ? Items::firstWord(text) : text;
        texts.push_back(makeText(word));
        XCode result;
        parent.getOrCreateLineBox()->children.add(makeChild(parent, *texts.back(), result));
        text.remove_prefix(word.length());
    } while (!text.empty());
}

BoxesOfItems::BoxesOfItems(Items const& items)
    : root(createRootElement()), block(ZR::MovePtr<Box>(new BlockBox(root.object))) {
    made.addTo(*block, items, 0, items.count());
}

ItemsOfBlocks::ItemsOfBlocks(Items const& paragraph) {
    for (std::uint32_t i = 0; i < paragraph.count(); ++i) {
        Item const& item = paragraph[i];
        if (item.kind == Item::Close) {
            all.close();
        } else if (item.kind == Item::Words) {
            all.addWords(paragraph.text(item));
        } else if (item.kind == Item::Word) {
            all.addWord(paragraph.text(item));
        } else if (item.style->display() == DomNode::Block) {
            blocks.push_back(made.blockAt(paragraph, i));
            all.addBlock(*blocks.back());
            i = item.other;
        } else {
            all.open(*item.style);
        }
    }
}

void paintBox(Grid& grid, Box& box, Canvas::Attributes const& attributes) {
    Walk::run(paintTree(grid, box, attributes));
}

}  // namespace CLI::XML

#include "xml/boxesOf.h"

#include "base/Walk.h"
#include "xml/beneath.h"
#include "xml/dom/nodes.h"
#include "xml/dom/readDocument.h"
#include "xml/layout/boxes.h"

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

/// Elements that look alike are one and the same while they are read, and have no children.
ZRLWPtr<DomElement> copyOf(DomElement const& element) {
    ZRLWPtr<DomElement> copy =
        ZR::MovePtr<DomElement>(new DomElement(element.name, element.display));
    copy->setAttributes(element.attributes);
    copy->styleNode = element.styleNode;
    return copy;
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

ZRLWPtr<DomElement> treeOf(Items const& items, std::uint32_t begin, std::uint32_t end,
                           std::int64_t& words) {
    ZRLWPtr<DomElement> root = createRootElement();
    std::vector<DomElement*> open = {root.object};
    for (std::uint32_t i = begin; i < end; ++i) {
        Item const& item = items[i];
        if (item.kind == Item::Close) {
            open.pop_back();
        } else if (item.kind == Item::Open) {
            ZRLWPtr<DomElement> const element = copyOf(*items.style(i).element);
            open.back()->children.add(element);
            open.push_back(element.object);
        } else {
            std::string_view text = items.text(item);
            // Of an empty word there is a text, too.
            do {
                std::string_view const word = item.kind == Item::Words ? firstWord(text) : text;
                open.back()->children.add(makeText(word));
                text.remove_prefix(word.length());
                ++words;
            } while (!text.empty());
        }
    }
    return root;
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
        } else if (paragraph.style(i).display() == DomNode::Block) {
            std::int64_t words = 0;
            roots.push_back(treeOf(paragraph, i, item.other, words));
            DomNode* const element = roots.back()->children[0].object;
            blocks.push_back(ZR::MovePtr<Box>(new BlockBox(element)));
            // What a parent would refuse has no items.
            blocks.back()->createChildren();
            all.addBlock(*blocks.back());
            i = item.other;
        } else {
            all.open(paragraph.style(i));
        }
    }
}

void paintBox(Grid& grid, Box& box, Canvas::Attributes const& attributes) {
    Walk::run(paintTree(grid, box, attributes));
}

}  // namespace CLI::XML

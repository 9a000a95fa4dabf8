#include "xml/boxesOf.h"

#include "base/Walk.h"
#include "xml/beneath.h"
#include "xml/dom/nodes.h"
#include "xml/dom/readDocument.h"
#include "xml/layout/boxes.h"
#include "xml/layout/children.h"

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

Box& BoxBuilder::begin(ZRLWPtr<DomElement> const& element) {
    elements.push_back(element);
    blocks.push_back(ZR::MovePtr<Box>(new BlockBox(element.object)));
    open.push_back(blocks.back().object);
    return *open.back();
}

// What a parent would refuse is not read.
Box& BoxBuilder::beginChild(ZRLWPtr<DomElement> const& element) {
    elements.push_back(element);
    open.push_back(addBox(*open.back(), *element));
    return *open.back();
}

void BoxBuilder::addText(std::string_view text, bool isWord) {
    visitWords(text, isWord, [this](std::string_view word) {
        texts.push_back(makeText(word));
        addBox(*open.back(), *texts.back());
    });
}

void BoxBuilder::add(Items const& items) {
    for (std::uint32_t i = 0; i < items.count(); ++i) {
        Item const& item = items[i];
        if (item.kind == Item::Open) {
            beginChild(items.style(i).element);
        } else if (item.kind == Item::Close) {
            end();
        } else if (item.kind == Item::Block) {
            open.back()->children.add(ZRLWPtr<Box>::share(item.block));
        } else {
            addText(items.text(item), item.kind == Item::Word);
        }
    }
}

void BoxBuilder::clear() {
    blocks.clear();
    texts.clear();
    elements.clear();
}

void paintBox(Grid& grid, Box& box, Canvas::Attributes const& attributes) {
    Walk::run(paintTree(grid, box, attributes));
}

}  // namespace CLI::XML

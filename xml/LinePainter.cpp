#include "xml/LinePainter.h"

#include "xml/beneath.h"
#include "xml/boxesOf.h"
#include "xml/dom/readDocument.h"

namespace CLI::XML {

Rect LinePainter::paint(Position from, Position end, Canvas::Attributes const& attributesOfLine) {
    outer = attributesOfLine;
    beginLine();
    for (Position at = from; at < end; at = {at.item + 1, 0}) {
        Item const& item = items[at.item];
        if (item.kind == Item::Open) {
            openElement(at.item, end);
        } else if (item.kind == Item::Close) {
            closeElement();
        } else if (item.kind == Item::Block) {
            addBlock(*item.block);
        } else {
            std::string_view text = items.text(item);
            if (end.item == at.item) text = text.substr(0, end.offset);
            text.remove_prefix(at.offset);
            // Only the first word keeps the margin before it, which the width does not count.
            if (item.kind == Item::Words && levels.back().row.previousMargin != 0) {
                std::string_view const first = firstWord(text);
                addWords(first);
                text.remove_prefix(first.length());
                if (text.empty()) continue;
            }
            addWords(text);
        }
    }
    endLine();
    return levels.front().content;
}

void LinePainter::beginLine() {
    levels.assign(1, {});
    kept = open.size();
    for (std::size_t const index : styledBefore) {
        beginLevel(index, true);
    }
}

void LinePainter::endLine() {
    while (levels.size() > 1) endLevel();
    for (std::size_t index = kept; index < open.size(); ++index) {
        if (open[index].style->isStyled) styledBefore.push_back(index);
    }
}

/// Sets the position of what comes next in so many elements, some of which may have no level.
void LinePainter::place(Dimensions& box, std::size_t depth) const {
    Level const& level = levels.back();
    level.row.place(level.content, box, depth == 0 ? outermostGap : Gap::Uncovered);
}

/// Takes in what was placed, now that it has a size.
void LinePainter::add(Dimensions const& box) {
    Level& level = levels.back();
    level.row.add(level.content, box);
}

void LinePainter::openElement(std::uint32_t item, Position end) {
    ElementStyle const& style = items.style(item);
    bool const isEmpty = item + 1 < end.item && items[item + 1].kind == Item::Close;
    Canvas::Attributes const handedDown = style.flagged(attributes());
    open.push_back({&style, handedDown, style.look.handDown(handedDown)});
    beginLevel(open.size() - 1, !isEmpty);
}

/// Without children an element takes up its edges and paints nothing.
void LinePainter::beginLevel(std::size_t index, bool isFrame) {
    Dimensions box = open[index].style->box();
    place(box, index);
    levels.push_back({box.content, {}, index, isFrame});
    if (isFrame) grid.enter(box.content.x, box.content.y);
}

void LinePainter::endLevel() {
    Level const level = levels.back();
    levels.pop_back();
    OpenElement const& element = open[level.index];
    Dimensions box = element.style->box();
    box.content = level.content;
    add(box);
    if (level.isFrame) leaveBox(grid, *element.style, box, element.handedDown);
}

void LinePainter::closeElement() {
    std::size_t const index = open.size() - 1;
    bool const isKept = index < kept;
    bool const isStyled = open.back().style->isStyled;
    if (isKept) kept = index;
    if (isKept && isStyled) styledBefore.pop_back();
    if (!isKept || isStyled) {
        endLevel();
    } else {
        levels.back().row.previousMargin = 0;
    }
    open.pop_back();
}

void LinePainter::addBlock(Box& block) {
    place(block.dimensions, open.size());
    paintBox(grid, block, attributes());
    add(block.dimensions);
}

void LinePainter::addWords(std::string_view words) {
    Dimensions box;
    box.content.width = static_cast<std::int32_t>(words.length());
    box.content.height = words.empty() ? 0 : 1;
    place(box, open.size());
    grid.draw(words, box.content.x, 0, attributes());
    add(box);
}

}  // namespace CLI::XML

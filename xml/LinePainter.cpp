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
    return levels.front().box.content;
}

void LinePainter::beginLine() {
    levels.assign(1, {});
    kept = open.size();
    for (std::size_t const index : styledBefore) {
        Dimensions box = open[index].style->box();
        place(box);
        beginLevel(index, box, true);
    }
}

void LinePainter::endLine() {
    while (levels.size() > 1) endLevel();
    for (std::size_t index = kept; index < open.size(); ++index) {
        if (open[index].style->isStyled) styledBefore.push_back(index);
    }
}

/// Sets the position of what comes next, which stands in an element also where that has no level.
void LinePainter::place(Dimensions& box) const {
    Level const& level = levels.back();
    level.row.place(level.box.content, box, open.empty() ? outermostGap : Gap::Uncovered);
}

void LinePainter::openElement(std::uint32_t item, Position end) {
    ElementStyle const& style = items.style(item);
    bool const isEmpty = item + 1 < end.item && items[item + 1].kind == Item::Close;
    Dimensions box = style.box();
    place(box);
    Canvas::Attributes const handedDown = style.flagged(attributes());
    open.push_back({&style, handedDown, style.look.handDown(handedDown)});
    beginLevel(open.size() - 1, box, !isEmpty);
}

/// Without children an element takes up its edges and paints nothing.
void LinePainter::beginLevel(std::size_t index, Dimensions const& box, bool isFrame) {
    levels.push_back({box, {}, index, isFrame});
    if (isFrame) grid.enter(box.content.x, box.content.y);
}

void LinePainter::endLevel() {
    Level const level = levels.back();
    levels.pop_back();
    levels.back().row.add(levels.back().box.content, level.box);
    if (!level.isFrame) return;
    OpenElement const& element = open[level.index];
    leaveBox(grid, *element.style, level.box, element.handedDown);
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
    place(block.dimensions);
    paintBox(grid, block, attributes());
    Level& level = levels.back();
    level.row.add(level.box.content, block.dimensions);
}

void LinePainter::addWords(std::string_view words) {
    Dimensions box;
    box.content.width = static_cast<std::int32_t>(words.length());
    box.content.height = words.empty() ? 0 : 1;
    place(box);
    grid.draw(words, box.content.x, 0, attributes());
    Level& level = levels.back();
    level.row.add(level.box.content, box);
}

}  // namespace CLI::XML

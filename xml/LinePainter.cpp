#include "xml/LinePainter.h"

#include <algorithm>

#include "base/saturate.h"
#include "xml/beneath.h"
#include "xml/layout/placement.h"

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
        } else {
            std::string_view text = items.text(item);
            if (end.item == at.item) text = text.substr(0, end.offset);
            text.remove_prefix(at.offset);
            if (item.kind == Item::Words) {
                addWords(text);
            } else {
                addWord(text);
            }
        }
    }
    endLine();
    return levels.front().box.content;
}

void LinePainter::beginLine() {
    levels.assign(1, {{}, 0, 0, false});
    kept = open.size();
    for (std::size_t const index : styledBefore) {
        beginLevel(index, nextColumn(open[index].style->box.margin.left), true);
    }
}

void LinePainter::endLine() {
    while (levels.size() > 1) endLevel();
    for (std::size_t index = kept; index < open.size(); ++index) {
        if (open[index].style->isStyled) styledBefore.push_back(index);
    }
}

/// The column of the border box of what comes next, that margin before it.
std::int64_t LinePainter::nextColumn(std::int32_t margin) const {
    Level const& level = levels.back();
    bool const isInElement = flow == Inline || levels.size() > 1 || !open.empty();
    std::int64_t const gap = isInElement ? UncoveredMargin()(level.previousMargin, margin)
                                         : LargerMargin()(level.previousMargin, margin);
    return level.box.content.width + gap;
}

void LinePainter::add(Dimensions const& box) {
    Level& level = levels.back();
    Rect& content = level.box.content;
    Rect const margin = box.marginBox();
    content.width = saturate(std::int64_t{content.width} + margin.width);
    content.height = std::max(content.height, margin.height);
    level.previousMargin = box.margin.right;
}

void LinePainter::openElement(std::uint32_t item, Position end) {
    ElementStyle const& style = *items[item].style;
    bool const isEmpty = item + 1 < end.item && items[item + 1].kind == Item::Close;
    Canvas::Attributes handedDown = attributes();
    handedDown.flags = static_cast<std::uint8_t>(handedDown.flags | style.flag);
    Canvas::Attributes const content = style.look.ofContent(style.look.ofBackground(handedDown));
    std::int64_t const column = nextColumn(style.box.margin.left);
    open.push_back({&style, handedDown, content});
    beginLevel(open.size() - 1, column, !isEmpty);
}

/// Without children an element takes up its edges and paints nothing.
void LinePainter::beginLevel(std::size_t index, std::int64_t column, bool isFrame) {
    Dimensions box = open[index].style->box;
    box.content.x = saturate(column + box.border.left + box.padding.left);
    box.content.y = box.edges().top;
    levels.push_back({box, 0, index, isFrame});
    if (isFrame && grid != nullptr) grid->enter(box.content.x, box.content.y);
}

void LinePainter::endLevel() {
    Level const level = levels.back();
    levels.pop_back();
    add(level.box);
    if (!level.isFrame || grid == nullptr) return;
    OpenElement const& element = open[level.index];
    leaveBox(*grid, *element.style, level.box, element.handedDown);
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
        levels.back().previousMargin = 0;
    }
    open.pop_back();
}

/// Only the first word keeps the margin before it, which the width does not count.
void LinePainter::addWords(std::string_view words) {
    if (levels.back().previousMargin != 0) {
        std::size_t const first = std::min(words.find(' '), words.length() - 1) + 1;
        addWord(words.substr(0, first));
        words.remove_prefix(first);
    }
    if (!words.empty()) addWord(words);
}

void LinePainter::addWord(std::string_view word) {
    if (grid != nullptr) grid->draw(word, saturate(nextColumn(0)), 0, attributes());
    Dimensions box;
    box.content.width = static_cast<std::int32_t>(word.length());
    box.content.height = word.empty() ? 0 : 1;
    add(box);
}

}  // namespace CLI::XML

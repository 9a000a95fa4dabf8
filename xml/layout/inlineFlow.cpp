// How the boxes of a line, and those of an inline element on it, stand side by side.

#include "xml/layout/inlineFlow.h"

#include <typeinfo>

#include "xml/dom/DomText.h"
#include "xml/layout/placement.h"

namespace CLI::XML {

namespace {

/// The larger of two neighbouring margins stands between the boxes of a line.
std::int32_t positionOnLine(Box const& child, std::int32_t width, std::int32_t previousRight) {
    Dimensions const& d = child.dimensions;
    return contentXBehind(width, std::max(previousRight, d.margin.left), d);
}

std::int32_t positionInElement(Box const& child, std::int32_t width, std::int32_t previousRight) {
    return contentXInElement(child.dimensions, width, previousRight);
}

/// Lays out every child of `box` by its own operation.
template <class Position>
void layoutWhole(Box& box, Position const& position) {
    layoutRightwards(box, position, [&box](Box& child) {
        child.layout(box.dimensions);
        return true;
    });
}

void sizeWord(InlineBox& box) {
    DomText const* const word = box.children.count == 0 ? asText(box.node) : nullptr;
    if (word == nullptr || word->text.length() == 0) return;
    box.dimensions.content.width = word->text.length();
    box.dimensions.content.height = 1;
}

/// Lays out the children of `box` up to the first that does not fit into what is left of `width`
/// behind the content widths before it, which is what breaking looks at.
template <class Position>
void layoutUpTo(Box& box, std::int64_t width, Position const& position) {
    layoutRightwards(box, position, [&width](Box& child) {
        auto& inlineBox = static_cast<InlineBox&>(child);
        layoutUpTo(inlineBox, width, positionInElement);
        sizeWord(inlineBox);
        width -= inlineBox.dimensions.content.width;
        return width >= 0;
    });
}

bool areChildrenPlain(Box const& box);

bool isNegative(EdgeSizes const& edges) { return edges.left < 0 || edges.right < 0; }

bool isPlain(Box const& box) {
    Dimensions const& d = box.dimensions;
    bool const shrinks = isNegative(d.padding) || isNegative(d.border) || isNegative(d.margin);
    return !shrinks && typeid(box) == typeid(InlineBox) && areChildrenPlain(box);
}

bool areChildrenPlain(Box const& box) {
    return std::all_of(box.children.begin(), box.children.end(),
                       [](ZRLWPtr<Box> const& child) { return isPlain(*child); });
}

}  // namespace

void LineBox::layout(Dimensions const&) { layoutWhole(*this, positionOnLine); }

void InlineBox::layout(Dimensions const&) {
    layoutWhole(*this, positionInElement);
    sizeWord(*this);
}

void layoutLineUpTo(LineBox& line, std::int32_t width) { layoutUpTo(line, width, positionOnLine); }

bool isPlainLine(Box const& box) { return typeid(box) == typeid(LineBox) && areChildrenPlain(box); }

}  // namespace CLI::XML

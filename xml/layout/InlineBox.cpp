#include "xml/layout/InlineBox.h"

#include "xml/dom/DomText.h"
#include "xml/layout/placement.h"

namespace CLI::XML {

void InlineBox::layout(Dimensions const&) {
    auto const uncovered = [](Box const& child, std::int32_t width, std::int32_t previousRight) {
        Dimensions const& d = child.dimensions;
        return contentXBehind(width, uncoveredMargin(previousRight, d.margin.left), d);
    };
    layoutRightwards(*this, uncovered, [](Box const&) {});
    DomText const* const word = children.count == 0 ? asText(node) : nullptr;
    if (word != nullptr && word->text.length() > 0) {
        dimensions.content.width = word->text.length();
        dimensions.content.height = 1;
    }
}

}  // namespace CLI::XML

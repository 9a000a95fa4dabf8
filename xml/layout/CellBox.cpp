#include "xml/layout/CellBox.h"

#include "xml/dom/DomText.h"

namespace CLI::XML {

Walk CellBox::layOut(Dimensions const& containing, LayoutPass pass) {
    if (!runText) return InlineBox::layOut(containing, pass);
    dimensions.content.width = naturalWidth;
    dimensions.content.height = 1;
    isSettled = true;
    return {};
}

void CellBox::takeRun() {
    if (children.count != 1 || !children[0]->isRun) return;
    Box const& child = *children[0];
    runText.setObj(child.node);
    runBegin = child.runBegin;
    naturalWidth = child.dimensions.content.width;
    children = ZRVector<ZRLWPtr<Box>>();
}

std::string_view CellBox::run() const {
    DomText const* const text = asText(runText.object);
    if (text == nullptr) return {};
    return text->text.view().substr(static_cast<std::size_t>(runBegin),
                                    static_cast<std::size_t>(naturalWidth));
}

}  // namespace CLI::XML

// The box tree as indented text, with the geometry that layout left.

#include <iterator>

#include "xml/dom/DomNode.h"
#include "xml/layout/Box.h"

namespace CLI::XML {

namespace {

/// By `Box::Type`.
constexpr char const* s_labels[] = {
    "block:  ", "line:   ", "inline: ", "table:  ", "row:    ", "cell:   "};

char const* labelOf(Box::Type type) {
    auto const index = static_cast<unsigned>(type);
    return index < std::size(s_labels) ? s_labels[index] : "???:    ";
}

}  // namespace

String Box::dump(unsigned indent) const {
    Rect const& content = dimensions.content;
    String result = String::repeat(" ", indent);
    result += labelOf(type);
    result += node != nullptr ? node->toString() : String("(anonymous)");
    result += ": ";
    result.concatf("(%d, %d, %d, %d)\n", content.x, content.y, content.width, content.height);
    for (ZRLWPtr<Box> const& child : children) result.appendGrowing(child->dump(indent + 2));
    return result;
}

}  // namespace CLI::XML

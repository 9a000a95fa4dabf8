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

Walk dumpTree(Box const& box, unsigned indent, String& out) {
    Rect const& content = box.dimensions.content;
    String line = String::repeat(" ", indent);
    line += labelOf(box.type);
    line += box.node != nullptr ? box.node->toString() : String("(anonymous)");
    line += ": ";
    line.concatf("(%d, %d, %d, %d)\n", content.x, content.y, content.width, content.height);
    out.appendGrowing(line.view());
    for (ZRLWPtr<Box> const& child : box.children) {
        if (child->isForeign()) {
            out.appendGrowing(child->dump(indent + 2).view());
        } else {
            co_await dumpTree(*child, indent + 2, out);
        }
    }
}

}  // namespace

String Box::dump(unsigned indent) const {
    String result;
    Walk::run(dumpTree(*this, indent, result));
    return result;
}

}  // namespace CLI::XML

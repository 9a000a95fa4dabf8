// The box tree as indented text, with the geometry that layout left.

#include <cstdio>
#include <iterator>
#include <string>

#include "base/append.h"
#include "xml/dom/DomNode.h"
#include "xml/layout/layOut.h"

namespace CLI::XML {

namespace {

/// By `Box::Type`.
constexpr char const* s_labels[] = {
    "block:  ", "line:   ", "inline: ", "table:  ", "row:    ", "cell:   "};

/// Bytes of four numbers of up to 11 characters, what stands around them, and the end.
constexpr std::size_t s_longestGeometry = 64;

char const* labelOf(Box::Type type) {
    auto const index = static_cast<unsigned>(type);
    return index < std::size(s_labels) ? s_labels[index] : "???:    ";
}

Walk dumpTree(Box const& box, unsigned indent, String& out) {
    Rect const& content = box.dimensions.content;
    String const name = box.node != nullptr ? box.node->toString() : String::s_empty;
    char geometry[s_longestGeometry];
    std::snprintf(geometry, sizeof geometry, ": (%d, %d, %d, %d)\n", content.x, content.y,
                  content.width, content.height);
    append(out, std::string(indent, ' '), labelOf(box.type),
           box.node != nullptr ? name.view() : "(anonymous)", geometry);
    for (ZRLWPtr<Box> const& child : box.children) {
        if (isForeign(*child)) {
            append(out, child->dump(indent + 2).view());
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

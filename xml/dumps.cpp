// The trees as indented text: that of the document, and that of the boxes with the geometry that
// layout left.

#include <cstdio>
#include <iterator>
#include <string>

#include "base/append.h"
#include "xml/dom/nodes.h"
#include "xml/layout/layOut.h"

namespace CLI::XML {

namespace {

Walk dumpTree(DomNode const& node, unsigned indent, String& out) {
    DomElement const* const element = asElement(&node);
    std::string const margin(indent, ' ');
    if (element == nullptr) {
        // A NUL byte ends a text, as in all that is formatted.
        char const* const text = static_cast<DomText const&>(node).text.c_str();
        append(out, margin, "'", text, "'\n");
        co_return;
    }
    append(out, margin, element->name.c_str(), ":\n");
    for (ZRLWPtr<DomNode> const& child : element->children) {
        co_await dumpTree(*child, indent + 2, out);
    }
}

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

template <class Node>
String dumpFrom(Node const& node, unsigned indent) {
    String result;
    Walk::run(dumpTree(node, indent, result));
    return result;
}

}  // namespace

String DomText::toString() const { return String(String::formatted, "'%s'", text.c_str()); }

String DomText::dump(unsigned indent) const { return dumpFrom<DomNode>(*this, indent); }
String DomElement::dump(unsigned indent) const { return dumpFrom<DomNode>(*this, indent); }
String Box::dump(unsigned indent) const { return dumpFrom(*this, indent); }

}  // namespace CLI::XML

// The document tree as indented text.

#include <string>

#include "base/Walk.h"
#include "base/append.h"
#include "xml/dom/DomElement.h"
#include "xml/dom/DomText.h"

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

String dumpFrom(DomNode const& node, unsigned indent) {
    String result;
    Walk::run(dumpTree(node, indent, result));
    return result;
}

}  // namespace

String DomText::dump(unsigned indent) const { return dumpFrom(*this, indent); }
String DomElement::dump(unsigned indent) const { return dumpFrom(*this, indent); }

}  // namespace CLI::XML

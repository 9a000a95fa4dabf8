// The document tree as indented text.

#include "base/Walk.h"
#include "xml/dom/DomElement.h"
#include "xml/dom/DomText.h"

namespace CLI::XML {

namespace {

Walk dumpTree(DomNode const& node, unsigned indent, String& out) {
    DomElement const* const element = asElement(&node);
    String line = String::repeat(" ", indent);
    if (element == nullptr) {
        line += "'";
        line += static_cast<DomText const&>(node).text.c_str();
        line += "'\n";
    } else {
        line += element->name.c_str();
        line += ":\n";
    }
    out.appendGrowing(line.view());
    if (element == nullptr) co_return;
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

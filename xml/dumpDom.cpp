// The document tree as indented text.

#include "xml/dom/DomElement.h"
#include "xml/dom/DomText.h"

namespace CLI::XML {

String DomText::dump(unsigned indent) const {
    String result = String::repeat(" ", indent);
    result += "'";
    result += text.c_str();
    return result += "'\n";
}

String DomElement::dump(unsigned indent) const {
    String result = String::repeat(" ", indent);
    result += name.c_str();
    result += ":\n";
    for (ZRLWPtr<DomNode> const& child : children) result.appendGrowing(child->dump(indent + 2));
    return result;
}

}  // namespace CLI::XML

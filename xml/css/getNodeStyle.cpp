#include "xml/css/getNodeStyle.h"

#include "xml/dom/nodes.h"

namespace CLI::XML {

XCode getNodeStyle(DomNode const* node, String const& property, String& value) {
    DomElement const* const element = asElement(node);
    return element != nullptr ? element->getStyle(property, value) : testExpression(false);
}

String const* findStyle(DomNode const* node, StyleProperty const& property) {
    DomElement const* const element = asElement(node);
    if (element == nullptr) return nullptr;
    String const* const value = element->attributes.find(property.name, property.hash);
    if (value != nullptr || !element->styleNode) return value;
    return element->styleNode->declarations.find(property.name, property.hash);
}

}  // namespace CLI::XML

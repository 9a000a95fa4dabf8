#include "xml/css/getNodeStyle.h"

#include "xml/dom/DomElement.h"

namespace CLI::XML {

XCode getNodeStyle(DomNode const* node, String const& property, String& value) {
    DomElement const* const element = asElement(node);
    return element != nullptr ? element->getStyle(property, value) : testExpression(false);
}

}  // namespace CLI::XML

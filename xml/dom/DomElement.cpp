#include "base/releaseTree.h"
#include "xml/css/properties.h"
#include "xml/dom/nodes.h"
#include "xml/dom/vocabulary.h"

namespace CLI::XML {

DomElement::~DomElement() {
    releaseTree(*this, [](DomNode* child) { return asElement(child); });
}

XCode DomElement::setAttributes(ZRStringHashTable<String> const& source) {
    if (&source != &attributes) {
        attributes.clear();
        for (auto const* entry = source.head.prev; entry != &source.head; entry = entry->prev) {
            attributes.add(entry->key, entry->value);
        }
    }
    constexpr StyleProperty property = Property::s_display;
    String const* const value = attributes.find(property.name, property.hash);
    if (value != nullptr) display = displayOr(display, value->view());
    return XCode();
}

XCode DomElement::getStyle(String const& property, String& value) const {
    bool const found = attributes.get(property, value) ||
                       (styleNode && styleNode->declarations.get(property, value));
    return testExpression(found);
}

}  // namespace CLI::XML

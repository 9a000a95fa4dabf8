#include "xml/dom/DomElement.h"

#include "base/releaseTree.h"
#include "xml/css/properties.h"

namespace CLI::XML {

namespace {

struct DisplayKeyword {
    std::string_view keyword;
    DomNode::Display display;
};

constexpr DisplayKeyword s_displayKeywords[] = {
    {"inline", DomNode::Inline},      {"block", DomNode::Block},          {"table", DomNode::Table},
    {"table-row", DomNode::TableRow}, {"table-cell", DomNode::TableCell}, {"none", DomNode::None},
};

}  // namespace

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
    if (value == nullptr) return XCode();
    for (DisplayKeyword const& candidate : s_displayKeywords) {
        if (value->view() == candidate.keyword) display = candidate.display;
    }
    return XCode();
}

XCode DomElement::getStyle(String const& property, String& value) const {
    bool const found = attributes.get(property, value) ||
                       (styleNode && styleNode->declarations.get(property, value));
    return testExpression(found);
}

}  // namespace CLI::XML

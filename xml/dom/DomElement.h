#pragma once

#include "../../base/XCode.h"
#include "../../base/ZRLWPtr.h"
#include "../../base/ZRStringHashTable.h"
#include "../../base/ZRVector.h"
#include "../../base/export.h"
#include "../css/StyleNode.h"
#include "DomNode.h"

namespace CLI::XML {

/// An element: its attributes act as style declarations and take precedence over its rule's.
/// Owns its children, its attributes and one reference to its style rule.
class GALLEY_EXPORT DomElement final : public DomNode {
public:
    /// The tag name as written.
    String name;
    /// Name to value, in document order.
    ZRStringHashTable<String> attributes;
    /// In document order.
    ZRVector<ZRLWPtr<DomNode>> children;
    /// The one rule that applies, or null.
    ZRLWPtr<StyleNode> styleNode;

    /// An element without attributes, children or rule.
    DomElement(String const& tag, Display elementDisplay)
        : DomNode(Element, elementDisplay), name(tag) {}
    ~DomElement() override;

    String toString() const override { return name; }
    String dump(unsigned indent) const override;
    /// Replaces the attributes by a copy of `source`, in the same order, and lets the attribute
    /// "display" choose the display kind; without it, or with an unknown keyword, the kind stays.
    /// Always succeeds.
    virtual XCode setAttributes(ZRStringHashTable<String> const& source);
    /// The value of a style property: the attribute's, else the style rule's. For a property that
    /// neither has, the generic failure without a message, `value` untouched.
    virtual XCode getStyle(String const& property, String& value) const;
};

/// `node` as an element; null for null and for a text node.
///@{
inline DomElement const* asElement(DomNode const* node) {
    bool const isElement = node != nullptr && node->kind == DomNode::Element;
    return isElement ? static_cast<DomElement const*>(node) : nullptr;
}

inline DomElement* asElement(DomNode* node) {
    bool const isElement = node != nullptr && node->kind == DomNode::Element;
    return isElement ? static_cast<DomElement*>(node) : nullptr;
}
///@}

/// Whether a node has any style property.
inline bool hasStyle(DomNode const* node) {
    DomElement const* const element = asElement(node);
    return element != nullptr && (element->attributes.count > 0 || element->styleNode);
}

}  // namespace CLI::XML

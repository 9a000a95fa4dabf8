#pragma once

#include <cstdint>
#include <string_view>
#include <utility>

#include "../../base/RefCounted.h"
#include "../../base/String.h"
#include "../../base/XCode.h"
#include "../../base/ZRLWPtr.h"
#include "../../base/ZRStringHashTable.h"
#include "../../base/ZRVector.h"
#include "../../base/export.h"
#include "../css/StyleNode.h"

/// The document tree.
namespace CLI::XML {

/// A node of the document tree. A node has no link to its parent; the tree is navigated
/// downwards only.
class GALLEY_EXPORT DomNode : public ZR::RefCounted {
public:
    /// Which of the two derived classes a node is of.
    enum Kind : std::int32_t { Text, Element };

    /// How a node takes part in layout.
    enum Display : std::int32_t { Block, Inline, Table, TableRow, TableCell, None };

    Kind kind;        ///< Never changes.
    Display display;  ///< Inline for every text.

    /// What names the node in messages and dumps: an element's name, or a text in single quotes.
    virtual String toString() const = 0;
    /// The subtree as text, one line a node: this one behind `indent` spaces, each level of the
    /// tree two deeper. Throws std::bad_alloc where it would be 2 GiB or more.
    virtual String dump(unsigned indent) const = 0;

protected:
    /// A node without a lock.
    DomNode(Kind nodeKind, Display nodeDisplay)
        : ZR::RefCounted(nullptr), kind(nodeKind), display(nodeDisplay) {}
};

/// One word of running text, with the space that followed it.
class GALLEY_EXPORT DomText final : public DomNode {
public:
    /// The word, its references decoded.
    String text;

    /// `word` with the space that followed it, if one did.
    explicit DomText(String word) : DomNode(Text, Inline), text(std::move(word)) {}
    ~DomText() override = default;

    String toString() const override;
    String dump(unsigned indent) const override;
};

/// A new text node.
inline ZRLWPtr<DomNode> makeText(std::string_view word) {
    return ZR::MovePtr<DomNode>(
        new DomText(String(word.data(), 0, static_cast<int>(word.length()))));
}

/// `node` as a text; null for null and for an element.
inline DomText const* asText(DomNode const* node) {
    bool const isText = node != nullptr && node->kind == DomNode::Text;
    return isText ? static_cast<DomText const*>(node) : nullptr;
}

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

#pragma once

#include <deque>

#include "base/ZRLWPtr.h"
#include "xml/dom/nodes.h"
#include "xml/layout/Dimensions.h"
#include "xml/render/Look.h"

namespace CLI::XML {

/// Reads padding, border and margin from the style of a node: of each side its own property, else
/// the one for all sides, else 0.
void readEdges(DomNode const* node, Dimensions& box);

/// An element with all of its style that a conversion asks for more than once: the geometry of its
/// box without content, and what it looks like.
struct ElementStyle : Dimensions {
    ZRLWPtr<DomElement> element;
    Look look;
    /// What its name adds to the flags of an inline element.
    std::uint8_t flag = 0;
    /// It takes up or shows more than its content.
    bool isStyled = false;
    /// There is a border or a background.
    bool hasBeneath = false;

    explicit ElementStyle(ZRLWPtr<DomElement> styled);

    Dimensions const& box() const { return *this; }
    DomNode::Display display() const { return element->display; }
    /// The attributes with what the name of an inline element adds.
    Canvas::Attributes flagged(Canvas::Attributes attributes) const {
        attributes.flags = static_cast<std::uint8_t>(attributes.flags | flag);
        return attributes;
    }
};

/// The styles of the elements that a document has open, or that stand in a paragraph.
class ElementStyles {
public:
    /// Good until `clear`; for elements without attributes, of which there is one a name, as long
    /// as this is.
    ElementStyle const& of(ZRLWPtr<DomElement> const& element);
    void clear() { single.clear(); }
    /// Ends the style that was asked for last of those that are left.
    void drop(ElementStyle const& style) {
        if (!single.empty() && &single.back() == &style) single.pop_back();
    }

private:
    std::deque<ElementStyle> shared;
    std::deque<ElementStyle> single;
};

}  // namespace CLI::XML

#pragma once

#include <string_view>

#include "web/Element.h"
#include "web/markup/EmbeddedSheet.h"

namespace galley::web {

/// Is told what is in a document: first its sheets, then elements and text in their order. What is
/// in `head`, `script` and `template` is left out, but for its title; of `style` elements there are
/// only their sheets.
class DocumentHandler {
public:
    virtual ~DocumentHandler() = default;

    /// A `style` element, wherever it stands: its rules are for the whole document. The sheet is
    /// there during the call only.
    virtual void styleSheet(EmbeddedSheet const& sheet) = 0;
    /// Asked once all sheets are known: whether `Element::isLast` has to be right. This takes a
    /// pass over the document.
    virtual bool asksForLastChild() = 0;

    /// The element, the elements around it, and their attributes stay where they are until the
    /// element has ended. The handler may set its `style`.
    virtual void startElement(Element& element) = 0;
    /// All text between two tags, its references decoded and its white space as it is, also where
    /// comments are in it; never empty. Of an `img` its `alt`. Valid during the call, as UTF-8 not
    /// necessarily.
    virtual void text(std::string_view decoded) = 0;
    /// Text of the `title` in the head, likewise, in parts.
    virtual void title(std::string_view decoded) = 0;
    /// Of the innermost element that is open.
    virtual void endElement(Element& element) = 0;
};

}  // namespace galley::web

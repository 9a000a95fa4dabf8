#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "web/Element.h"
#include "web/markup/Piece.h"

namespace galley::web {

/// An element whose end has not been read.
struct OpenElement {
    Element element;
    /// Of its start tag, in bytes from the start of the document.
    std::size_t offset = 0;
    /// It, or an element around it, is one that the handler is not told of.
    bool isHidden = false;
    /// An `a` is around it.
    bool isInLink = false;
    /// So far, of all kinds.
    unsigned children = 0;
    /// What `element.attributes` are; a value is a part of the document or of `decoded`.
    std::vector<Attribute> attributes;
    std::string decoded;
};

/// The elements that are open at a place of a document, around each other. Invariants:
/// 1. An element stays where it is until it is popped, and so do its attributes.
/// 2. The memory of one that is popped serves the next one of its depth.
class OpenElements {
public:
    static constexpr std::size_t s_most = 512;

    OpenElements() { elements.reserve(s_most); }

    std::size_t size() const { return depth; }

    /// From 0, which is the outermost one.
    OpenElement& operator[](std::size_t i) { return elements[i]; }
    OpenElement& innermost() { return elements[depth - 1]; }

    /// Opens an element in the innermost one, of which there are less than the most that may be. It
    /// takes the attributes of the tag.
    OpenElement& push(Piece& startTag);
    void pop() { --depth; }

private:
    std::vector<OpenElement> elements;
    std::size_t depth = 0;
    /// Of the document itself.
    unsigned children = 0;
};

}  // namespace galley::web

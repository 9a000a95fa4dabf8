#include "web/markup/OpenElements.h"

namespace galley::web {

OpenElement& OpenElements::push(Piece& startTag) {
    OpenElement* const parent = depth > 0 ? &innermost() : nullptr;
    unsigned& siblings = parent != nullptr ? parent->children : children;
    if (depth == elements.size()) elements.emplace_back();
    OpenElement& opened = elements[depth++];
    opened.attributes.swap(startTag.attributes);
    opened.decoded.clear();
    opened.offset = startTag.offset;
    opened.isHidden = parent != nullptr && parent->isHidden;
    opened.isInLink = parent != nullptr && (parent->isInLink || parent->element.name == "a");
    opened.children = 0;
    opened.element.parent = parent != nullptr ? &parent->element : nullptr;
    opened.element.name = startTag.name;
    opened.element.attributes = opened.attributes;
    opened.element.index = ++siblings;
    opened.element.isLast = false;
    opened.element.style = nullptr;
    opened.element.classes.reset();
    return opened;
}

}  // namespace galley::web

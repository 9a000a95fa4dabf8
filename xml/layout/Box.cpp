#include "xml/layout/Box.h"

#include "base/releaseTree.h"
#include "xml/dom/DomElement.h"
#include "xml/layout/edges.h"

namespace CLI::XML {

Box::Box(DomNode* rendered, Type boxType) : ZR::RefCounted(nullptr), type(boxType), node(rendered) {
    // Most boxes are words, and most elements have no style.
    if (hasStyle(node)) initEdges();
}

Box::Box(Box const& other) : Box(other.node, other.type) {}

Box::~Box() {
    if (children.count > 0) {
        releaseTree(*this, [](Box* child) { return child->children.count > 0 ? child : nullptr; });
    }
}

ZRLWPtr<Box> Box::split(int) { return {}; }

void Box::initEdges() { readEdges(node, dimensions); }

}  // namespace CLI::XML

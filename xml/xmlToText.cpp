#include <algorithm>
#include <climits>

#include "xml/dom/buildDomTree.h"
#include "xml/layout/BlockBox.h"
#include "xml/parser/PullParser.h"
#include "xml/render/Canvas.h"
#include "xml/xml.h"

namespace CLI::XML {

namespace {

/// Reads the document; the copy of the markup is gone when this returns.
XCode read(ZRLWPtr<DomElement>& root, String const& xml, StyleList const& styles) {
    PullParser parser(xml);
    return buildDomTree(root, true, parser, styles);
}

XCode makeBoxes(ZRLWPtr<Box>& rootBox, ZRLWPtr<DomNode> const& root) {
    if (!root) return testExpression(false);
    if (root->display != DomNode::Block) {
        return testExpression(false).setStringF("Root node must be a block-level element");
    }
    rootBox.setObjDontAddRef(new BlockBox(root.object));
    return rootBox->createChildren();
}

void layOut(Box& rootBox, unsigned int width) {
    Dimensions page;
    page.content.width = static_cast<int>(std::min<unsigned int>(width, INT_MAX));
    rootBox.layout(page);
}

String paint(Box& rootBox) {
    Canvas page;
    rootBox.drawTo(page, Canvas::Attributes());
    return page.dump("\n");
}

}  // namespace

XCode xmlToText(String& out, String const& xml, ZRList<ZRLWPtr<StyleNode>> const& styles,
                unsigned int width) {
    // Boxes point to nodes: the box tree goes first.
    ZRLWPtr<DomElement> root;
    ZRLWPtr<Box> rootBox;
    XCode result = read(root, xml, styles);
    if (result) result = makeBoxes(rootBox, root);
    if (!result) return result;
    layOut(*rootBox, width);
    out += paint(*rootBox);
    return result;
}

}  // namespace CLI::XML

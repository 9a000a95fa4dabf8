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

XCode checkRoot(DomNode const* root) {
    if (root == nullptr) return testExpression(false);
    if (root->display == DomNode::Block) return XCode();
    return testExpression(false).setStringF("Root node must be a block-level element");
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
    ZRLWPtr<DomElement> root;
    XCode result = read(root, xml, styles);
    if (!result) return result;
    result = checkRoot(root.object);
    if (!result) return result;
    // Boxes point to nodes: the box tree, declared behind them, goes first.
    ZRLWPtr<Box> const rootBox = ZR::MovePtr<Box>(new BlockBox(root.object));
    result = rootBox->createChildren();
    if (!result) return result;
    layOut(*rootBox, width);
    out += paint(*rootBox);
    return result;
}

}  // namespace CLI::XML

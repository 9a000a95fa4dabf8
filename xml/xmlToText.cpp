#include "xml/PageBuilder.h"
#include "xml/dom/buildDomTree.h"
#include "xml/extremeEdges.h"
#include "xml/pageOfWidth.h"
#include "xml/parser/PullParser.h"
#include "xml/xml.h"

namespace CLI::XML {

namespace {

XCode checkRoot(DomNode const* root) {
    if (root == nullptr) return testExpression(false);
    if (root->display == DomNode::Block) return XCode();
    return testExpression(false).setStringF("Root node must be a block-level element");
}

/// Builds, lays out and paints while reading.
XCode convertStream(String& out, String const& xml, StyleList const& styles, unsigned width) {
    ZRLWPtr<DomElement> const root = createRootElement();
    XCode result = checkRoot(root.object);
    if (!result) return result;
    PageBuilder builder(*root, width, xml.length());
    PullParser parser = PullParser::withoutCopy(xml);
    result = readDocument(builder, true, parser, styles);
    return result ? builder.finish(out) : result;
}

/// One stage after the other.
XCode convertWhole(String& out, String const& xml, StyleList const& styles, unsigned width) {
    ZRLWPtr<DomElement> root;
    XCode result;
    {
        PullParser parser = PullParser::withoutCopy(xml);
        result = buildDomTree(root, true, parser, styles);
    }
    if (!result) return result;
    // Boxes point to nodes: the box tree, declared behind them, goes first.
    ZRLWPtr<Box> const rootBox = ZR::MovePtr<Box>(new BlockBox(root.object));
    result = rootBox->createChildren();
    if (!result) return result;
    rootBox->layout(pageOfWidth(width));
    Canvas page;
    rootBox->drawTo(page, Canvas::Attributes());
    out += page.dump("\n");
    return result;
}

}  // namespace

XCode xmlToText(String& out, String const& xml, ZRList<ZRLWPtr<StyleNode>> const& styles,
                unsigned int width) {
    // What is painted early has to be final, and is painted although the document may fail later.
    bool const isExtreme = mayHaveExtremeEdges(xml, styles);
    return (isExtreme ? convertWhole : convertStream)(out, xml, styles, width);
}

}  // namespace CLI::XML

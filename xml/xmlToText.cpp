#include "xml/PageBuilder.h"
#include "xml/extremeEdges.h"
#include "xml/parser/PullParser.h"
#include "xml/xml.h"

namespace CLI::XML {

namespace {

/// Reads the document to its end; the copy of the markup is gone when this returns.
XCode read(PageBuilder& builder, String const& xml, StyleList const& styles) {
    PullParser parser(xml);
    return readDocument(builder, true, parser, styles);
}

XCode checkRoot(DomNode const* root) {
    if (root == nullptr) return testExpression(false);
    if (root->display == DomNode::Block) return XCode();
    return testExpression(false).setStringF("Root node must be a block-level element");
}

}  // namespace

XCode xmlToText(String& out, String const& xml, ZRList<ZRLWPtr<StyleNode>> const& styles,
                unsigned int width) {
    ZRLWPtr<DomElement> const root = createRootElement();
    XCode result = checkRoot(root.object);
    if (!result) return result;
    bool const hasModestEdges = !mayHaveExtremeEdges(xml, styles);
    PageBuilder builder(root, width, hasModestEdges, xml.length());
    result = read(builder, xml, styles);
    return result ? builder.finish(out) : result;
}

}  // namespace CLI::XML

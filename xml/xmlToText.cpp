#include <limits>
#include <new>
#include <utility>

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
XCode convertStream(String& text, String const& xml, StyleList const& styles, unsigned width,
                    CellBudget& budget) {
    ZRLWPtr<DomElement> const root = createRootElement();
    XCode result = checkRoot(root.object);
    if (!result) return result;
    PageBuilder builder(*root, width, xml.length(), budget);
    PullParser parser = PullParser::withoutCopy(xml);
    result = readDocument(builder, true, parser, styles);
    return result ? builder.finish(text) : result;
}

/// One stage after the other.
XCode convertWhole(String& text, String const& xml, StyleList const& styles, unsigned width,
                   CellBudget& budget) {
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
    Canvas page(&budget);
    rootBox->drawTo(page, Canvas::Attributes());
    if (!page.moveRowsTo(text, std::numeric_limits<unsigned>::max())) throw std::bad_alloc();
    return result;
}

}  // namespace

XCode xmlToText(String& out, String const& xml, ZRList<ZRLWPtr<StyleNode>> const& styles,
                unsigned int width) {
    // What is painted early has to be final, and is painted although the document may fail later.
    bool const isExtreme = mayHaveExtremeEdges(xml, styles);
    CellBudget budget(CellBudget::ofDocument(xml.length()));
    String text;
    XCode result = (isExtreme ? convertWhole : convertStream)(text, xml, styles, width, budget);
    if (!result) return result;
    // Last of all failures, wherever in the document.
    if (budget.isExceeded()) {
        return testExpression(false).setStringF("Page too large: more than %u cells", budget.limit);
    }
    if (out.length() > 0) {
        int const former = out.length();
        out += text;
        if (out.length() - former != text.length()) throw std::bad_alloc();
    } else {
        text.shrinkToFit();
        out = std::move(text);
    }
    return result;
}

}  // namespace CLI::XML

#include <new>
#include <utility>

#include "xml/PageBuilder.h"
#include "xml/dom/readDocument.h"
#include "xml/parser/PullParser.h"
#include "xml/reachesUp.h"
#include "xml/xml.h"

namespace CLI::XML {

namespace {

/// Builds, lays out and paints while reading.
XCode convert(String& text, String const& xml, StyleList const& styles, unsigned width,
              CellBudget& budget) {
    ZRLWPtr<DomElement> const root = createRootElement();
    if (root->display != DomNode::Block) {
        return testExpression(false).setStringF("Root node must be a block-level element");
    }
    PageBuilder builder(root, width, xml.length(), mayReachUp(xml, styles), budget);
    PullParser parser = PullParser::withoutCopy(xml);
    XCode const result = readDocument(builder, true, parser, styles);
    return result ? builder.finish(text) : result;
}

}  // namespace

XCode xmlToText(String& out, String const& xml, ZRList<ZRLWPtr<StyleNode>> const& styles,
                unsigned int width) {
    CellBudget budget(CellBudget::ofDocument(xml.length()));
    String text;
    XCode result = convert(text, xml, styles, width, budget);
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

// Takes a conversion step by step, and shows the tree of each.

#include <cstdio>

#include "xml/dom/buildDomTree.h"
#include "xml/layout/boxes.h"
#include "xml/render/Canvas.h"
#include "xml/xml.h"

namespace {

using namespace CLI::XML;

XCode showTrees(String const& markup, StyleList const& styles, int width) {
    PullParser parser(markup);
    ZRLWPtr<DomElement> root;
    XCode result = buildDomTree(root, true, parser, styles);
    if (!result) return result;
    std::fputs(root->dump(0).c_str(), stdout);

    BlockBox box(root.object);
    result = box.createChildren();
    if (!result) return result;
    Dimensions page;
    page.content.width = width;
    box.layout(page);
    std::fputs(box.dump(0).c_str(), stdout);

    Canvas canvas;
    box.drawTo(canvas, Canvas::Attributes());
    std::fputs(canvas.dump("\n").c_str(), stdout);
    return result;
}

}  // namespace

int main() {
    StyleList styles;
    XCode result = parseCss(styles, "p { padding-left: 2; }");
    if (result) result = showTrees("<p>Hello, <b>terminal</b></p>", styles, 10);
    if (!result) std::fprintf(stderr, "%s\n", result.getString().c_str());
    return result ? 0 : 1;
}

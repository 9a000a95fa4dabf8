#pragma once

#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "bench/corpus.h"
#include "xml/dom/buildDomTree.h"
#include "xml/layout/boxes.h"
#include "xml/parser/PullParser.h"
#include "xml/render/Canvas.h"
#include "xml/xml.h"

namespace Bench {

/// Ends the program on a failure: there is nothing to measure then.
inline void check(XCode const& result) {
    if (result) return;
    std::fprintf(stderr, "%s\n", result.getString().c_str());
    std::exit(1);
}

inline String toString(std::string const& text) {
    return String(text.c_str(), 0, static_cast<int>(text.size()));
}

/// What a conversion starts from.
struct Source {
    String markup;
    CLI::XML::StyleList styles;

    explicit Source(Corpus const& corpus) : markup(toString(corpus.markup)) {
        check(CLI::XML::parseCss(styles, toString(corpus.sheet)));
    }
};

/// The stages of a conversion, each of which needs the ones before it.
class Conversion {
public:
    ZRLWPtr<CLI::XML::DomElement> root;
    // Behind the nodes that they point to, so that they are released first.
    ZRLWPtr<CLI::XML::Box> box;
    CLI::XML::Canvas canvas;

    void read(Source const& source) {
        CLI::XML::PullParser parser(source.markup);
        check(CLI::XML::buildDomTree(root, true, parser, source.styles));
    }
    void build() {
        box = ZR::MovePtr<CLI::XML::Box>(new CLI::XML::BlockBox(root.object));
        check(box->createChildren());
    }
    void layOut(unsigned width) {
        CLI::XML::Dimensions page;
        page.content.width = static_cast<int>(std::min<unsigned>(width, INT_MAX));
        box->layout(page);
    }
    void paint() { box->drawTo(canvas, CLI::XML::Canvas::Attributes()); }
    String dump() const { return canvas.dump("\n"); }
};

}  // namespace Bench

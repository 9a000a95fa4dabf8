#pragma once

#include <string>

#include "tests/support/text.h"
#include "xml/css/parseCss.h"
#include "xml/dom/buildDomTree.h"

namespace CLI::XML {

/// The rules of a style sheet that is expected to be valid.
struct Sheet {
    StyleList rules;

    explicit Sheet(char const* css) { EXPECT_EQ(outcome(parseCss(rules, css)), "ok") << css; }
};

/// What the builder made of a document under a style sheet.
struct Document {
    Sheet sheet;
    ZRLWPtr<DomElement> root;
    XCode result;

    explicit Document(String const& markup, char const* css = "") : sheet(css) {
        PullParser parser(markup);
        result = buildDomTree(root, true, parser, sheet.rules);
    }
};

/// The tree below a node in one line: "p['Hello ' b['you'] '!']".
inline std::string shape(DomNode const& node) {
    DomElement const* const element = asElement(&node);
    if (element == nullptr || element->children.count == 0) return shown(node.toString());
    std::string children;
    for (auto const& child : element->children) children += " " + shape(*child);
    return shown(node.toString()) + "[" + children.substr(1) + "]";
}

/// The first element with this name below `parent`, depth first; null when there is none.
inline DomElement const* findElement(DomElement const& parent, char const* name) {
    for (ZRLWPtr<DomNode> const& child : parent.children) {
        DomElement const* const element = asElement(child.object);
        if (element == nullptr || element->name == name) return element;
        if (DomElement const* const found = findElement(*element, name)) return found;
    }
    return nullptr;
}

}  // namespace CLI::XML

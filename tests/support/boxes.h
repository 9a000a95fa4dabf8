#pragma once

#include "tests/support/document.h"
#include "xml/dom/nodes.h"
#include "xml/layout/boxes.h"

namespace CLI::XML {

/// A document and its box tree.
struct Page : Document {
    ZRLWPtr<Box> box;
    XCode built;

    explicit Page(String const& markup, char const* css = "") : Document(markup, css) {
        EXPECT_EQ(outcome(result), "ok");
        box.setObjDontAddRef(new BlockBox(root.object));
        built = box->createChildren();
    }

    void layOut(int width) {
        EXPECT_EQ(outcome(built), "ok");
        Dimensions containing;
        containing.content.width = width;
        box->layout(containing);
    }

    /// The first box of the first element with this name.
    Box& find(char const* name) const { return *findBox(*box, findElement(*root, name)); }

private:
    static Box* findBox(Box& parent, DomNode const* node) {
        for (ZRLWPtr<Box> const& child : parent.children) {
            if (child->node == node) return child.object;
            if (Box* const found = findBox(*child, node)) return found;
        }
        return nullptr;
    }
};

/// The tree below a box in one line: "block p[line['Hello ' inline b['you']]]".
inline std::string shape(Box const& box) {
    static constexpr char const* s_kinds[] = {"block ", "line", "inline ",
                                              "table ", "row ", "cell "};
    std::string children;
    for (ZRLWPtr<Box> const& child : box.children) {
        EXPECT_EQ(child->refCount, 1);
        children += " " + shape(*child);
    }
    bool const isWord = asText(box.node) != nullptr && box.type == Box::Inline;
    std::string const own = isWord ? "" : s_kinds[box.type];
    return own + (box.node != nullptr ? shown(box.node->toString()) : "") +
           (children.empty() ? "" : "[" + children.substr(1) + "]");
}

/// "x,y widthxheight".
inline std::string rectangle(Rect const& r) {
    return String(String::formatted, "%d,%d %dx%d", r.x, r.y, r.width, r.height).c_str();
}

/// The tree below a box with its content rectangles: "line 0,0 9x1['Hello ' 'you' 6,0 3x1]". A word
/// that stands at the origin in a cell a byte is shown without.
inline std::string places(Box const& box) {
    DomText const* const word = asText(box.node);
    Rect const usual{0, 0, word != nullptr ? word->text.length() : -1, 1};
    std::string own = box.node != nullptr ? shown(box.node->toString()) : "line";
    std::string const placed = rectangle(box.dimensions.content);
    if (placed != rectangle(usual)) own += " " + placed;
    std::string children;
    for (ZRLWPtr<Box> const& child : box.children) children += " " + places(*child);
    return own + (children.empty() ? "" : "[" + children.substr(1) + "]");
}

}  // namespace CLI::XML

// Layout and painting of trees with any edges. An input is a program: each byte opens an element,
// closes one, adds a word or sets an edge of the innermost element.

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "fuzz/canvases.h"
#include "fuzz/check.h"
#include "xml/dom/nodes.h"
#include "xml/dom/vocabulary.h"
#include "xml/layout/boxes.h"

namespace CLI::XML {
namespace {

constexpr char const* s_elements[] = {"p", "div", "b", "i", "table", "tr", "td", "th"};
constexpr char const* s_properties[] = {
    "margin-left",       "margin-right",       "margin-top",          "margin-bottom",
    "padding-left",      "padding-right",      "padding-top",         "padding-bottom",
    "border-left-width", "border-right-width", "border-top-width",    "border-bottom-width",
    "background-color",  "border-style",       "border-corner-style", "display",
};
/// At the limits of geometry, one beyond, and sums that reach them.
constexpr char const* s_values[] = {
    "0",          "1",          "2",           "-1",          "-3",         "2147483647",
    "2147483648", "2147483646", "-2147483648", "-2147483649", "1073741824", "-1073741824",
    "65536",      "red",        "#+",          "block",
};
constexpr char const* s_words[] = {"a ", "bb ", "ccc", "", "dddddddd "};
constexpr int s_widths[] = {0, 1, 7, 80, 65536, 2147483646, 2147483647, -1};

template <class T, std::size_t size>
T const& pick(T const (&table)[size], unsigned number) {
    return table[number % size];
}

/// The document that the program makes, and the width that it asks for.
struct Program {
    ZRLWPtr<DomElement> root = ZR::MovePtr<DomElement>(new DomElement("html", DomNode::Block));
    int width = 80;

    Program(std::uint8_t const* data, std::size_t size) {
        std::vector<DomElement*> open = {root.object};
        for (std::size_t i = 0; i < size; ++i) {
            unsigned const operand = data[i] >> 2U;
            DomElement& innermost = *open.back();
            switch (data[i] & 3U) {
                case 0:
                    open.push_back(addElement(innermost, pick(s_elements, operand)));
                    break;
                case 1:
                    if (open.size() > 1) open.pop_back();
                    break;
                case 2:
                    if (operand < 48) {
                        innermost.children.add(makeText(pick(s_words, operand)));
                    } else {
                        width = pick(s_widths, operand);
                    }
                    break;
                default:
                    if (++i < size) setProperty(innermost, operand, data[i]);
            }
        }
    }

private:
    static DomElement* addElement(DomElement& parent, char const* name) {
        ZRLWPtr<DomElement> element = createDomElement(name);
        parent.children.add(ZRLWPtr<DomNode>::share(element.object));
        return element.object;
    }

    static void setProperty(DomElement& element, unsigned property, unsigned value) {
        ZRStringHashTable<String> attributes;
        auto const& former = element.attributes;
        for (auto const* node = former.head.prev; node != &former.head; node = node->prev) {
            attributes.set(node->key, node->value);
        }
        attributes.set(pick(s_properties, property), pick(s_values, value));
        element.setAttributes(attributes);
    }
};

void layOut(Program const& program) {
    ZRLWPtr<Box> const box = ZR::MovePtr<Box>(new BlockBox(program.root.object));
    XCode const built = box->createChildren();
    requireMessage(built);
    Dimensions containing;
    containing.content.width = program.width;
    // Also of what was built before a failure.
    box->layout(containing);
    box->layout(containing);
    String const settled = box->dump(0);
    box->layout(containing);
    require(box->dump(0) == settled, "two layouts settle a tree");
    if (!areCanvasesSmall(*box)) return;
    Canvas page;
    box->drawTo(page, Canvas::Attributes());
    Canvas samePage;
    box->drawTo(samePage, Canvas::Attributes());
    require(page.dump("\n") == samePage.dump("\n"), "painting changes no box");
}

}  // namespace
}  // namespace CLI::XML

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    // Trees are dumped with an indentation, so that their dumps grow with the square.
    constexpr std::size_t s_longestProgram = 2000;
    if (size <= s_longestProgram) CLI::XML::layOut(CLI::XML::Program(data, size));
    return 0;
}

// Lines are broken all at once. Splitting them one after the other, and laying out again what is
// split, is what that has to come to.

#include <algorithm>

#include "tests/support/RandomDocument.h"
#include "tests/support/boxes.h"
#include "xml/xml.h"

namespace CLI::XML {
namespace {

void layOutLiterally(Box& box, Dimensions const& containing);

void layOutRow(Box& box) {
    Rect& content = box.dimensions.content;
    content.width = content.height = 0;
    std::int32_t previous = 0;
    for (unsigned i = 0; i < box.children.count; ++i) {
        Dimensions& child = box.children[i]->dimensions;
        int const left = child.margin.left;
        int const gap =
            box.type == Box::Line ? std::max(previous, left) : std::max(0, left - previous);
        child.content.x = content.width + gap + child.border.left + child.padding.left;
        child.content.y = child.edges().top;
        layOutLiterally(*box.children[i], box.dimensions);
        content.width += child.marginBox().width;
        content.height = std::max(content.height, child.marginBox().height);
        previous = child.margin.right;
    }
}

void layOutStack(Box& box, Dimensions const& containing) {
    Rect& content = box.dimensions.content;
    EdgeSizes const edges = box.dimensions.edges();
    content.width = containing.content.width - edges.left - edges.right;
    content.height = 0;
    std::int32_t widest = 0;
    std::int32_t previous = 0;
    for (unsigned i = 0; i < box.children.count; ++i) {
        Dimensions& child = box.children[i]->dimensions;
        for (;;) {
            int const gap = std::max(0, child.margin.top - previous);
            child.content.x = child.edges().left;
            child.content.y = content.height + gap + child.border.top + child.padding.top;
            layOutLiterally(*box.children[i], box.dimensions);
            if (child.marginBox().width <= content.width) break;
            ZRLWPtr<Box> const rest = box.children[i]->split(content.width);
            if (!rest) break;
            box.children.insert(i + 1, rest);
        }
        content.height += child.marginBox().height;
        widest = std::max(widest, child.marginBox().width);
        previous = child.margin.bottom;
    }
    content.width = widest;
}

void layOutLiterally(Box& box, Dimensions const& containing) {
    bool const isRow = box.type == Box::Line || box.type == Box::Inline;
    if (isRow && box.children.count > 0) {
        layOutRow(box);
    } else if (box.type == Box::Block) {
        layOutStack(box, containing);
    } else {
        box.layout(containing);
    }
}

TEST(LiteralLayout, GivesTheSameBoxes) {
    unsigned laidOut = 0;
    for (unsigned seed = 0; seed < 2000; ++seed) {
        if (seed % 7 == 6) continue;  // may be at fault
        RandomDocument const random(seed);
        Page once(random.markup.c_str(), random.sheet.c_str());
        Page again(random.markup.c_str(), random.sheet.c_str());
        if (!once.built) continue;
        // A second layout begins with the lines that the first one left.
        for (int const width : {random.width % 1000, random.width % 7}) {
            Dimensions containing;
            containing.content.width = width;
            once.box->layout(containing);
            layOutLiterally(*again.box, containing);
            ASSERT_EQ(once.box->dump(0), again.box->dump(0)) << random.markup << "\n"
                                                             << random.sheet << "\nwidth " << width;
        }
        ++laidOut;
    }
    EXPECT_GT(laidOut, 1000);
}

// A block that was wide before takes its lines anew: this one had been parted once too often.
TEST(LiteralLayout, BreaksNoLineThatFitsWithItsEdges) {
    char const* const markup =
        "<mark>twyktitrk <div><mark/><b>mpj&x; g</b><em border-right-width=\"-1\"/></div></mark>";
    Page page(markup);
    Page literal(markup);
    page.layOut(9);
    Dimensions containing;
    containing.content.width = 9;
    layOutLiterally(*literal.box, containing);
    EXPECT_EQ(page.box->dump(0), literal.box->dump(0));
}

// A budget stands in for the time that it would take, in a conversion only.
TEST(LiteralLayout, IsRefusedForAParagraphThatWouldTakeTooLong) {
    std::string markup = "<b margin-left=\"-1\"><p>a</p></b>";
    for (int i = 0; i < 9000; ++i) markup += "w ";
    String page;
    XCode const result = xmlToText(page, markup.c_str(), StyleList(), 10);
    EXPECT_EQ(outcome(result), "Page too large: more than 67108864 cells");
    markup.resize(markup.size() - 2000);
    EXPECT_TRUE(xmlToText(page, markup.c_str(), StyleList(), 10));
}

// No line is broken in a cell.
TEST(LiteralLayout, IsRefusedForNoTable) {
    std::string markup = "<table><tr><td><p margin-left=\"-1\">a</p>";
    for (int i = 0; i < 9000; ++i) markup += "w ";
    String page;
    EXPECT_EQ(outcome(xmlToText(page, (markup + "</td></tr></table>").c_str(), StyleList(), 10)),
              "ok");
}

// Where widths end at the limits of geometry it is literal, too, but in that paragraph alone.
TEST(LiteralLayout, IsNotThatOfAParagraphBehindHugeEdges) {
    std::string words = "<b margin-left=\"-1\"/>";
    for (int i = 0; i < 9000; ++i) words += "w ";
    std::string const huge = "<b padding-right=\"1073741824\"/>";
    String page;
    EXPECT_EQ(outcome(xmlToText(page, (huge + words).c_str(), StyleList(), 10)),
              "Page too large: more than 67108864 cells");
    EXPECT_EQ(outcome(xmlToText(page, (huge + "<p/>" + words).c_str(), StyleList(), 10)), "ok");
}

}  // namespace
}  // namespace CLI::XML

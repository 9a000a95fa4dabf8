#include <tuple>
#include <typeinfo>

#include "tests/support/boxes.h"

namespace CLI::XML {
namespace {

TEST(BoxTree, HasABoxForEveryDisplayedNodeAndALineForEveryInlineRun) {
    expectEach(
        {Row("", "block html"), Row("a <b>x</b> c", "block html[line['a ' inline b['x'] 'c']]"),
         Row("<b/><i display=\"none\">x</i><b/>", "block html[line[inline b inline b]]"),
         Row("a<p>b</p>c", "block html[line['a'] block p[line['b']] line['c']]"),
         Row("a<table/>c", "block html[line['a'] table table line['c']]"),
         Row("<p/><div><h1/></div>", "block html[block p block div[block h1]]"),
         Row("a<p display=\"none\">b<p/></p>c", "block html[line['a' 'c']]"),
         Row("a<div display=\"inline\">b</div>", "block html[line['a' inline div['b']]]"),
         Row("<b>x<p>y</p><i>z</i></b>",
             "block html[line[inline b['x' block p[line['y']] inline i['z']]]]"),
         Row("<table> <tr> <td>a b</td><th/> </tr> <tr/> </table>",
             "block html[table table[row tr[cell td['a ' 'b'] cell th] row tr]]"),
         Row("<table><tr><td><p>a</p></td></tr><td display=\"none\"/></table>",
             "block html[table table[row tr[cell td[block p[line['a']]]]]]"),
         Row("<td display=\"block\">a</td>", "block html[block td[line['a']]]")},
        [](String const& markup) {
            Page const page(markup);
            EXPECT_EQ(outcome(page.built), "ok");
            EXPECT_EQ(page.root->refCount, 1);
            return shape(*page.box);
        });
}

TEST(BoxTree, RefusesMisplacedContent) {
    using Case = std::tuple<char const*, char const*, char const*>;
    for (auto const& [markup, child, parent] :
         {Case("<table>a<tr/></table>", "text", "table"), Case("<table><b/></table>", "b", "table"),
          Case("<table><p/></table>", "p", "table"),
          Case("<table><table/></table>", "table", "table"),
          Case("<table><td/></table>", "td", "table"),
          Case("<table><tr>a</tr></table>", "text", "tr"),
          Case("<table><tr><p/></tr></table>", "p", "tr"),
          Case("<table><tr><tr/></tr></table>", "tr", "tr"), Case("<div><tr/></div>", "tr", "div"),
          Case("<table><tr><table/></tr></table>", "table", "tr"), Case("<td/>", "td", "html"),
          Case("<div><td/></div>", "td", "div"), Case("<b><table/></b>", "table", "b"),
          Case("<p><i><tr/></i></p>", "tr", "i"), Case("<b><td/></b>", "td", "b"),
          Case("<table><tr><td><tr/></td></tr></table>", "tr", "td")}) {
        EXPECT_EQ(Page(markup).built.getString(),
                  String(String::formatted, "Cannot layout '%s' within '%s'", child, parent));
    }
    EXPECT_EQ(shape(*Page("a<p>b<td/>c</p>d").box), "block html[line['a'] block p[line['b']]]");
}

TEST(LineBox, GetsItsChildrenFromItsBlock) {
    ZRLWPtr<Box> const line = ZR::MovePtr<Box>(new LineBox);
    EXPECT_EQ(outcome(line->createChildren()), "");
    EXPECT_EQ(outcome(BlockBox(nullptr).createChildren()), "");
    EXPECT_EQ(line->getOrCreateLineBox().object, line.object);
    EXPECT_EQ(line->refCount, 1);
}

TEST(Clone, SharesNodeAndEdgesOnly) {
    Page page("<b margin=\"2\">x</b>");
    page.layOut(80);
    ZRLWPtr<Box> const clone = page.find("b").clone();
    EXPECT_EQ(shape(*clone), "inline b");
    EXPECT_EQ(clone->node, page.find("b").node);
    EXPECT_EQ(clone->refCount, 1);
    EXPECT_EQ(rectangle(clone->dimensions.content), "0,0 0x0");
    EXPECT_EQ(clone->dimensions.margin.bottom, 2);
}

TEST(Clone, IsOfTheSameClass) {
    Page page("<table><tr><td><p><b>x</b></p></td></tr></table>");
    for (char const* const name : {"p", "b", "table", "tr", "td"}) {
        Box& box = page.find(name);
        ZRLWPtr<Box> const clone = box.clone();
        Box const& cloned = *clone;
        EXPECT_TRUE(typeid(cloned) == typeid(box)) << name;
        EXPECT_EQ(clone->type, box.type);
        EXPECT_EQ(clone->children.count, 0U);
        EXPECT_EQ(clone->node, box.node);
    }
}

}  // namespace
}  // namespace CLI::XML

#include "tests/support/boxes.h"

namespace CLI::XML {
namespace {

TEST(Dump, ShowsTheDocumentTreeIndented) {
    Document const document("<div>Hello world<b/></div>abc");
    EXPECT_EQ(shown(document.root->dump(0)), picture(R"(
html:$
  div:$
    'Hello '$
    'world'$
    b:$
  'abc'$
)"));
    EXPECT_EQ(document.root->children[1]->dump(4), "    'abc'\n");
}

TEST(Dump, ShowsTheBoxTreeWithItsGeometry) {
    Page page("<div>Hello world</div>");
    EXPECT_EQ(page.find("div").children[0]->children[1]->dump(1),
              " inline: 'world': (0, 0, 0, 0)\n");
    page.layOut(80);
    EXPECT_EQ(shown(page.box->dump(0)), picture(R"(
block:  html: (0, 0, 11, 1)$
  block:  div: (0, 0, 11, 1)$
    line:   (anonymous): (0, 0, 11, 1)$
      inline: 'Hello ': (0, 0, 6, 1)$
      inline: 'world': (6, 0, 5, 1)$
)"));
}

TEST(Dump, LabelsEveryKindOfBox) {
    Page page("<table margin-left=\"-3\"><tr><td/><th/></tr></table>");
    page.layOut(80);
    page.find("th").type = static_cast<Box::Type>(9);
    EXPECT_EQ(shown(page.box->dump(0)), picture(R"(
block:  html: (0, 0, 0, 0)$
  table:  table: (-3, 0, 0, 0)$
    row:    tr: (0, 0, 0, 0)$
      cell:   td: (0, 0, 0, 0)$
      ???:    th: (0, 0, 0, 0)$
)"));
}

}  // namespace
}  // namespace CLI::XML

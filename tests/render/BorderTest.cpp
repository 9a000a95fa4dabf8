#include <tuple>

#include "tests/support/paint.h"

namespace CLI::XML {
namespace {

TEST(Border, StandsAroundTheContent) {
    EXPECT_EQ(painted("<p>abc</p>", 80, "p{border-width:1;}"), picture(R"(
*****$
*abc*$
*****$
)"));
    EXPECT_EQ(painted("<p>abc</p>", 80,
                      "p{border-width:1; border-style:-; border-left-style:|;"
                      "border-right-style:|; border-corner-style:+;}"),
              picture(R"(
+---+$
|abc|$
+---+$
)"));
    EXPECT_EQ(
        painted("<table><tr><td>a</td><td>bb</td></tr><tr><td>ccc</td><td>d</td></tr></table>", 80,
                "td{border-width:1;}"),
        picture(R"(
*********$
*a  **bb*$
*********$
*********$
*ccc**d *$
*********$
)"));
}

TEST(Border, StandsAroundEachPartOfABrokenElement) {
    EXPECT_EQ(painted("<td display=\"inline\">aa bb</td>", 4, "td{border-width:1;}"), picture(R"(
*****$
*aa *$
*****$
****$
*bb*$
****$
)"));
}

using BorderCase = std::tuple<char const*, char const*>;

void expectBorders(char const* markup, std::initializer_list<BorderCase> cases) {
    for (auto const& [css, expected] : cases) {
        String const sheet(String::formatted, "td{%s}", css);
        EXPECT_EQ(painted(markup, 80, sheet.c_str()), expected) << css;
    }
}

TEST(Border, DrawsEachSideByItsOwnRule) {
    expectBorders(
        "<td display=\"block\">abc</td>",
        {{"border-width:1; border-style:-; border-left-style:|;", "-----$\n|abc-$\n-----$\n"},
         {"border-width:1; border-left-style:l; border-right-style:r; border-top-style:t;"
          "border-bottom-style:b;",
          "ttttt$\nlabcr$\nbbbbb$\n"},
         {"border-width:1; border-right-width:0; border-corner-style:+;", "+***$\n*abc$\n+***$\n"},
         {"border-width:1; border-style:xy; border-corner-style:+-;",
          "+-xy+-xyxy$\nxabcxy$\n+-xy+-xyxy$\n"},
         {"border-width:2; border-bottom-width:-1;", "*******$\n*     *$\n  abc$\n"},
         {"border-width:-1; padding:2; border-corner-style:+;", "$\n abc$\n"},
         {"border-width:1; padding-left:-1;", "****$\nabc*$\n****$\n"}});
    expectBorders("<td display=\"block\" border-style=\"\">a</td><td display=\"block\"/>",
                  {{"border-width:1;", "$\n a$\n$\n**$\n**$\n"}});
}

TEST(Border, IsClippedAtTheFirstColumnAndRow) {
    expectBorders(
        "<td display=\"block\">abc</td>",
        {{"border-width:1; margin-left:-1;", "****$\nabc*$\n****$\n"},
         {"border-width:1; margin-left:-2;", "***$\nbc*$\n***$\n"},
         {"border-left-width:1; margin-left:-1; border-style:<--->;", "abc>$\n"},
         {"border-width:1; margin-left:-5; border-style:xyz;", "zxyzxyzxyz$\nyz$\nzxyzxyzxyz$\n"},
         {"border-top-width:1; margin-left:-2147483000; padding-right:2147483000;", "***$\n$\n"}});
    expectBorders("<td display=\"inline\">abc</td>",
                  {{"border-width:1; margin-top:-1;", "*abc*$\n*****$\n"},
                   {"border-width:1; margin-top:-2;", "*****$\n"}});
}

}  // namespace
}  // namespace CLI::XML

// Parts, edges and rows of tables as pictures.

#include "tests/web/flow/Pictures.h"

namespace galley::web {
namespace {

TEST(Tables, BringTheirHeadFirstAndTheirFootLast) {
    expectPictures({

        {"<table><tfoot><tr><td>foot</td></tr></tfoot><tbody><tr><td>body</td></tr></tbody><th"
         "ead><tr><td>head</td></tr></thead><thead><tr><td>more</td></tr></thead></table>",
         30, R"(
 head
 body
 more
 foot
)"},

    });
}

TEST(Tables, GetThePartsThatAreNotThere) {
    expectPictures({

        {"<table>x<td>a</td><tr>b<td>c</td></tr></table>", 30, R"(
x a
b c
)"},

        {"y<td>a</td><td>b</td>z", 30, R"(
y
 a  b
z
)"},

        {"<div style='border: solid; width: 6ch'><tr><td>a</td></tr> <tr><td>b</td></tr></div>", 30,
         R"(
┌──────┐
│ a    │
│ b    │
└──────┘
)"},

        {"<table/>x<table><tr/></table>y", 30, R"(
x
y
)"},

    });
}

TEST(Tables, HaveEdges) {
    expectPictures({

        {"<table style='border: double; padding: 0 1ch; margin: 0 auto'><tr><td style='border:"
         " solid'>a</td><td style='border: dashed'/></tr></table>",
         20, R"(
   ╔═══════════╗
   ║ ┌───┐┌╌╌┐ ║
   ║ │ a │╎  ╎ ║
   ║ └───┘└╌╌┘ ║
   ╚═══════════╝
)"},

        {"<table style='border: solid; border-spacing: 2ch 1lh'><tr><td>a</td><td>b</td></tr><"
         "/table>",
         20, R"(
┌────────────┐
│            │
│   a    b   │
│            │
└────────────┘
)"},

        {"<table style='margin-left: auto'><tr><td>a</td></tr></table>", 8, R"(
      a
)"},

    });
}

TEST(Tables, HaveCaptions) {
    expectPictures({

        {"<table><caption>two words</caption><tr><td>abcdef</td></tr></table>", 20, R"(
  two
 words
 abcdef
)"},

        {"<table style='border: solid; caption-side: bottom'><caption>longword</caption><tr><t"
         "d>a</td></tr></table>",
         20, R"(
┌──────┐
│ a    │
└──────┘
longword
)"},

    });
}

TEST(TableRows, AreAsHighAsTheirCells) {
    expectPictures({

        {"<table><tr><td>a<br/>b<br/>c</td><td style='vertical-align: middle'>m</td><td style="
         "'vertical-align: bottom'>e</td></tr></table>",
         20, R"(
 a
 b  m
 c     e
)"},

        {"<table><tr><td rowspan='2'>a<br/>b<br/>c<br/>d</td><td style='border: solid'>x</td><"
         "/tr><tr><td>y</td></tr></table>",
         20, R"(
 a ┌───┐
 b │ x │
 c └───┘
 d  y
)"},

        {"<table><tr style='vertical-align: baseline'><td style='padding-top: 1lh'>a</td><td>b"
         "</td></tr></table>",
         20, R"(

 a  b
)"},

        {"<table><tr><td>a<p>b</p></td><td><p>c</p></td></tr></table>", 20, R"(
 a
    c
 b

)"},

    });
}

TEST(TableRows, LayWhatSticksOutOverWhatIsToTheRight) {
    expectPictures({

        {"<table style='table-layout: fixed; width: 12ch'><tr><td style='padding: 0; border-ri"
         "ght: solid'><div style='white-space: nowrap'>abcdefgh</div></td><td style='padding: "
         "0; border: solid'><br/>xy</td></tr></table>",
         20, R"(
abcdefgh───┐
     ││    │
     ││xy  │
     │└────┘
)"},

        {"<table style='table-layout: fixed; width: 12ch'><tr><td style='padding: 0; white-spa"
         "ce: nowrap'>abcdefg</td><td style='padding: 0'><table><tr><td style='border-left: solid'>"
         "x</td></tr></table></td></tr></table>",
         20, R"(
abcdefg x
)"},

        {"<table style='table-layout: fixed; width: 12ch'><tr><td style='padding: 0; white-spa"
         "ce: nowrap'>abcdefgh</td><td style='padding: 0'>xy</td></tr></table>",
         20, R"(
abcdefxy
)"},

        // Borders and backgrounds of a later cell lie over all of it but its text.
        {"<table style='table-layout: fixed; width: 12ch'><tr><td style='padding: 0'><table style="
         "'width: 11ch'><tr><td style='border: solid'>abcdefg</td></tr></table></td>"
         "<td style='padding: 0; background: red'>xy</td></tr></table>",
         20, R"(
┌─────xy
│ abcdefg
└─────
)"},

    });
}

// As in Chromium: without cells there is no spacing, and only a `table` has its edges in its width.
TEST(Tables, AreAsWideAsTheySay) {
    expectPictures({
        {"<table style='border: solid; border-spacing: 2ch 1lh'><col/><tr></tr></table>", 20, R"(
┌┐
└┘
)"},
        {"<table style='border: solid; border-spacing: 2ch 1lh'><col style='width: 2ch'/></table>",
         20, R"(
┌──────┐
└──────┘
)"},
        {"<div style='display: table; width: 4ch; padding: 0 1ch; border: solid'>a</div>", 20, R"(
┌──────┐
│ a    │
└──────┘
)"},
        {"<div style='display: table; max-width: 3ch; border: solid'>aa bb</div>", 20, R"(
┌───┐
│aa │
│bb │
└───┘
)"},
        {"<table style='width: 6ch; border: solid'><tr><td>a</td></tr></table>", 20, R"(
┌────┐
│ a  │
└────┘
)"},
    });
}

// As in Chromium: one in which no cell begins is there for its width alone, and what is fixed
// stands for what a cell over it would like.
TEST(Tables, HaveColumnsWhereCellsBeginOrWidthsAreSet) {
    expectPictures({
        {"<table style='border-spacing: 1ch'><col span='3' style='width: 2ch'/><tr>"
         "<td colspan='3' style='border: solid'></td></tr></table>",
         20, R"(

 ┌──────┐
 └──────┘

)"},
        {"<table><col style='width: 5ch'/><tr><td colspan='3'>ab cde</td></tr></table>", 20, R"(
 ab
 cde
)"},
        {"<table style='border-spacing: 1ch 0'><col style='width: 9ch'/><col/>"
         "<tr><td colspan='3'>a</td><td>b</td></tr></table>",
         20, R"(
  a         b
)"},
        {"<table style='border-spacing: 1ch 0'><col style='width: 9ch'/><col style='width: 2ch'/>"
         "<tr><td colspan='3'>a</td><td>b</td></tr></table>",
         20, R"(
  a            b
)"},
        {"<table style='table-layout: fixed; width: 20ch'><colgroup style='width: 9ch'><col/>"
         "</colgroup><tr><td>a</td><td>b</td></tr></table>",
         20, R"(
 a         b
)"},
        {"<table style='table-layout: fixed; width: 20ch'><colgroup style='width: 9ch'></colgroup>"
         "<tr><td>a</td><td>b</td></tr></table>",
         20, R"(
 a        b
)"},
    });
}

// As in Chromium: that of a table is its first row's, which no border and no caption is on.
TEST(TableRows, AlignTablesByTheirFirstRow) {
    std::string const begin =
        "<table><tbody style='vertical-align: baseline'><tr><td style='padding: 4lh 0 0'>a</td>"
        "<td style='padding: 0'>";
    std::string const end = "</td></tr></tbody></table>";
    for (auto const& [table, page] : std::vector<std::pair<char const*, char const*>>{
             {"<table><caption>c</caption><tbody style='vertical-align: baseline'><tr>"
              "<td style='border: solid'>b</td></tr></tbody></table>",
              "|||   c| ┌───┐|a│ b │| └───┘"},
             {"<table style='border-collapse: collapse'><tbody style='vertical-align: baseline'>"
              "<tr><td style='border: solid; padding-top: 1lh'>b</td></tr></tbody></table>",
              "||| ┌───┐| │   │|a│ b │| └───┘"},
             {"<ol><li></li><li>b</li></ol>", "|||||a 1.|  2. b|"},
             {"<table><tr><td style='padding-bottom: 1lh'>b<br/>d</td></tr></table>",
              "||||  b|a d|"}}) {
        EXPECT_EQ(textOf(begin + table + end, 20, "|", ""), page) << table;
    }
}

// As in Chromium: nothing is on no baseline.
TEST(TableRows, AlignNoEmptyCells) {
    expectPictures({
        {"<table style='vertical-align: baseline'><tr style='vertical-align: baseline'>"
         "<td style='padding-top: 2lh'></td><td>a</td></tr></table>",
         20, R"(
   a

)"},
        {"<table><tr style='vertical-align: baseline'><td style='padding-top: 2lh'><div></div></td>"
         "<td>a</td></tr></table>",
         20, R"(

   a
)"},
    });
}

}  // namespace
}  // namespace galley::web

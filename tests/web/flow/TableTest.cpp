// Tables as pictures.

#include "tests/web/flow/Pictures.h"

namespace galley::web {
namespace {

TEST(TableColumns, RunDownTheirCells) {
    expectPictures({

        {"<table><tr><td>a</td><td>bb</td></tr><tr><td>ccc</td><td>d</td></tr></table>", 30, R"(
 a    bb
 ccc  d
)"},

        {"<table><tr><td colspan='2'>spanning</td><td>x</td></tr><tr><td>a</td><td>b</td><td>y"
         "</td></tr></table>",
         30, R"(
 spanning  x
 a    b    y
)"},

        {"<table><tr><td colspan='3'>alone</td></tr><tr><td>a</td></tr></table>", 30, R"(
 alone
 a
)"},

        {"<table><tr><td colspan='2' style='width: 3ch'>one two</td></tr><tr><td colspan='2'>t"
         "hree four</td></tr></table>",
         30, R"(
 one two
 three four
)"},

        {"<table><tr><td rowspan='2'>a</td><td>b</td></tr><tr><td>c</td></tr></table>", 30, R"(
 a  b
    c
)"},

        {"<table><tr><td rowspan='0'>a</td><td>b</td></tr><tr><td>c</td></tr><tbody><tr><td>d<"
         "/td></tr></tbody></table>",
         30, R"(
 a  b
    c
 d
)"},

        {"<table><tr><td>a</td><td rowspan='2'>b</td></tr><tr><td colspan='2'>over it</td></tr"
         "></table>",
         30, R"(
 a    b
 over it
)"},

    });
}

TEST(TableColumns, ShareTheWidth) {
    expectPictures({

        {"<table style='width: 20ch'><tr><td>a</td><td>bbb</td></tr></table>", 30, R"(
 a       bbb
)"},

        {"<table style='width: 100%'><tr><td style='width: 25%'>a</td><td>b</td></tr></table>", 16,
         R"(
 a   b
)"},

        {"<table><tr><td style='width: 6ch'>a</td><td>one two three</td></tr></table>", 18, R"(
 a       one two
         three
)"},

        {"<table style='width: 100%'><colgroup><col style='width: 4ch'/></colgroup><tr><td>a</"
         "td><td>b</td></tr></table>",
         16, R"(
 a   b
)"},

        {"<table style='table-layout: fixed; width: 16ch'><tr><td style='width: 2ch'>abc</td><"
         "td>d</td><td>e</td></tr></table>",
         30, R"(
 ab  d     e
 c
)"},

    });
}

TEST(TableColumns, PartWordsOnlyWhereTheTableDoesNotFit) {
    expectPictures({

        {"<table><tr><td>abcdef</td><td>gh ijklm</td></tr></table>", 15, R"(
 abcdef  gh
         ijklm
)"},

        {"<table><tr><td>abcdef</td><td>gh ijklm</td></tr></table>", 14, R"(
 abcde  gh
 f      ijklm
)"},

        {"<table><tr><td>abcdef</td><td><table><tr><td>gh</td><td>ijkl</td></tr></table></td><"
         "/tr></table>",
         12, R"(
 ab   g  i
 cd   h  j
 ef      k
         l
)"},

        {"<table><tr><td style='white-space: nowrap'>abc def</td><td>ghi</td></tr></table>", 8, R"(
 abc def  g
          h
          i
)"},

    });
}

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
         "ce: nowrap'>abcdefgh</td><td style='padding: 0'>xy</td></tr></table>",
         20, R"(
abcdefxy
)"},

    });
}

TEST(CollapsedBorders, ShareTheLinesOfTheGrid) {
    expectPictures({

        {"<table style='border-collapse: collapse; border: solid'><tr><td>a</td><td>b</td></tr"
         "><tr><td>c</td><td>d</td></tr></table>",
         20, R"(
┌──────┐
│ a  b │
│ c  d │
└──────┘
)"},

        {"<style>td { border: solid }</style><table style='border-collapse: collapse'><tr><td>"
         "a</td><td rowspan='2'>b</td></tr><tr><td>c</td></tr><tr><td colspan='2'>d</td></tr><"
         "/table>",
         20, R"(
┌───┬───┐
│ a │ b │
├───┤   │
│ c │   │
├───┴───┤
│ d     │
└───────┘
)"},

        {"<table style='border-collapse: collapse'><tr><td>a</td><td style='border-left: solid"
         "'>b</td></tr><tr><td>c</td><td>d</td></tr></table>",
         20, R"(
 a │ b
 c   d
)"},

        {"<table style='border-collapse: collapse'><tr style='border-bottom: double'><td>a</td"
         "><td>b</td></tr><tr><td>c</td></tr></table>",
         20, R"(
 a  b
══════
 c
)"},

    });
}

TEST(CollapsedBorders, AreTheStrongestOfThoseThatMeet) {
    expectPictures({

        {"<table style='border-collapse: collapse'><tr><td style='border-right: solid'>a</td><"
         "td style='border-left: double'>b</td></tr></table>",
         20, R"(
 a ║ b
)"},

        {"<table style='border-collapse: collapse'><tr><td style='border-right: thick solid'>a"
         "</td><td style='border-left: double'>b</td></tr></table>",
         20, R"(
 a ┃ b
)"},

        {"<table style='border-collapse: collapse'><tr><td style='border-right: hidden'>a</td>"
         "<td style='border-left: double'>b</td></tr></table>",
         20, R"(
 a  b
)"},

        {"<table style='border-collapse: collapse'><colgroup><col style='border-right: double'"
         "/></colgroup><tr><td style='border-right: dotted'>a</td><td style='border-left: dash"
         "ed'>b</td></tr></table>",
         20, R"(
 a ║ b
)"},

        {"<table style='border-collapse: collapse; border: solid'><tbody style='border-top: do"
         "uble'><tr><td style='border-left: double'>a</td></tr></tbody></table>",
         20, R"(
╔═══╕
║ a │
╙───┘
)"},

    });
}

}  // namespace
}  // namespace galley::web

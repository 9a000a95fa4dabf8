// Columns of tables as pictures.

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

        // Both columns have 6.5 cells first.
        {"<table style='table-layout: fixed; width: 22ch'><tr><td colspan='2' style='width: 11ch'/>"
         "</tr><tr><td>a</td><td>b</td></tr></table>",
         30, R"(
 a          b
)"},

        // Parts of a cell are kept until all is shared.
        {"<table style='width: 54ch'><tr><td style='width: 16.6667%'>123456789</td>"
         "<td style='width: 33.3333%'>bcd</td></tr></table>",
         60, R"(
 123456789           bcd
)"},
        // By the order of rows on the page.
        {"<table style='width: 50%'><tfoot><tr><td colspan='2'>aaa bbb ccc ddd eee fff "
         "ggg</td></tr>"
         "</tfoot><tr><td>one two x</td><td>seven77</td></tr><thead><tr><td colspan='2'>"
         "<pre>123456789012345678</pre></td></tr></thead></table>",
         20, R"(

 123456789012345678

 one two x  seven77
 aaa bbb ccc ddd
 eee fff ggg
)"},

        // More than a hundred per cent are scaled down in fixed layout, and cut off elsewhere.
        {"<table style='table-layout: fixed; width: 24ch'><tr><td style='padding: 0; width: 25%'>a"
         "</td><td style='padding: 0; width: 50%'>b</td><td style='padding: 0; width: 50%'>c</td>"
         "<td style='width: 2ch'>d</td></tr></table>",
         30, R"(
a   b       c        d
)"},
        // What a cell would like a percentage has, beside a fixed width.
        {"<table><tr><td colspan='2'>one two three</td></tr><tr><td style='width: 3ch'>a</td>"
         "<td style='width: 50%'>b</td></tr></table>",
         40, R"(
 one two three
 a         b
)"},
        {"<table><colgroup span='2' style='width: 3ch'/><tr><td colspan='2'>one two three</td></tr>"
         "<tr><td style='width: 6ch'>a</td><td style='width: 50%'>b</td></tr></table>",
         30, R"(
 one two three
 a       b
)"},

        // Only what grows is shared alike.
        {"<table style='table-layout: fixed; width: 22ch'><tr><td colspan='2' style='width: 5ch'/>"
         "<td>c</td></tr><tr><td>a</td><td>b</td></tr></table>",
         30, R"(
        c
 a   b
)"},

        {"<table style='table-layout: fixed; width: 22ch'><tr><td style='width: 9ch; max-width: "
         "3ch'>a</td><td>b</td></tr></table>",
         30, R"(
 a    b
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

        {"<table><tr><td>abcdef</td><td>ghi</td><td>jklmnopqrst</td></tr></table>", 18, R"(
 abcde  ghi  jklm
 f           nopq
             rst
)"},

        {"<table><tr><td colspan='2'>abcdefgh</td><td>jklmnopqrst</td></tr><tr><td>a</td><td>bcd"
         "</td></tr></table>",
         16, R"(
 abcdef  jklmno
 gh      pqrst
 a  bcd
)"},

        {"<table><tr><td>abc <b style='overflow-wrap: normal'>defgh</b></td><td>ijkl</td></tr>"
         "</table>",
         10, R"(
 abc    i
 defgh  j
        k
        l
)"},

        {"<table><tr><td style='white-space: nowrap'>abc def</td><td>ghi</td></tr></table>", 12, R"(
 abc def  g
          h
          i
)"},

        // One that would not fit for all that.
        {"<table><tr><td style='white-space: nowrap'>abc def</td><td>ghi</td></tr></table>", 11, R"(
 abc def  ghi
)"},

        {"<table><tr><td style='white-space: nowrap'>a "
         "bc</td><td><table><tr><td>gh</td><td>ijkl</td>"
         "</tr></table></td></tr></table>",
         11, R"(
 a bc   gh  ijkl
)"},

    });
}

}  // namespace
}  // namespace galley::web

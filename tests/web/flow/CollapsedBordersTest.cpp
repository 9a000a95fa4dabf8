// Borders that cells share, as pictures.

#include "tests/web/flow/Pictures.h"

namespace galley::web {
namespace {

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

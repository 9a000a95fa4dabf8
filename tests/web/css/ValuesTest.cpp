#include <gtest/gtest.h>

#include "tests/web/css/Tree.h"
#include "tests/web/css/describe.h"

namespace galley::web {
namespace {

/// Declarations, the style of an element that has them, and what is said about them.
struct Case {
    std::string declarations;
    std::string style;
    std::string problems;
};

std::string styleBy(std::string const& declarations) {
    Sheet const sheet = parsed("p{" + declarations + "}");
    std::vector<Problem> none;
    Sheet const* const sheets[] = {&sheet};
    Cascade cascade(Sheet(), sheets, Media(), none);
    Tree tree("<p/>");
    tree.styleWith(cascade);
    return describe(*tree.elements().front().style);
}

void check(std::initializer_list<Case> cases) {
    for (Case const& c : cases) {
        std::vector<Problem> problems;
        Sheet::parse("p{" + c.declarations + "}", problems);
        EXPECT_EQ(styleBy(c.declarations), c.style) << c.declarations;
        EXPECT_EQ(textOf(problems), c.problems) << c.declarations;
    }
}

TEST(CssValues, LengthsAreTheNearestCellsOfTheirAxis) {
    check({
        {"margin-left:2", "margin-left=2;", ""},
        {"margin-top:2", "margin-top=2;", ""},
        {"margin-left:16px", "margin-left=2;", ""},
        {"margin-top:16px", "margin-top=1;", ""},
        {"margin-left:2ch", "margin-left=2;", ""},
        {"margin-left:1em", "margin-left=2;", ""},
        {"margin-top:1rem", "margin-top=1;", ""},
        {"margin-top:1LH", "margin-top=1;", ""},
        {"margin-left:6pt", "margin-left=1;", ""},
        {"margin-left:4px", "margin-left=1;", ""},
        {"margin-left:3.99px", "", ""},
        {"margin-top:8px;margin-bottom:7px", "margin-top=1;", ""},
        {"margin-left:1e1", "margin-left=10;", ""},
        {"margin-left:+.5em", "margin-left=1;", ""},
        {"margin-left:12.5%", "margin-left=12500m%;", ""},
        {"margin-left:auto", "margin-left=auto;", ""},
        {"text-indent:-4px", "", ""},
        {"text-indent:-4.1px", "indent=-1;", ""},
        {"margin-left:1e999", "margin-left=1000000;", ""},
        {"margin-left:1e-999", "", ""},
        {"margin-left:2vw", "",
         "14 '2vw' is no value of 'margin-left'; unit 'vw' is not supported\n"},
        {"margin-left:2 px", "", "14 '2 px' is no value of 'margin-left'\n"},
        {"margin-left:-1px", "", "14 '-1px' has no effect as a value of 'margin-left'\n"},
        {"padding-left:-1px", "", "15 '-1px' is no value of 'padding-left'\n"},
    });
}

TEST(CssValues, WhatContentFitsIntoHasWholeCellsOnly) {
    check({
        {"width:15px", "width=1;", ""},
        {"max-width:10.5ch", "max-width=10;", ""},
        {"min-width:50%", "min-width=50000m%;", ""},
        {"max-width:none;width:auto", "", ""},
        {"max-width:auto", "", "12 'auto' is no value of 'max-width'\n"},
        {"width:none", "", "8 'none' is no value of 'width'\n"},
    });
}

TEST(CssValues, ShorthandsSetTheirSides) {
    check({
        {"margin:1", "margin-left=1;margin-right=1;margin-top=1;margin-bottom=1;", ""},
        {"margin:16px", "margin-left=2;margin-right=2;margin-top=1;margin-bottom=1;", ""},
        {"margin:1 2", "margin-left=2;margin-right=2;margin-top=1;margin-bottom=1;", ""},
        {"margin:1 2 3", "margin-left=2;margin-right=2;margin-top=1;margin-bottom=3;", ""},
        {"margin:1 2 3 4", "margin-left=4;margin-right=2;margin-top=1;margin-bottom=3;", ""},
        {"margin:1 2 3 4 5", "", "9 '1 2 3 4 5' is no value of 'margin'\n"},
        {"margin:0 auto", "margin-left=auto;margin-right=auto;", ""},
        {"margin:-1 0", "", "9 '-1' has no effect as a value of 'margin'\n"},
        {"margin:-1 x", "", "9 '-1 x' is no value of 'margin'\n"},
        {"padding:1 x", "", "10 '1 x' is no value of 'padding'\n"},
        {"margin:1;margin-left:3", "margin-left=3;margin-right=1;margin-top=1;margin-bottom=1;",
         ""},
        {"margin-left:3;margin:0", "", ""},
    });
}

TEST(CssValues, BordersAreThereWithAStyleAndAWidth) {
    check({
        {"border-left:solid", "border-left=solid/thin/terminal;", ""},
        {"border-left:1px double red", "border-left=double/thin/palette 1;", ""},
        {"border-left:red dashed", "border-left=dashed/thin/palette 1;", ""},
        {"border-left:4.9px solid", "border-left=solid/thin/terminal;", ""},
        {"border-left:5px solid", "border-left=solid/thick/terminal;", ""},
        {"border-left:thick dotted", "border-left=dotted/thick/terminal;", ""},
        {"border-left:1ch solid", "border-left=solid/thin/terminal;", ""},
        {"border-left:0 solid", "border-left=solid/none/terminal;", ""},
        {"border-left:3px", "",
         "14 'border-left' has no style such as 'solid', and does not show\n"},
        {"border-top:red", "border-top=none/thin/palette 1;",
         "13 'border-top' has no style such as 'solid', and does not show\n"},
        {"border-top:0 red", "border-top=none/none/palette 1;", ""},
        {"border-left:hidden", "border-left=hidden/thin/terminal;", ""},
        {"border-left:\"| \" blue", "border-left=text| /thin/palette 4;", ""},
        {"border-left:'\\1b[2J'", "border-left=text\xEF\xBF\xBD[2J/thin/terminal;", ""},
        {"border-left:'\\9b\x7F\\A'",
         "border-left=text\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD/thin/terminal;", ""},
        {"border-left:'\xE2\x94!'", "border-left=text\xEF\xBF\xBD!/thin/terminal;", ""},
        {"border-left:''", "", ""},
        {"border-left:solid solid", "", "14 'solid solid' is no value of 'border-left'\n"},
        {"border:solid;border-width:0 1 0 0;border-color:lime",
         "border-left=solid/none/#00ff00;border-right=solid/thin/#00ff00;"
         "border-top=solid/none/#00ff00;border-bottom=solid/none/#00ff00;",
         ""},
        {"color:red;border-top:groove", "colour=palette 1;border-top=solid/thin/palette 1;", ""},
        {"border-left:solid red;border-left:solid", "border-left=solid/thin/terminal;", ""},
        {"border-style:solid none none", "border-top=solid/thin/terminal;", ""},
        {"border-radius:0 0 4px / 2px", "rounded=1;", ""},
        {"border-radius:0", "", ""},
        {"border-radius:-1px", "", "16 '-1px' is no value of 'border-radius'\n"},
        {"border-collapse:collapse;border-spacing:1 2", "collapse=1;spacing=1 2;", ""},
        {"border-spacing:16px", "spacing=2 1;", ""},
        {"border-spacing:1 2 3", "", "17 '1 2 3' is no value of 'border-spacing'\n"},
    });
}

TEST(CssValues, ColoursAreNamesOrExact) {
    check({
        {"color:Bright-Cyan", "colour=palette 14;", ""},
        {"color:grey", "colour=palette 8;", ""},
        {"color:rebeccapurple", "colour=#663399;", ""},
        {"color:#1aF", "colour=#11aaff;", ""},
        {"color:#010203", "colour=#010203;", ""},
        {"color:#1230", "colour=transparent;", ""},
        {"color:#01020304", "colour=#010203;",
         "8 colour in 'color' is shown opaque, as all colours are\n"},
        {"color:#010203ff", "colour=#010203;", ""},
        {"color:#12", "", "8 '#12' is no value of 'color'\n"},
        {"color:#12345g", "", "8 '#12345g' is no value of 'color'\n"},
        {"color:rgb(1,2,300)", "colour=#0102ff;", ""},
        {"color:rgb( 10% 20% 100% / .5 )", "colour=#1a33ff;",
         "8 colour in 'color' is shown opaque, as all colours are\n"},
        {"border-left:solid rgba(1,2,3,.5)", "border-left=solid/thin/#010203;",
         "20 colour in 'border-left' is shown opaque, as all colours are\n"},
        {"color:RGBA(1,2,3,0)", "colour=transparent;", ""},
        {"color:rgb(1,2 3)", "", "8 'rgb(1,2 3)' is no value of 'color'\n"},
        {"color:rgb(1,2%,3)", "", "8 'rgb(1,2%,3)' is no value of 'color'\n"},
        {"color:rgb(1,2,3) x", "", "8 'rgb(1,2,3) x' is no value of 'color'\n"},
        {"color:rad", "", "8 'rad' is no value of 'color'; did you mean 'red'?\n"},
        {"background:blue", "background=palette 4;", ""},
        {"background:var(--a)", "",
         "13 'var(--a)' is no value of 'background'; 'var()' is not supported\n"},
        {"background:url(a;b.png) #fff no-repeat 0 50%", "background=#ffffff;",
         "13 'url(a;b.png)' has no effect as a value of 'background'\n"},
        {"background:red;background:none", "", ""},
        {"background:red;background:rad", "background=palette 1;",
         "28 'rad' is no value of 'background'; did you mean 'red'?\n"},
        {"color:red;background-color:currentColor", "colour=palette 1;background=palette 1;", ""},
    });
}

TEST(CssValues, WordsOfOtherLayoutsStandInTheFlow) {
    check({
        {"display:block", "display=1;", ""},
        {"display:FLEX", "display=1;", "10 'FLEX' has no effect as a value of 'display'\n"},
        {"display:block;display:inline-block", "",
         "24 'inline-block' has no effect as a value of 'display'\n"},
        {"display:none;display:no", "display=0;", "23 'no' is no value of 'display'\n"},
        {"position:absolute;float:left", "",
         "2 'position' has no effect\n20 'float' has no effect\n"},
        {"vertical-align:middle;vertical-align:super", "",
         "39 'super' has no effect as a value of 'vertical-align'\n"},
    });
}

TEST(CssValues, TextIsAsItsPropertiesSay) {
    check({
        {"font-weight:600;font-style:oblique", "weight=600;italic=1;", ""},
        {"font-weight:300", "weight=300;", ""},
        {"font-weight:0", "", "14 '0' is no value of 'font-weight'\n"},
        {"text-align:center;text-indent:2em", "align=2;indent=4;", ""},
        {"white-space:pre-wrap;overflow-wrap:anywhere;word-break:keep-all",
         "white-space=3;wrap=1;word-break=1;", ""},
        {"tab-size:4", "tab=4;", ""},
        {"text-decoration:underline line-through", "drawn=underlinedstruck;", ""},
        {"text-decoration:dotted underline red", "drawn=underlined;",
         "18 'dotted' has no effect as a value of 'text-decoration'\n"
         "35 'red' has no effect as a value of 'text-decoration'\n"},
        {"text-decoration:underline;text-decoration:none", "", ""},
        {"text-decoration-line:underline none", "",
         "23 'underline none' is no value of 'text-decoration-line'\n"},
        {"list-style:inside '- '", "marker=11- ;marker-position=1;", ""},
        {"list-style:square none", "marker=3;", ""},
        {"list-style:none", "marker=0;", ""},
        {"list-style:none none none", "", "13 'none none none' is no value of 'list-style'\n"},
        {"list-style-type:\"\\2192\\ \"", "marker=11\xE2\x86\x92 ;", ""},
    });
}

TEST(CssValues, DefaultsAreForEveryProperty) {
    check({
        {"margin:1;margin:initial", "", ""},
        {"margin:1;margin-left:UNSET", "margin-right=1;margin-top=1;margin-bottom=1;", ""},
        {"color:red;color:inherit", "", ""},
        {"border:initial solid", "", "9 'initial solid' is no value of 'border'\n"},
        {"color:", "", "2 missing value of 'color'\n"},
        {"color:red;color:!important", "colour=palette 1;", "12 missing value of 'color'\n"},
        {"color:red ! important;color:blue", "colour=palette 1;", ""},
        {"color:red !imp", "", "8 'red !imp' is no value of 'color'\n"},
    });
}

}  // namespace
}  // namespace galley::web

#include <gtest/gtest.h>

#include <set>

#include "tests/web/css/Tree.h"
#include "tests/web/css/describe.h"
#include "web/defaultSheet.h"

namespace galley::web {
namespace {

/// Computes the style of the element with the identifier `x`.
std::string styleOf(std::string const& defaults, std::vector<std::string> const& authors,
                    std::string const& markup, std::vector<Problem>& problems) {
    Sheet const defaultSheet = parsed(defaults);
    std::vector<Sheet> sheets;
    for (std::string const& author : authors) sheets.push_back(parsed(author));
    std::vector<Sheet const*> pointers;
    for (Sheet const& sheet : sheets) pointers.push_back(&sheet);
    Cascade cascade(defaultSheet, pointers, Media(), problems);
    Tree tree(markup);
    tree.styleWith(cascade);
    return describe(*tree.byId("x").style);
}

std::string styleOf(std::string const& defaults, std::vector<std::string> const& authors,
                    std::string const& markup) {
    std::vector<Problem> problems;
    return styleOf(defaults, authors, markup, problems);
}

TEST(Cascade, LaterAndMoreSpecificDeclarationsComeBeforeOthers) {
    struct Case {
        std::string defaults;
        std::vector<std::string> authors;
        std::string attributes;
        int tab;
    };
    for (Case const& c : std::initializer_list<Case>{
             {"", {"p{tab-size:1}p{tab-size:2}"}, "", 2},
             {"", {"p{tab-size:1}", "p{tab-size:2}"}, "", 2},
             {"", {"p.a{tab-size:1}", "p{tab-size:2}"}, "", 1},
             {"", {"#x{tab-size:1}.a.a.a.a.a.a.a.a.a.a.a{tab-size:2}"}, "", 1},
             {"", {".a{tab-size:1}div p{tab-size:2}"}, "", 1},
             {"", {"p:first-child{tab-size:1}p{tab-size:2}"}, "", 1},
             {"", {"div p{tab-size:1}p{tab-size:2}"}, "", 1},
             {"", {"*{tab-size:1}p{tab-size:2}*{tab-size:3}"}, "", 2},
             {"", {"p,#x{tab-size:1}.a{tab-size:2}"}, "", 1},
             {"#x{tab-size:1}", {"*{tab-size:2}"}, "", 2},
             {"p{tab-size:1!important}",
              {"p{tab-size:2!important}"},
              "style=\"tab-size:3!important\"",
              1},
             {"", {"p{tab-size:1!important}#x{tab-size:2}"}, "style=\"tab-size:3\"", 1},
             {"", {"#x{tab-size:1!important}"}, "style=\"tab-size:3!important\"", 3},
             {"", {"p{tab-size:1!important}#x{tab-size:2!important}"}, "", 2},
             {"", {"#x{tab-size:1}"}, "style=\"tab-size:3\"", 3},
             {"#x{tab-size:1}", {}, "tab-size=\"4\"", 4},
             {"#x{tab-size:1!important}", {}, "tab-size=\"4\"", 1},
             {"", {"*{tab-size:1}"}, "tab-size=\"4\"", 1},
             {"", {"p{tab-size:1!important;tab-size:2}"}, "", 1},
         }) {
        std::string const markup = "<div><p id=\"x\" class=\"a\" " + c.attributes + "/></div>";
        EXPECT_EQ(styleOf(c.defaults, c.authors, markup), "tab=" + std::to_string(c.tab) + ";")
            << c.defaults << " " << testing::PrintToString(c.authors) << " " << c.attributes;
    }
}

TEST(Cascade, HandsDownWhatIsInherited) {
    struct Case {
        std::string sheet;
        std::string style;
    };
    for (Case const& c : std::initializer_list<Case>{
             {"div{color:red;margin:1}", "colour=palette 1;"},
             {"div{margin-left:1}p{margin:inherit}", "margin-left=1;"},
             {"div{color:red}p{color:initial}", ""},
             {"div{color:red;margin:1}p{color:blue;color:unset;margin:unset}", "colour=palette 1;"},
             {"div{list-style:inside square}p{list-style:unset}", "marker=3;marker-position=1;"},
             {"div{color:red}p{color:currentcolor}", "colour=palette 1;"},
             {"div{color:red;border-left:solid}p{color:blue;border-left:inherit}",
              "colour=palette 4;border-left=solid/thin/palette 4;"},
             {"div{border-left:none thick}p{border-left-width:inherit;border-left-style:solid}",
              "border-left=solid/thick/terminal;"},
             {"div{border:solid}p{border-color:lime;border:inherit;border-left-color:red}",
              "border-left=solid/thin/palette 1;border-right=solid/thin/terminal;"
              "border-top=solid/thin/terminal;border-bottom=solid/thin/terminal;"},
             {"div{text-decoration:underline}p{text-decoration:none}", "drawn=underlined;"},
             {"div{text-decoration:underline}p{text-decoration:line-through}",
              "drawn=underlinedstruck;"},
             {"p{font-weight:lighter}", "weight=100;"},
             {"div{font-weight:900}p{font-weight:lighter}", "weight=700;"},
             {"div{font-weight:bold}p{font-weight:bolder}", "weight=900;"},
             {"div{font-weight:bold}p{font-weight:lighter}", ""},
             {"div{font-weight:lighter}p{font-weight:bolder}", ""},
             {"div{font-weight:bolder}", "weight=700;"},
         }) {
        EXPECT_EQ(styleOf("", {c.sheet}, "<div><p id=\"x\"/></div>"), c.style) << c.sheet;
    }
}

TEST(Cascade, TakesAttributesForDeclarations) {
    struct Case {
        std::string element;
        std::string style;
        std::string problems;
    };
    for (Case const& c : std::initializer_list<Case>{
             {"<td id=\"x\" width=\"20\" color=\"red\"/>", "colour=palette 1;width=20;", ""},
             {"<p id=\"x\" margin=\"1 0\" margin-left=\"2\"/>",
              "margin-left=2;margin-top=1;margin-bottom=1;", ""},
             {"<p id=\"x\" hidden=\"\"/>", "display=0;", ""},
             {"<p id=\"x\" color=\"rad\"/>", "",
              "17 'rad' is no value of 'color'; did you mean 'red'?\n"},
             {"<p id=\"x\" color=\"\"/>", "", "17 '' is no value of 'color'\n"},
             {"<p id=\"x\" color=\"red !important\"/>", "",
              "17 'red !important' is no value of 'color'\n"},
             {"<p id=\"x\" Color=\"red\" colour=\"red\"/>", "",
              "10 unknown attribute 'Color'; did you mean 'color'?\n22 unknown attribute 'colour'; "
              "did you mean 'color'?\n"},
             {"<p id=\"x\" style=\" colour:red;color:red\"/>", "colour=palette 1;",
              "18 unknown property 'colour'; did you mean 'color'?\n"},
             {"<p id=\"x\" style=\"font:x\"><b style=\"color:a;font-size:1em\"/></p>", "",
              "17 'font' has no effect, nor has anything else about fonts and line heights\n41 'a' "
              "is no value of 'color'\n"},
             {"<p id=\"x\" style=\"color:a\"><b style=\"color:a\"/></p>", "",
              "23 'a' is no value of 'color'\n42 'a' is no value of 'color'\n"},
             {"<img id=\"x\" alt=\"a\" src=\"b\"/>", "", ""},
             {"<col id=\"x\" span=\"2\"/>", "", ""},
             {"<p id=\"x\" alt=\"a\"/>", "", "10 unknown attribute 'alt'\n"},
             {"<p id=\"x\" aria-label=\"a\" data-x=\"b\" xml:lang=\"en\" href=\"c\" "
              "scope=\"row\" rel=\"x\"/>",
              "", ""},
             {"<ol id=\"x\" type=\"I\" start=\"3\"/>", "marker=9;", ""},
             {"<ul id=\"x\" type=\"i\"/>", "marker=8;", ""},
             {"<ul id=\"x\" type=\"x\"/>", "", "17 'x' is no value of 'type'\n"},
             {"<a id=\"x\" href=\"b\"/>", "drawn=underlined;", ""},
             {"<p id=\"x\" type=\"a\"/>", "", ""},
         }) {
        std::vector<Problem> problems;
        EXPECT_EQ(styleOf("", {}, c.element, problems), c.style) << c.element;
        EXPECT_EQ(textOf(problems), c.problems) << c.element;
    }
}

TEST(Cascade, SharesStylesOfElementsThatNothingTellsApart) {
    Sheet const sheet = parsed(".a p{color:red}p:nth-child(2n){margin:1}#y{color:blue}");
    Sheet const* const sheets[] = {&sheet};
    std::vector<Problem> problems;
    Cascade cascade(Sheet(), sheets, Media(), problems);
    Tree tree(
        "<div><p/><p/><p id=\"x\"/><p/><p id=\"y\"/>"
        "<b class=\"c\"/><b/><b style=\"width:1\"/><b style=\"width:1\"/></div>");
    tree.styleWith(cascade);
    std::vector<Style const*> styles;
    for (Element const& element : tree.elements()) styles.push_back(element.style);
    EXPECT_NE(styles[1], styles[2]);
    EXPECT_EQ(styles[1], styles[3]) << "no rule asks for x";
    EXPECT_EQ(styles[2], styles[4]);
    EXPECT_EQ(styles[8], styles[9]);
    EXPECT_EQ(std::set(styles.begin(), styles.end()).size(), 7U);
}

TEST(Cascade, TellsEqualStylesOfDifferentElementsApart) {
    EXPECT_EQ(styleOf("", {".a p{color:red}"}, "<i><b/><b class=\"a\"><p id=\"x\"/></b></i>"),
              "colour=palette 1;");
    EXPECT_EQ(styleOf("", {"b:last-child p{color:red}"}, "<i><b><p/></b><b><p id=\"x\"/></b></i>"),
              "colour=palette 1;");
}

TEST(Cascade, KeepsBoundedMemoryForADocumentWithoutAnEnd) {
    std::vector<Problem> problems;
    Cascade cascade(Sheet(), {}, Media(), problems);
    Tree open("<div style=\"color:red\"/>");
    open.styleWith(cascade);
    Style const* const inUse[] = {open.elements().front().style};
    for (int i = 0; i < 20'000; ++i) {
        std::string const declaration = "margin-left:" + std::to_string(i);
        Attribute const attribute{"style", declaration, 0, 0};
        Element const element{&open.elements().front(), "p", {&attribute, 1}, 1, false, nullptr};
        Style const* const style = cascade.styleOf(element);
        ASSERT_EQ(style->margin.left, (Length{Length::Kind::cells, i}));
        ASSERT_EQ(style->colour, Colour::ofPalette(1));
        cascade.letGo(inUse);
        ASSERT_EQ(cascade.styleOf(element)->margin.left, (Length{Length::Kind::cells, i}));
        ASSERT_LE(cascade.size(), 4096U);
    }
}

TEST(DefaultSheet, IsUnderstood) {
    std::vector<Problem> problems;
    Sheet const sheet = Sheet::parse(defaultSheetText(), problems);
    EXPECT_EQ(textOf(problems), "");
    Cascade cascade(sheet, {}, Media(), problems);
    Tree tree("<ul><li id=\"x\"/></ul>");
    tree.styleWith(cascade);
    EXPECT_EQ(tree.byId("x").style->display, Display::listItem);
}

}  // namespace
}  // namespace galley::web

#include "tests/galley/check/findings.h"
#include "tests/support/text.h"

namespace galley {
namespace {

std::string reportOnSheet(std::string const& css) { return report({css, true}); }

/// A page that shows every element that a rule may be for.
std::string pageUnder(std::string const& css) {
    CLI::XML::StyleList rules;
    EXPECT_EQ(outcome(CLI::XML::parseCss(rules, asString(css))), "ok") << css;
    String page;
    String const markup(
        "<h1>one <i>two </i>three</h1><div>four<p>five <b>six</b></p></div>"
        "<table><tr><th>seven</th><td>eight</td></tr></table>");
    EXPECT_EQ(outcome(CLI::XML::xmlToText(page, markup, rules, 30)), "ok");
    return shown(page);
}

/// A sheet, what is said about it, and another one to the same effect, if it is to be looked at.
struct Case {
    std::string css;
    std::string report;
    char const* sameAs = nullptr;
};

void check(std::initializer_list<Case> cases) {
    for (Case const& c : cases) {
        EXPECT_EQ(reportOnSheet(c.css), c.report) << c.css;
        if (c.sameAs != nullptr) {
            EXPECT_EQ(pageUnder(c.css), pageUnder(c.sameAs)) << c.css;
        }
    }
}

TEST(CheckSheet, WarnsAboutWhatHasNoEffect) {
    check({
        {"p { colour: red; }", "1:5 warning: 'colour' is no property; did you mean 'color'?\n",
         "p { }"},
        {"p{\n\tMargin-Left:3;width:40;}",
         "2:2 warning: 'Margin-Left' is no property; did you mean 'margin-left'?\n"
         "2:16 warning: 'width' has no effect\n",
         "p { }"},
        {"p { display: none; }",
         "1:5 warning: 'display' has no effect in a sheet, only as an attribute\n", "p { }"},
        {"p{color:red;color:blue;color:cyan;}",
         "1:3 warning: a later 'color' replaces this one\n"
         "1:13 warning: a later 'color' replaces this one\n",
         "p{color:cyan;}"},
        {"h1 { color: red; }\nb { color: red; }\nh1 { margin: 1; }",
         "1:1 warning: a later rule for 'h1' replaces this one, all of it\n",
         "b { color: red; } h1 { margin: 1; }"},
        {"p{color:red;}p{color:rad;}p{}",
         "1:1 warning: a later rule for 'p' replaces this one, all of it\n"
         "1:14 warning: a later rule for 'p' replaces this one, all of it\n"
         "1:22 warning: 'rad' is no colour; did you mean 'red'?\n",
         "p { }"},
    });
}

TEST(CheckSheet, WarnsAboutSelectorsOfNothing) {
    check({
        {"P { color: red; }", "1:1 warning: no element is named 'P'; did you mean 'p'?\n", ""},
        {" stong{color:red;}", "1:2 warning: no element is named 'stong'; did you mean 'strong'?\n",
         ""},
        {"h4 { color: red; }", "1:1 warning: no element is named 'h4'\n", ""},
        {"html { background-color: red; }\nbody { margin: 3; }",
         "1:1 warning: no element is named 'html'\n2:1 warning: no element is named 'body'\n", ""},
        {".note { color: red; }",
         "1:1 warning: no element is named '.note'; a selector is one name\n", ""},
        {"h1,h2 { color: red; }",
         "1:1 warning: no element is named 'h1,h2'; a selector is one name\n", ""},
        {"h4{color:rad;}h4{}",
         "1:1 warning: no element is named 'h4'\n"
         "1:10 warning: 'rad' is no colour; did you mean 'red'?\n"
         "1:15 warning: no element is named 'h4'\n"},
    });
}

TEST(CheckSheet, WarnsAboutValues) {
    check({
        {"p { color: magenta; background-color: Red; border-color: #fff; }",
         "1:12 warning: 'magenta' is no colour; did you mean 'mangenta'?\n"
         "1:39 warning: 'Red' is no colour; did you mean 'red'?\n"
         "1:58 warning: '#fff' is no colour; 'default' is the terminal's own\n",
         "p { color: default; background-color: default; border-color: default; }"},
        {"b { font-style: heavy; } i { font-style: italics; }",
         "1:17 warning: 'heavy' is no font style and counts as 'normal'\n"
         "1:42 warning: 'italics' is no font style; did you mean 'italic'?\n",
         "b { font-style: normal; } i { font-style: normal; }"},
        {"p { margin: auto; padding: 1em; border-width: thin; margin-left: +1.5; }",
         "1:13 warning: 'auto' is no number and counts as 0\n"
         "1:28 warning: '1em' counts as 1; 'em' is ignored\n"
         "1:47 warning: 'thin' is no number and counts as 0\n"
         "1:66 warning: '+1.5' counts as +1; '.5' is ignored\n",
         "p { margin: 0; padding: 1; border-width: 0; margin-left: 1; }"},
        {"p { margin: -; padding: --1; }",
         "1:13 warning: '-' is no number and counts as 0\n"
         "1:25 warning: '--1' is no number and counts as 0\n",
         "p { }"},
        {"p { border-width: 1; border-style: solid; border-left-style: none; }",
         "1:36 warning: 'solid' is the text to draw, no kind of border\n"
         "1:62 warning: 'none' is the text to draw, no kind of border\n"},
    });
    EXPECT_NE(pageUnder("p { border-width: 1; border-style: solid; }").find("solid"),
              std::string::npos);
}

TEST(CheckSheet, TakesAFormFeedForAByteOfAToken) {
    check({
        {"p\f{ color: red; }",
         "1:2 warning: a form feed is no white space in a sheet, but a part of 'p<U+000C>'\n", ""},
        {"p { margin: 1;\fcolor: red; }",
         "1:15 warning: a form feed is no white space in a sheet, but a part of '<U+000C>color'\n",
         "p { margin: 1; }"},
        {"p { color:\fred; }",
         "1:11 warning: a form feed is no white space in a sheet, but a part of '<U+000C>red'\n",
         "p { color: default; }"},
        {"\fp{}",
         "1:1 warning: a form feed is no white space in a sheet, but a part of '<U+000C>p'\n", ""},
    });
}

TEST(CheckSheet, SaysNothingAboutWhatHasItsEffect) {
    check({
        {"", ""},
        {" \v\n", ""},
        {"p { color: default; border-style: default; font-style: normal; margin: -1; }", ""},
        {"p { border-left-style: |; border-corner-style: +; padding: 007; }", ""},
        {"strong { font-style: mark; } mark { color: mangenta; } h3 { }", ""},
    });
}

TEST(CheckSheet, FindsAllErrorsBehindEachOther) {
    check({
        {"p { color red; }\nb { colour: red; }\nh1 { color: red }\nh2 { margin: ; }\ni",
         "1:11 error: Expecting ':'\n"
         "2:5 warning: 'colour' is no property; did you mean 'color'?\n"
         "3:17 error: Expecting ';'\n"
         "4:14 error: Expecting value\n"
         "5:2 error: Expecting '{'\n"},
        // What was read of a rule is looked at, but it replaces none.
        {"p { color: red; }\np { width: 1; :x; }\n/* p */\nb {}",
         "2:5 warning: 'width' has no effect\n"
         "2:15 error: Expecting '}'\n"
         "3:4 error: Expecting '{'\n"},
        {"p { :;\n} b; }\n{}\nu {}",
         "1:5 error: Expecting '}'\n"
         "2:6 error: Expecting '{'\n"
         "3:1 error: Expecting '{'\n"
         "4:1 warning: no element is named 'u'\n"},
        {"p { width: 1; x }{}\nP {}",
         "1:5 warning: 'width' has no effect\n"
         "1:17 error: Expecting ':'\n"
         "1:18 error: Expecting '{'\n"
         "2:1 warning: no element is named 'P'; did you mean 'p'?\n"},
        {"p { a: b;", "1:5 warning: 'a' has no effect\n1:10 error: Expecting '}'\n"},
    });
}

TEST(CheckSheet, KeepsItsMessagesShort) {
    std::string const accents = "\xc3\xa9\xc3\xa9\xc3\xa9\xc3\xa9\xc3\xa9";
    std::string const name = "x" + accents + accents + accents + accents + accents;
    EXPECT_EQ(reportOnSheet("p{" + name + ":1;}"),
              "1:3 warning: '" + name.substr(0, 39) + "...' has no effect\n");
}

}  // namespace
}  // namespace galley

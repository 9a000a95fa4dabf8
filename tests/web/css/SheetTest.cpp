#include <gtest/gtest.h>

#include "tests/web/css/Tree.h"
#include "tests/web/css/describe.h"
#include "web/css/parseSelectors.h"

namespace galley::web {
namespace {

/// What three elements have of a sheet, and what is said about it.
std::string stylesBy(Sheet const& sheet) {
    std::vector<Problem> none;
    Sheet const* const sheets[] = {&sheet};
    Cascade cascade(Sheet(), sheets, Media(), none);
    Tree tree("<p><b class=\"a\"/><i id=\"x\"/></p>");
    tree.styleWith(cascade);
    std::string text;
    for (Element const& element : tree.elements()) {
        text.append(element.name).append(":").append(describe(*element.style)).append(" ");
    }
    return text;
}

std::string stylesBy(std::string_view sheet) { return stylesBy(parsed(sheet)); }

struct Case {
    std::string sheet;
    std::string problems;
    /// A sheet to the same effect.
    std::string sameAs;
};

void check(std::initializer_list<Case> cases) {
    for (Case const& c : cases) {
        std::vector<Problem> problems;
        Sheet const sheet = Sheet::parse(c.sheet, problems);
        EXPECT_EQ(textOf(problems), c.problems) << c.sheet;
        EXPECT_EQ(stylesBy(sheet), stylesBy(c.sameAs)) << c.sheet;
        for (Problem const& problem : problems) {
            EXPECT_EQ(problem.kind, Problem::Kind::warning) << c.sheet;
        }
    }
}

TEST(CssSheet, IsReadAsTokens) {
    check({
        {"/* p{ */p{color:red}/**/", "", "p{color:red}"},
        {"\xEF\xBB\xBFp{color:red}", "", "p{color:red}"},
        {"<!-- p{color:red} -->", "", "p{color:red}"},
        {"@charset \"utf-8\";p{color:red}", "", "p{color:red}"},
        {"P{color:red}", "", ""},
        {"p{COLOR:RED}", "", "p{color:red}"},
        {"\\70{c\\6f lor:r\\65\r\nd}", "", "p{color:red}"},
        {".\\61{color:red}", "", ".a{color:red}"},
        {"p{border-left:\"a\\\nb\"}", "", "p{border-left:\"ab\"}"},
        {"p{border-left:'\\110000\\d800'}", "", "p{border-left:'\xEF\xBF\xBD\xEF\xBF\xBD'}"},
        {"p{border-left:'\\7ff\\2502\\e9\\1F600'}", "",
         "p{border-left:'\xDF\xBF\xE2\x94\x82\xC3\xA9\xF0\x9F\x98\x80'}"},
        {".\xC3\xA9,b{color:red}", "", "b{color:red}"},
        {"p{margin-left:1/**/}", "", "p{margin-left:1}"},
        {"p{margin-left:1/**/px}", "14 '1px' is no value of 'margin-left'\n", ""},
    });
}

TEST(CssSheet, LeavesOutWhatIsWrong) {
    check({
        {"p{colour:red;color:blue}", "2 unknown property 'colour'; did you mean 'color'?\n",
         "p{color:blue}"},
        {"p{color;color:blue}", "2 missing ':' behind 'color'\n", "p{color:blue}"},
        {"p{color red;color:blue}", "2 missing ':' behind 'color'\n", "p{color:blue}"},
        {"p{;;1px:2;color:blue}", "4 '1px:2' is no declaration\n", "p{color:blue}"},
        {"p{color:red;color:(;color:blue;)}", "18 '(;color:blue;)' is no value of 'color'\n",
         "p{color:red}"},
        {"p{color:[;}];margin:1}", "8 '[;}]' is no value of 'color'\n", "p{margin:1}"},
        {"p{border-left:'|\n;color:blue}", "14 ''|' is no value of 'border-left'\n",
         "p{color:blue}"},
        {"p{b{color:red}color:blue}", "2 'b{color:red}' is no declaration\n", "p{color:blue}"},
        {"p{a:hover{color:red}color:blue}", "2 'a:hover{color:red}' is no declaration\n",
         "p{color:blue}"},
        {"p{@x{color:red}color:blue}", "2 '@x{color:red}' is no declaration\n", "p{color:blue}"},
        {"}p{color:red}b{color:blue}", "0 '}p' is no selector\n", "b{color:blue}"},
        {"p,{color:red}", "2 missing selector\n", ""},
        {"i{}{color:red}b{color:blue}", "3 missing selector\n", "b{color:blue}"},
        {"p, ,b{color:red}", "3 missing selector\n", ""},
        {"p p", "0 missing '{' behind 'p p'\n", ""},
        {"p{color:red", "1 missing '}' behind '{'\n", "p{color:red}"},
        {"p{color:rgb(1,2,3", "1 missing '}' behind '{'\n", "p{color:rgb(1,2,3)}"},
        {"p{color:red}/*p{color:blue}", "12 missing '*/' behind '/*'\n", "p{color:red}"},
        {"p{color:0123456789012345678901234567890123456789\xC3\xA9}",
         "8 '0123456789012345678901234567890123456789...' is no value of 'color'; unit 'é' is not "
         "supported\n",
         ""},
        {"p{--a:1;color:HSL(1 2% 3%)}",
         "2 '--a' has no effect\n14 'HSL(1 2% 3%)' is no value of 'color'; 'HSL()' is not "
         "supported\n",
         ""},
        {"p{font:12px x;line-height:2;FONT-SIZE:1em}b{font-family:x}",
         "2 'font' has no effect, nor has anything else about fonts and line heights\n", ""},
    });
}

TEST(CssSheet, SkipsAtRulesThatItDoesNotKnow) {
    check({
        {"@import 'x';p{color:red}", "0 '@import' is not supported\n", "p{color:red}"},
        {"@font-face{p{color:blue}}p{color:red}", "0 '@font-face' is not supported\n",
         "p{color:red}"},
        {"@media;p{color:red}", "0 missing '{' behind '@media'\n", "p{color:red}"},
        {"@media screen{p{color:red}@x;b{color:blue}}i{color:lime}", "26 unknown at-rule '@x'\n",
         "p{color:red}b{color:blue}i{color:lime}"},
        {"@media print{p{colour:red}}", "15 unknown property 'colour'; did you mean 'color'?\n",
         ""},
        {"@media screen{@media print{p{color:red}}b{color:blue}}", "", "b{color:blue}"},
        {"@media print{@media screen{p{color:red}}}", "", ""},
        {"@media all{p{color:red}", "10 missing '}' behind '{'\n", "p{color:red}"},
    });
}

TEST(CssSheet, IsReadToSomeDepth) {
    std::string const open = "@media all{";
    std::string deep;
    for (int i = 0; i < 100'000; ++i) deep += open;
    std::vector<Problem> problems;
    Sheet::parse(deep + "p{color:red}", problems);
    ASSERT_EQ(problems.size(), 33U);
    EXPECT_EQ(problems.back().message, "'@media' is too deep inside of others");
    EXPECT_EQ(stylesBy("p{margin-left:" + std::string(100'000, '(') + "}b{color:red}"),
              stylesBy(""));
}

TEST(CssSheet, ReadsLongSheets) {
    constexpr int s_count = 50'000;
    std::string sheet = "p{";
    for (int i = 0; i < s_count; ++i) sheet += "color:red;";
    sheet += "}";
    for (int i = 0; i < s_count; ++i) sheet += "@media all{p{}}";
    EXPECT_EQ(parsed(sheet).rulesFor({}).size(), std::size_t{s_count} + 1);
}

/// A selector, and the identifiers of the elements that it matches.
struct Match {
    std::string selector;
    std::string ids;
};

std::string matchesOf(std::string const& selector) {
    Sheet const sheet = parsed(selector + "{color:red}");
    Tree tree(
        "<ul id=\"u\" class=\"a\"><li id=\"1\"><p id=\"p\" class=\"a b\"/></li><li id=\"2\" "
        "class=\"a\"/>"
        "<li id=\"3\"><div id=\"d\"><p id=\"q\"/><b id=\"b\"/></div></li><li id=\"4\"/></ul>");
    std::string ids;
    std::vector<Rule const*> const rules = sheet.rulesFor({});
    for (Element const& element : tree.elements()) {
        for (Rule const* const rule : rules) {
            if (rule->selectors.front().matches(element)) ids += valueOf(element, "id");
        }
    }
    return ids;
}

TEST(CssSelectors, MatchWhatTheyAskFor) {
    for (Match const& m : std::initializer_list<Match>{
             {"li", "1234"},
             {"*", "u1p23dqb4"},
             {".a", "up2"},
             {".a.b", "p"},
             {"li.a", "2"},
             {"*.b", "p"},
             {"#q", "q"},
             {"p#q,li", "q"},
             {"ul p", "pq"},
             {"ul>p", ""},
             {"li > p", "p"},
             {"ul > li p", "pq"},
             {"ul li>div>p", "q"},
             {"li>* p", "q"},
             {"ul>li>p", "p"},
             {"li ul p", ""},
             {":first-child", "u1pdq"},
             {"li:last-child", "4"},
             {"li:LAST-CHILD", "4"},
             {"div :last-child", "b"},
             {"li:nth-child(2)", "2"},
             {"li:nth-child(odd)", "13"},
             {"li:nth-child( 2n )", "24"},
             {"li:nth-child(2n+1)", "13"},
             {"li:nth-child(2n - 1)", "13"},
             {"li:nth-child(-n+2)", "12"},
             {"li:nth-child(n+3)", "34"},
             {"li:nth-child(-2N+3)", "13"},
             {"li:nth-child(+3)", "3"},
             {"li:nth-child(99999999999n+1)", "1"},
             {"li:nth-child(0n+0)", ""},
         }) {
        EXPECT_EQ(matchesOf(m.selector), m.ids) << m.selector;
    }
}

TEST(CssSelectors, OneThatIsWrongTakesItsRuleAlong) {
    for (std::string const wrong : {"b >", "> b", "b > > i", ".1", "#1", "b:", "b:hoover", "b::",
                                    "b:nth-child()", ". a", "b:nth-child(2n+)", "b:nth-child(n 2)",
                                    "b:nth-child(x)", "b:first-child()", "b!", "a|b", "b*"}) {
        std::vector<Problem> problems;
        Sheet const sheet = Sheet::parse("i," + wrong + "{color:red}", problems);
        EXPECT_EQ(textOf(problems), "2 '" + wrong + "' is no selector\n");
        EXPECT_TRUE(sheet.rulesFor({}).empty()) << wrong;
    }
}

TEST(CssSelectors, OneThatIsOfAnotherKindIsLeftOutAlone) {
    for (std::string const unknown : {"b:hover", "b::before", "b + i", "b~i", "b[title=\"a,b\"]",
                                      "b:not(.a, .b)", "b::-webkit-x"}) {
        std::vector<Problem> problems;
        Sheet const sheet = Sheet::parse("i," + unknown + "{color:red}", problems);
        EXPECT_EQ(textOf(problems), "2 selector '" + unknown + "' has no effect\n");
        ASSERT_EQ(sheet.rulesFor({}).size(), 1U) << unknown;
        EXPECT_EQ(sheet.rulesFor({}).front()->selectors.size(), 1U) << unknown;
    }
}

TEST(CssSelectors, AskForTheLastChildWhereverTheySaySo) {
    EXPECT_TRUE(parsed("@media print{p, ul :last-child > b{color:red}}").asksForLastChild());
    EXPECT_FALSE(parsed("p:first-child{color:red} p:nth-child(2){}").asksForLastChild());
}

/// What closes all that is open at the end of a text.
std::string closersOf(std::string const& text) {
    std::string closers;
    for (std::size_t i = 0; i < text.length(); ++i) {
        std::string const ahead = text.substr(i, 2);
        std::string const end = ahead == "/*" ? "*/" : ahead[0] == '"' ? "\"" : "";
        if (!end.empty()) {
            i = text.find(end, i + end.length());
            if (i == text.npos) return end + closers;
            i += end.length() - 1;
        } else if (ahead[0] == '{' || ahead[0] == '(') {
            closers.insert(0, ahead[0] == '{' ? "}" : ")");
        } else if (ahead[0] == '}' || ahead[0] == ')') {
            closers.erase(0, 1);
        }
    }
    return closers;
}

TEST(CssSheet, ItsEndClosesWhateverIsOpen) {
    std::string const sheet =
        "@media (min-width: 10ch) { p > b.a, #x { color: rgb(1, 2, 3) !important } }\n"
        "p:nth-child(2n+1) /* c */ { border-left: \"\\2502 \" red; margin: 1 2%; }\n"
        "i { background: url(x) blue } .a { list-style: square inside }";
    for (std::size_t length = 0; length <= sheet.length(); ++length) {
        std::string const cut = sheet.substr(0, length);
        std::vector<Problem> problems;
        Sheet const beginning = Sheet::parse(cut, problems);
        for (Problem const& problem : problems) EXPECT_LT(problem.offset, length) << cut;
        if (cut.ends_with('\\')) continue;
        EXPECT_EQ(stylesBy(beginning), stylesBy(cut + closersOf(cut))) << cut;
    }
}

}  // namespace
}  // namespace galley::web

#include "xml/css/parseCss.h"

#include "tests/support/text.h"

namespace CLI::XML {
namespace {

/// Parses a sheet into a list that holds a rule already; shows the rules, then what happened.
std::string parsed(String const& css) {
    StyleList rules;
    rules.add(ZR::MovePtr<StyleNode>(new StyleNode("former")));
    std::string const result = outcome(parseCss(rules, css));
    std::string listed;
    for (ZRLWPtr<StyleNode> const& rule : rules) {
        EXPECT_EQ(rule->refCount, 1);
        listed += shown(rule->selector) + "{";
        auto const& head = rule->declarations.head;
        for (auto const* n = head.prev; n != &head; n = n->prev) {
            listed += shown(n->key) + "=" + shown(n->value) + ";";
        }
        listed += "} ";
    }
    return listed + result;
}

TEST(StyleSheet, BecomesItsRulesInOrder) {
    expectEach(
        {Row("", "ok"), Row(" \t\v\r\n", "ok"), Row("h1{color:red;}", "h1{color=red;} ok"),
         Row("h1 { color : red ; }", "h1{color=red;} ok"),
         Row("\nh1\v{\r\ncolor\t:\nred\n;\n}\n", "h1{color=red;} ok"),
         Row("h1 {}a{x:1;}a{y:2;}", "h1{} a{x=1;} a{y=2;} ok"),
         Row("h1 { color: red; x:1; color: blue; }", "h1{color=blue;x=1;} ok"),
         Row("/**/{a{:b}:c;}", "/**/{a{=b}:c;} ok"),
         Row("h1,h2{--x:#\xE9;}", "h1,h2{--x=#M-i;} ok"), Row("a\f{\f:\f;}", "a^L{^L=^L;} ok"),
         Row(bytes("\0a\0{\0x\0:\0y\0;}"), "a{x=y;} ok")},
        parsed);
}

TEST(StyleSheet, FailsWithTheLineAndWhatWasExpected) {
    expectEach(
        {Row("h1", "Line 1: Expecting '{'"), Row("h1, h2 { }", "Line 1: Expecting '{'"),
         Row("{ color: red; }", "Line 1: Expecting '{'"),
         Row("a{}\n\n{", "a{} Line 3: Expecting '{'"), Row("h1 { color }", "Line 1: Expecting ':'"),
         Row("a {}\nb { c }", "a{} Line 2: Expecting ':'"),
         Row("h1 { color: ; }", "Line 1: Expecting value"),
         Row("h{x:\n", "Line 2: Expecting value"),
         Row("h1 { color: red }", "Line 1: Expecting ';'"),
         Row("h{x: red", "Line 1: Expecting ';'"), Row("h1 { color: red}", "Line 1: Expecting ';'"),
         Row("h{x:a b; }", "Line 1: Expecting ';'"),
         Row("h1 { color: red;", "Line 1: Expecting '}'"),
         Row("h{ :red; }", "Line 1: Expecting '}'"), Row("h1\r\r\n{\n", "Line 3: Expecting '}'")},
        parsed);
}

TEST(StyleSheet, CutAnywhereKeepsTheCompleteRules) {
    String const sheet = "a{x:1;}b{y:2;z:3;}";
    for (int end = 0; end <= sheet.length(); ++end) {
        std::string const complete = end < 7 ? "" : end < 18 ? "a{x=1;} " : "a{x=1;} b{y=2;z=3;} ";
        bool const isWhole = end == 0 || end == 7 || end == 18;
        std::string const result = parsed(sheet.substring(0, end));
        EXPECT_TRUE(result.starts_with(complete + (isWhole ? "ok" : "Line 1: Expecting "))) << end;
    }
}

}  // namespace
}  // namespace CLI::XML

#include <vector>

#include "tests/support/paint.h"
#include "xml/xml.h"

namespace CLI::XML {
namespace {

/// What a conversion appends, or its message. Checks that the same input gives the same text, that
/// a failure has a message and leaves the output alone, and that no rule is held afterwards.
std::string converted(String const& markup, unsigned width, char const* css = "") {
    Sheet const sheet(css);
    String outputs[] = {"before", "before"};
    std::string result;
    for (String& out : outputs) result = outcome(xmlToText(out, markup, sheet.rules, width));
    for (ZRLWPtr<StyleNode> const& rule : sheet.rules) EXPECT_EQ(rule->refCount, 1);
    EXPECT_EQ(outputs[0], outputs[1]);
    EXPECT_EQ(outputs[0].substring(0, 6), "before");
    EXPECT_NE(result, "");
    String const page = outputs[0].substring(6, outputs[0].length());
    expectWholeRows(page);
    EXPECT_TRUE(result == "ok" || page == "");
    return result == "ok" ? shown(page) : result;
}

TEST(Conversion, AppendsThePageOrFailsWithTheMessageOfTheStage) {
    using Case = std::tuple<String, unsigned, char const*>;
    for (auto const& [markup, width, expected] :
         {Case("", 80, ""), Case("<p></p> <!-- nothing -->", 80, ""),
          Case("<p>hi</p>", 80, "hi$\n"), Case("<p>a b</p>", 0, "a $\nb$\n"),
          Case("<p>a b</p>", 1, "a $\nb$\n"), Case("<p>a b</p>", 2, "a $\nb$\n"),
          Case("<p>a b</p>", 3, "a b$\n"), Case("<p>a b</p>", 0x7FFFFFFF, "a b$\n"),
          Case("<p>a b</p>", 0x80000000, "a b$\n"), Case("<p>a b</p>", 0xFFFFFFFF, "a b$\n"),
          Case("na\xC3\xAFve x", 6, "naM-CM-/ve $\nx$\n"),
          Case(bytes("<![CDATA[a\0b]]>"), 80, "a$\n"),
          Case(bytes("a\0b"), 80, "1: Expecting content"),
          Case("< p>", 80, "1: Expecting element type"),
          Case("<p>hi</p><br/>", 80, "Invalid tag: <br>"),
          Case("<p>hi</p>\n<p>", 80, "Line 2: Missing end tag at the end"),
          Case("<b>hi</i>", 80, "End tag </i> does not match start tag <b>"),
          Case("<p>hi</p><td/>", 80, "Cannot layout 'td' within 'html'")}) {
        EXPECT_EQ(converted(markup, width), expected) << shown(markup) << " at " << width;
    }
}

TEST(Conversion, AppliesTheLastRuleOfAnElement) {
    EXPECT_EQ(converted("<p>a</p><p color=\"red\">b</p>", 80,
                        "html{color:cyan;} p{border-left-width:1;} p{color:blue;}"),
              "^[[0m^[[34ma^[[0m$\n^[[0m^[[31mb^[[0m$\n");
}

TEST(Conversion, AppendsBehindEarlierPages) {
    String out = "<p>hi</p>";
    for (int i = 0; i < 2; ++i) EXPECT_TRUE(xmlToText(out, "<p>ho</p>", StyleList(), 80));
    EXPECT_EQ(out, "<p>hi</p>ho\nho\n");
    EXPECT_TRUE(xmlToText(out, out, StyleList(), 80));
    EXPECT_EQ(out, "<p>hi</p>ho\nho\nhi\nho ho \n");
}

TEST(Conversion, OfATruncatedDocumentRendersOnlyBetweenElements) {
    std::string const document =
        "<?xml version=\"1.0\"?><p margin=\"1\" color=\"red\">x &amp; <b>y</b></p><!-- c -->"
        "<table><tr border-width=\"1\"><td/><td>z<![CDATA[<]]></td></tr></table>";
    std::vector<std::size_t> wholePrefixes = {0};
    for (char const* const end : {"?>", "</p>", "-->", "</table>"}) {
        wholePrefixes.push_back(document.find(end) + std::string(end).length());
    }
    for (unsigned const width : {0U, 1U, 4U, 80U}) {
        std::vector<std::size_t> rendered;
        for (std::size_t length = 0; length <= document.length(); ++length) {
            std::string const result = converted(document.substr(0, length).c_str(), width);
            if (result.empty() || result.ends_with("$\n")) rendered.push_back(length);
        }
        EXPECT_EQ(rendered, wholePrefixes) << width;
    }
}

}  // namespace
}  // namespace CLI::XML

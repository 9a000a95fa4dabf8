#include "tests/support/document.h"
#include "xml/dom/replaceEntities.h"

namespace CLI::XML {
namespace {

/// Compares the shapes of trees, or the messages of failures.
void expectTrees(std::initializer_list<std::pair<String, char const*>> cases) {
    for (auto const& [markup, expected] : cases) {
        Document const document(markup);
        std::string const result = outcome(document.result);
        EXPECT_EQ(result == "ok" ? shape(*document.root) : result, expected) << shown(markup);
    }
}

TEST(RunningText, IsCutIntoWordsThatKeepOneSpace) {
    expectTrees({{"", "html"},
                 {" \t\n\v\f\r <!-- c --> <?pi?> <!DOCTYPE html>", "html"},
                 {"<div> Hello   big\nworld</div>", "html[div['Hello ' 'big ' 'world']]"},
                 {"<p>Hello <b>you</b>!</p>", "html[p['Hello ' b['you'] '!']]"},
                 {"<p>a\t\v\f\r\nb </p> c", "html[p['a ' 'b '] 'c']"},
                 {"<table> <tr>\n<td/> </tr> </table>", "html[table[tr[td]]]"},
                 {"a<!-- -->b<?x?>c", "html['a' 'b' 'c']"},
                 {bytes("<![CDATA[a<b ab\0 c]]>"), "html['a<b ' 'ab']"},
                 {"\xC3\xA9\xA0 x\x85y", "html['M-CM-)M-  ' 'xM-^Ey']"}});
}

TEST(RunningText, IsDecodedAfterCutting) {
    expectTrees({{"x&nbsp;y", "html['x y']"},
                 {"a&lt;b<![CDATA[&lt; &amp;]]>", "html['a<b' '< ' '&']"},
                 {"&copy;", "html['']"},
                 {"&copy; AT&T", "html[' ' 'AT&T']"},
                 {"a &b c;", "html['a ' '&b ' 'c;']"}});
    using Row = std::pair<char const*, char const*>;
    for (auto const& [text, expected] :
         {Row("&nbsp;&amp;&lt;&gt;", " &<>"), Row("1&2;3", "13"), Row("&quot;&apos;&AMP;", ""),
          Row("&amp;lt;", "&lt;"), Row("a;b&", "a;b&"), Row("&a&lt;b", "b"),
          Row("&lt;x&gt", "<x&gt")}) {
        EXPECT_EQ(replaceEntities(text), expected) << text;
    }
}

TEST(Builder, RefusesMalformedDocuments) {
    expectTrees({{"<div>", "Line 1: Missing end tag at the end"},
                 {"<div><p></p>\n\n", "Line 3: Missing end tag at the end"},
                 {"<div></p>", "End tag </p> does not match start tag <div>"},
                 {"<p><b>\n</p></b>", "End tag </p> does not match start tag <b>"},
                 {"<html><div/></html>", "Invalid tag: <html>"},
                 {"<p><span display=\"none\"/></p>", "Invalid tag: <span>"},
                 {"<span", "1: Expecting end tag character '>'"},
                 {"\n< p>", "2: Expecting element type"},
                 {"<p></p", "1: Expecting end tag character '>'"},
                 {"<p>a<![CDATA[]]>", "1: Expecting content"},
                 {"<p><!--", "1: Expecting end tag comment characters '-->'"},
                 {"<p>\n<?", "2: Expecting end tag character '>'"}});
}

TEST(Builder, EndsAtASurplusEndTag) {
    expectTrees({{"<div>a</div></div><div>b</div>", "html[div['a']]"},
                 {"</ nothing here is read <<<", "html"}});
}

TEST(Builder, FillsAGivenElementUpToItsEndTag) {
    using Row = std::pair<char const*, char const*>;
    for (auto const& [markup, expected] :
         {Row("a<b/></td>rest", "ok"), Row("a<b/>", "Line 1: Missing end tag at the end")}) {
        PullParser parser(markup);
        ZRLWPtr<DomElement> cell = ZR::MovePtr<DomElement>(new DomElement("td", DomNode::Block));
        EXPECT_EQ(outcome(buildDomTree(cell, false, parser, StyleList())), expected);
        EXPECT_EQ(shape(*cell), "td['a' b]");
        EXPECT_EQ(parser.position, 5);
    }
}

TEST(Builder, KeepsWhatWasCompleteBeforeAFailure) {
    EXPECT_EQ(shape(*Document("a<p/><div>b<b>c</b></p>").root), "html['a' p]");
}

TEST(Builder, LetsTheLastOfEqualAttributesCount) {
    Document const document("<td class=\"a\" x=\"&quot;\" class=\"b\"/>");
    DomElement const& cell = *findElement(*document.root, "td");
    String value;
    EXPECT_TRUE(cell.getStyle("class", value));
    EXPECT_EQ(value, "b");
    EXPECT_EQ(cell.attributes.count, 2U);
}

TEST(Builder, AttachesTheLastRuleThatNamesTheElement) {
    Document document("<p><b/></p><b/><i/>",
                      "b{color:red;} html{x:1;} b{margin:1;} B{y:2;} b,i{z:3;} *{w:4;}");
    ZRLWPtr<StyleNode> const& rule = findElement(*document.root, "b")->styleNode;
    String value;
    EXPECT_TRUE(rule->declarations.get("margin", value) && rule->declarations.count == 1);
    EXPECT_EQ(rule->refCount, 3);
    EXPECT_FALSE(document.root->styleNode || findElement(*document.root, "i")->styleNode);
    document.root = ZRLWPtr<DomElement>();
    for (ZRLWPtr<StyleNode> const& listed : document.sheet.rules) EXPECT_EQ(listed->refCount, 1);
}

}  // namespace
}  // namespace CLI::XML

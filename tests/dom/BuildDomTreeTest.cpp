#include "tests/support/document.h"
#include "xml/dom/vocabulary.h"

namespace CLI::XML {
namespace {

/// The shape of the tree, or the message of a failure.
std::string treeOf(String const& markup) {
    Document const document(markup);
    std::string const result = outcome(document.result);
    return result == "ok" ? shape(*document.root) : result;
}

TEST(RunningText, IsCutIntoWordsThatKeepOneSpace) {
    expectEach({Row("", "html"), Row(" \t\n\v\f\r <!-- c --> <?pi?> <!DOCTYPE html>", "html"),
                Row("<div> Hello   big\nworld</div>", "html[div['Hello ' 'big ' 'world']]"),
                Row("<p>Hello <b>you</b>!</p>", "html[p['Hello ' b['you'] '!']]"),
                Row("<p>a\t\v\f\r\nb </p> c", "html[p['a ' 'b '] 'c']"),
                Row("<table> <tr>\n<td/> </tr> </table>", "html[table[tr[td]]]"),
                Row("a<!-- -->b<?x?>c", "html['a' 'b' 'c']"),
                Row(bytes("<![CDATA[a<b ab\0 c]]>"), "html['a<b ' 'ab']"),
                Row("\xC3\xA9\xA0 x\x85y", "html['M-CM-)M-  ' 'xM-^Ey']")},
               treeOf);
}

TEST(RunningText, IsDecodedAfterCutting) {
    expectEach(
        {Row("x&nbsp;y", "html['x y']"),
         Row("a&lt;b<![CDATA[&lt; &amp;]]>", "html['a<b' '< ' '&']"), Row("&copy;", "html['']"),
         Row("&copy; AT&T", "html[' ' 'AT&T']"), Row("a &b c;", "html['a ' '&b ' 'c;']")},
        treeOf);
    expectEach({Row("&nbsp;&amp;&lt;&gt;", " &<>"), Row("1&2;3", "13"),
                Row("&quot;&apos;&AMP;", ""), Row("&amp;lt;", "&lt;"), Row("a;b&", "a;b&"),
                Row("&a&lt;b", "b"), Row("&lt;x&gt", "<x&gt")},
               [](String const& text) { return shown(replaceEntities(text)); });
}

TEST(Builder, RefusesMalformedDocuments) {
    expectEach({Row("<div>", "Line 1: Missing end tag at the end"),
                Row("<div><p></p>\n\n", "Line 3: Missing end tag at the end"),
                Row("<div></p>", "End tag </p> does not match start tag <div>"),
                Row("<p><b>\n</p></b>", "End tag </p> does not match start tag <b>"),
                Row("<html><div/></html>", "Invalid tag: <html>"),
                Row("<p><span display=\"none\"/></p>", "Invalid tag: <span>"),
                Row("<span", "1: Expecting end tag character '>'"),
                Row("\n< p>", "2: Expecting element type"),
                Row("<p></p", "1: Expecting end tag character '>'"),
                Row("<p>a<![CDATA[]]>", "1: Expecting content"),
                Row("<p><!--", "1: Expecting end tag comment characters '-->'"),
                Row("<p>\n<?", "2: Expecting end tag character '>'")},
               treeOf);
}

TEST(Builder, EndsAtASurplusEndTag) {
    expectEach({Row("<div>a</div></div><div>b</div>", "html[div['a']]"),
                Row("</ nothing here is read <<<", "html")},
               treeOf);
}

TEST(Builder, FillsAGivenElementUpToItsEndTag) {
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

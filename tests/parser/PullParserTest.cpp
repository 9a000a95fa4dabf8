#include "xml/parser/PullParser.h"

#include <tuple>
#include <vector>

#include "tests/support/text.h"

namespace CLI::XML {
namespace {

/// Reads what comes next and describes it; a failure by the parser's message, "" at the end.
std::string readNext(PullParser& parser) {
    static constexpr XCode (PullParser::*s_operations[])() = {nullptr,
                                                              nullptr,
                                                              &PullParser::readStartTag,
                                                              &PullParser::skipOtherTag,
                                                              &PullParser::readEndTag,
                                                              &PullParser::readContent,
                                                              &PullParser::skipCommentTag};
    PullParser::TagType const tag = parser.getNextTag();
    if (s_operations[tag] == nullptr) return "";
    XCode const result = (parser.*s_operations[tag])();
    EXPECT_EQ(outcome(result), result ? "ok" : "");
    if (!result) return shown(parser.errorMessage);
    if (tag == PullParser::TAG_CONTENT) return "'" + shown(parser.content) + "'";
    if (tag == PullParser::TAG_COMMENT) return "comment";
    if (tag == PullParser::TAG_OTHER) return "other";
    std::string event = (tag == PullParser::TAG_END ? "</" : "<") + shown(parser.name);
    for (PullParser::Attribute const& a : parser.attributes) {
        event += " " + shown(a.name) + "=[" + shown(a.value) + "]";
    }
    return event + ">";
}

/// The events of a document up to its end or the first failure.
std::string eventsOf(String const& markup) {
    PullParser parser(markup);
    std::string events;
    while (parser.errorMessage.length() == 0) {
        std::string const event = readNext(parser);
        if (event.empty()) break;
        events += (events.empty() ? "" : " ") + event;
    }
    return events;
}

TEST(PullParser, ReadsTagsContentAndWhatItSkips) {
    expectEach(
        {Row("", ""), Row("<br/>", "<br> </br>"), Row("<br />x", "<br> </br> 'x'"),
         Row("<a><b/></a >", "<a> <b> </b> </a>"), Row("<a\tx=\"1\"\r\n/>", "<a x=[1]> </a>"),
         Row("<a x=\"1\"y=\"2\" x=\"\"/>", "<a x=[1] y=[2] x=[]> </a>"),
         Row("<a x=\"<b c='>/\n\"></a>", "<a x=[<b c='>/$\n]> </a>"),
         Row("<a &lt;=\"a &amp; b\"/>", "<a &lt;=[a & b]> </a>"),
         Row("<\xE9!'/>", "<M-i!'> </M-i!'>"), Row(" a &lt; ]]> ", "' a &lt; ]]> '"),
         Row("<![CDATA[a<b&lt;]]>c", "'a<b&lt;' 'c'"), Row("<![CDATA[]]]]>", "']]'"),
         Row(bytes("<![CDATA[a\0b]]>"), "'a^@b'"),
         Row("<?xml version=\"1.0\"?><!DOCTYPE html>", "other other"),
         Row(bytes("<!a\0b>c<!>"), "other 'c' other"), Row("<!-a><![CDATAx]>", "other other"),
         Row("<!--a--b<c>--><!----><!--->-->", "comment comment comment")},
        eventsOf);
}

TEST(PullParser, NamesTheLineAndWhatWasExpected) {
    using Case = std::pair<char const*, std::vector<String>>;
    for (auto const& [message, markups] :
         {Case("1: Expecting element type", {"< a>", "1 < 2", "</ a>", "<", bytes("<\0a>")}),
          Case("1: Expecting end tag character '>'",
               {"<a", "<a/", "<a / >", "<a\"b/>", "<a x=\"1\"", "<a =\"1\">", "</a x>", "<!",
                "<?xml"}),
          Case("1: Expecting assignment character '='", {"<td nowrap>", "<a x =\"1\">", "<a x"}),
          Case("1: Expecting quotation character '\"'",
               {"<a x='1'>", "<a x= \"1\">", "<a x=\"1", bytes("<a x=\"\0\">")}),
          Case("1: Expecting content", {"<![CDATA[]]>", "<![CDATA[", bytes("a\0b")}),
          Case("1: Expecting end of CDATA ']]>'", {"<![CDATA[a]]", "<![CDATA[a]>"}),
          Case("1: Expecting end tag comment characters '-->'",
               {"<!--", "<!--->", bytes("<!--\0-->")}),
          Case("2: Expecting element type",
               {"\n<", "\r\n\r<", "<a x=\"\n\"/><", "<!--\n--><", "<![CDATA[\n]]><", "<!\n><"}),
          Case("3: Expecting element type", {"\n\n< p>", "<a\n\n/><"}),
          Case("4: Expecting quotation character '\"'", {"<a\nx=\"1\n\n2"}),
          Case("3: Expecting end tag comment characters '-->'", {"<!--\n\n"}),
          Case("3: Expecting end of CDATA ']]>'", {"<![CDATA[\n\n]]"}),
          Case("2: Expecting end tag character '>'", {"<?xml\n", "</a\n/>"})}) {
        for (String const& markup : markups) {
            std::string const events = " " + eventsOf(markup);
            EXPECT_TRUE(events.ends_with(std::string(" ") + message)) << shown(markup) << events;
        }
    }
}

TEST(PullParser, RefusesWhatDoesNotComeNext) {
    using Case = std::tuple<char const*, XCode (PullParser::*)(), char const*>;
    for (auto const& [markup, operation, message] :
         {Case("x", &PullParser::readStartTag, "1: Expecting tag start character '<'"),
          Case("x", &PullParser::readEndTag, "1: Expecting tag start character '<'"),
          Case("<x", &PullParser::readEndTag, "1: Expecting end mark character '/'"),
          Case("<x", &PullParser::readContent, "1: Expecting content"),
          Case("<!-", &PullParser::skipCommentTag, "1: Expecting tag comment characters '<!--'"),
          Case("x", &PullParser::skipOtherTag, "1: Expecting tag start character '<'"),
          Case("<x>", &PullParser::skipOtherTag, "1: Expecting '?' or '!'")}) {
        PullParser parser(markup);
        EXPECT_EQ(outcome((parser.*operation)()), "");
        EXPECT_EQ(parser.errorMessage, message);
    }
}

TEST(PullParser, ForgetsTheTagBeforeOneThatCannotBeRead) {
    for (auto const operation : {&PullParser::readStartTag, &PullParser::readEndTag}) {
        PullParser parser("<a x=\"1\">b");
        EXPECT_EQ(readNext(parser), "<a x=[1]>");
        EXPECT_FALSE((parser.*operation)());
        EXPECT_EQ(shown(parser.name), "");
        EXPECT_EQ(parser.attributes.count, 0U);
    }
}

TEST(PullParser, FailsSilentlyInsideAnEmptyElement) {
    PullParser parser("<a x=\"1\"/><b>");
    EXPECT_EQ(readNext(parser), "<a x=[1]>");
    EXPECT_EQ(parser.attribute(0).value, "1");
    EXPECT_EQ(&parser.attribute(1), &parser.emptyAttribute);
    EXPECT_EQ(outcome(parser.readStartTag()) + outcome(parser.readContent()), "");
    EXPECT_EQ(parser.errorMessage, "");
    EXPECT_EQ(readNext(parser), "</a>");
    EXPECT_EQ(readNext(parser), "<b>");
}

TEST(AttributeReferences, AreReplacedOnceFromLeftToRight) {
    auto const replaced = [](String value) {
        PullParser::PARSE_AND_REPLACE_SPECIAL_XML_CHARS(value);
        return shown(value);
    };
    expectEach({Row("a &amp; b", "a & b"), Row("&lt;b&gt;", "<b>"), Row("&quot;&apos;", "\"'"),
                Row("&amp;lt;", "&lt;"), Row("&unknown;x", "x"), Row("&#65;&nbsp;", ""),
                Row("&LT;", ""), Row("AT&T", "AT&T"), Row("&a&b;c", "c"), Row("&a&lt;", ""),
                Row("&lt;&gt", "<&gt"), Row("&;&", "&"), Row(";&lt;;", ";<;"), Row("", "")},
               replaced);
}

}  // namespace
}  // namespace CLI::XML

#include "web/markup/readDocument.h"

#include <random>

#include "tests/web/markup/Recorder.h"
#include "web/css/Cascade.h"
#include "web/defaultSheet.h"
#include "web/markup/vocabulary.h"

namespace galley::web {
namespace {

using namespace std::string_literals;

struct Case {
    std::string markup;
    std::string expected;
};

TEST(ReadDocument, HandsOverElementsAndTextAsTheyStand) {
    for (Case const& c : std::initializer_list<Case>{
             {"", ""},
             {" a\n\tb ", "[ a\n\tb ]"},
             {"<p>a<b>b</b>c</p>\n<p/>", "<p>[a]<b>[b]</b>[c]</p>[\n]<p></p>"},
             {"<p a='1' b = \"'2>\"\n\tc=''\r></p\n>", "<p a=\"1\" b=\"'2>\" c=\"\"></p>"},
             {"<p a='&lt;b\n&#10;\tc' b='&gt;' c='d'/>", "<p a=\"<b \n c\" b=\">\" c=\"d\"></p>"},
             {"<p a='first &gt; value' b='another &gt; one'/><p c='&#70;' d='&lt;third "
              "value&gt;'/>",
              "<p a=\"first > value\" b=\"another > one\"></p>"
              "<p c=\"F\" d=\"<third value>\"></p>"},
             {"<p x:y.z-1_='a'/>", "<p x:y.z-1_=\"a\"></p>"},
             {"a<br/>b<br></br>", "[a]<br></br>[b]<br></br>"},
             {"\xEF\xBB\xBF<?xml version=\"1.0\"?><!DOCTYPE html>\n<p>a</p>", "[\n]<p>[a]</p>"},
             {"<!doctype a '>' [<!ENTITY b \"]>\"><!-- '> --> ]>c", "[c]"},
             // Text is one run up to the next tag, whatever is between its parts.
             {"a<!-- <b> - -- -->b<? > ?>c", "[abc]"},
             {"a<![CDATA[<b>&amp;]]]]>c", "[a<b>&amp;]]c]"},
             {"<![CDATA[]]><!-- --><p><![CDATA[a]]></p>", "<p>[a]</p>"},
             {"a&amp;b<!---->c&lt;<p>&gt;</p>", "[a&bc<]<p>[>]</p>"},
             {"]]>\"'>\0a"s, "[]]>\"'>\0a]"s},
             {"<img alt='a &lt; b'/><img alt=''/>",
              "<img alt=\"a < b\">[a < b]</img><img alt=\"\"></img>"},
         }) {
        Reading const reading(c.markup);
        EXPECT_EQ(reading.events, c.expected) << c.markup;
        EXPECT_EQ(reading.problems, "") << c.markup;
    }
}

TEST(ReadDocument, LeavesOutHeadsButTheirTitleAndScriptsAndTemplates) {
    for (Case const& c : std::initializer_list<Case>{
             {"<html><head><meta a='&'/><title>a &lt;<b>b</b><!-- c --> d</title><i>e</i></head>"
              "<body>a</body></html>",
              "<html>title[a <]title[ d]<body>[a]</body></html>"},
             {"<script><title>a</title></script><head><i><title>b</title></i></head>", ""},
             {"a<script>b<p>c</p></script>d", "[a][d]"},
             {"<template><p><q/>a</p></template><p>b</p><script/>", "<p>[b]</p>"},
         }) {
        Reading const reading(c.markup);
        EXPECT_EQ(reading.events, c.expected) << c.markup;
        EXPECT_EQ(reading.problems, "") << c.markup;
    }
}

TEST(ReadDocument, HandsOverSheetsFirst) {
    for (Case const& c : std::initializer_list<Case>{
             {"<html><head><style>a</style></head>b<style media='c:'>d</style></html>",
              "{a}{c:d}<html>[b]</html>"},
             {"<style>a &gt; b<![CDATA[ < &lt;]]><!-- c -->d<i>e</i>f</style>", "{a > b < &lt;df}"},
             {"<script><style>a</style></script><template><p><style>b</style></p></template>"
              "<style>c</style>",
              "{c}"},
             {"<template><script>a</script><style>b</style></template>", ""},
             {"<style/><p>a<style></style></p>", "{}<p>[a]</p>"},
             {"<style type='TEXT/css'>a</style><style type=''>b</style><style type='text/x'>c"
              "</style>",
              "{a}{b}"},
             {"<p><![CDATA[<style>]]><styles/></p>", "<p>[<style>]<styles></styles></p>"},
         }) {
        EXPECT_EQ(Reading(c.markup).events, c.expected) << c.markup;
    }
}

TEST(ReadDocument, KnowsWhereInTheDocumentASheetIs) {
    struct Handler : DocumentHandler {
        std::string places;
        void styleSheet(EmbeddedSheet const& sheet) override {
            for (std::size_t i = 0; i <= sheet.text().size(); ++i) {
                places += std::to_string(sheet.offsetOf(i)) + " ";
            }
        }
        bool asksForLastChild() override { return false; }
        void startElement(Element&) override {}
        void text(std::string_view) override {}
        void title(std::string_view) override {}
        void endElement(Element&) override {}
    } handler;
    std::vector<Problem> problems;
    readDocument("<p/><style>ab&gt;c<![CDATA[d]]></style><style></style>", handler, problems);
    EXPECT_EQ(handler.places, "11 12 13 17 27 28 39 ");
}

TEST(ReadDocument, WarnsOfPicturesAndOtherEncodings) {
    for (Case const& c : std::initializer_list<Case>{
             {"a<img src='b'/>", "1 warning: nothing is shown of 'img' without 'alt'\n"},
             {"\xEF\xBB\xBF<?xml encoding='x-y' ?>a",
              "19 warning: documents are UTF-8; encoding 'x-y' has no effect\n"},
             {"<?xml version='1.0' encoding=\"UTF-8\"?><?xml encoding='x'?>", ""},
             {"<?xml encoding='?>", ""},
             {"a<?xml encoding='x'?>", ""},
         }) {
        EXPECT_EQ(Reading(c.markup).problems, c.expected) << c.markup;
    }
}

TEST(ReadDocument, NumbersElementsAndKnowsTheLast) {
    EXPECT_EQ(Reading("a<p><i/><script/><b><u/></b>c</p><q/><style/>", true).events,
              "[a]<p 1><i 1></i><b 3!><u 1!></u></b>[c]</p><q 2></q>");
    EXPECT_EQ(Reading("<p><i/></p><p><i/></p>", true).events,
              "<p 1><i 1!></i></p><p 2!><i 1!></i></p>");
    EXPECT_EQ(Reading("<p/><q><i/>", true).events, "<p 1></p><q 2!><i 1!></i>");
}

TEST(ReadDocument, SaysWhatIsWrongAndWhere) {
    std::string const character = "; write '&lt;' for the character itself\n";
    for (Case const& c : std::initializer_list<Case>{
             {"\xFF\xFE<\0p\0"s,
              "0 error: Documents are UTF-8, which this one, as UTF-16, is not\n"},
             {"<\0p\0"s, "0 error: Documents are UTF-8, which this one, as UTF-16, is not\n"},
             {"<p>\n a < b</p>", "7 error: Expecting element name behind '<'" + character},
             {"a<", "1 error: Expecting element name behind '<'" + character},
             {"<p></ p>", "3 error: Expecting element name behind '</'\n"},
             {"<p 1='2'>", "3 error: Expecting attribute or end of tag\n"},
             {"<p / >", "3 error: Expecting attribute or end of tag\n"},
             {"<p\0>"s, "2 error: Expecting attribute or end of tag\n"},
             {"<p>a</p q>", "8 error: Expecting '>' in end tag of 'p'\n"},
             {"<td nowrap>", "4 error: Expecting '=' and a value behind 'nowrap'\n"},
             {"<p a=1>", "5 error: Expecting quotation marks around the value of 'a'\n"},
             {"<p a='1'b='2'>", "8 error: Expecting white space before 'b'\n"},
             {"<p a='1><b c='2'>", "8 error: Expecting quotation mark before '<'" + character},
             {"<p a='1>", "5 error: Missing quotation mark behind the value of 'a'\n"},
             {"<p a='1' b='' a=''>",
              "14 error: Attribute 'a' is given twice\n3 note: It is first given here\n"},
             {"a<p", "1 error: Missing '>' behind '<p'\n"},
             {"a<p b", "1 error: Missing '>' behind '<p'\n"},
             {"a<p b= ", "1 error: Missing '>' behind '<p'\n"},
             {"<p></p", "3 error: Missing '>' behind '</p'\n"},
             {"a<!-- --", "1 error: Missing '-->' behind '<!--'\n"},
             {"a<!-->", "1 error: Missing '-->' behind '<!--'\n"},
             {"a<![CDATA[b]]", "1 error: Missing ']]>' behind '<![CDATA['\n"},
             {"a<?xml >", "1 error: Missing '?>' behind '<?'\n"},
             {"<!DOCTYPE a [<!ENTITY>", "0 error: Missing '>' behind '<!DOCTYPE'\n"},
             {"<!DOCTYPE '>", "0 error: Missing '>' behind '<!DOCTYPE'\n"},
             {"a<!b>", "1 error: Expecting '--', '[CDATA[' or 'DOCTYPE' behind '<!'\n"},
             {"a</p>b", "1 error: End tag </p> closes no element\n"},
             {"<div>\n<p><b/>\n</div>",
              "14 error: End tag </div> does not match start tag <p>\n"
              "6 note: Start tag <p> is here\n"},
             {"<p><q>a", "7 error: Missing end tag at the end\n3 note: Start tag <q> is here\n"},
             {"<p>a \n", "4 error: Missing end tag at the end\n0 note: Start tag <p> is here\n"},
             {"<p>a<br>b<br>c<b>d</b></p>", "4 error: Missing end of <br>; write <br/>\n"},
             {"<p>a<br>", "4 error: Missing end of <br>; write <br/>\n"},
             {"<head><meta a=''></head>", "6 error: Missing end of <meta>; write <meta/>\n"},
         }) {
        Reading const reading(c.markup);
        EXPECT_EQ(reading.problems, c.expected) << c.markup;
        EXPECT_FALSE(reading.isRead) << c.markup;
    }
}

TEST(ReadDocument, WarnsOfWhatItDoesNotKnow) {
    std::string const utf8 = "bytes that are no UTF-8 are shown as U+FFFD\n";
    for (Case const& c : std::initializer_list<Case>{
             {"a<blink>b</blink><P/><blink/>",
              "1 warning: unknown element 'blink'\n17 warning: unknown element 'P'; did you mean "
              "'p'?\n"},
             // Once a line.
             {"a\xFF\xFF<p>\xFF</p>\nb\n\xC3\xA9\xC3 \xC3\n\xC3",
              "1 warning: " + utf8 + "16 warning: " + utf8 + "20 warning: " + utf8},
             {"<p b='\xFF' c='\n\xFF'/>", "6 warning: " + utf8 + "13 warning: " + utf8},
             {"<!-- \xFF --><script>\xFF</script><style>\xFF\n</style>\xFF",
              "35 warning: " + utf8 + "45 warning: " + utf8},
             {"<head><title/><link href='a'/><link rel='stylesheet' href='a'/></head>",
              "30 warning: a linked sheet is not read; pass it beside the document\n"},
             {"<a>b<i><a/></i></a><a/>",
              "7 warning: 'a' is inside of another 'a', which HTML forbids\n"},
             {"<style>&x;</style>", "7 warning: unknown reference '&x;'\n"},
         }) {
        Reading const reading(c.markup);
        EXPECT_EQ(reading.problems, c.expected) << c.markup;
        EXPECT_TRUE(reading.isRead) << c.markup;
    }
}

TEST(ReadDocument, TakesSoMuchDepthAndNoMore) {
    std::string start;
    std::string end;
    for (int i = 0; i < 512; ++i) {
        start += "<p>";
        end += "</p>";
    }
    EXPECT_EQ(Reading(start + "a" + end).problems, "");
    EXPECT_EQ(Reading(start + "<p/>" + end).problems,
              "1536 error: Elements are more than 512 deep\n");
    EXPECT_EQ(Reading("<script>" + start + end + "</script>").problems,
              "1541 error: Elements are more than 512 deep\n");
}

/// Whether it is read, or there is one error, and all places are in the document or at its end.
void expectOneAnswer(std::string_view markup) {
    Reading const reading(markup, true);
    std::size_t errors = 0;
    for (Problem const& problem : reading.found) {
        EXPECT_LE(problem.offset, markup.size());
        if (problem.kind == Problem::Kind::error) ++errors;
    }
    EXPECT_EQ(errors, reading.isRead ? 0U : 1U) << markup << "\n" << reading.problems;
}

TEST(ReadDocument, EveryBeginningIsReadOrHasOneError) {
    std::string const document =
        "\xEF\xBB\xBF<?xml version='1.0'?><!DOCTYPE html [<!-- a --> <!ENTITY a \"b\">]>\n<html>"
        "<head><style media=\"all\">p &gt; b {} <![CDATA[c]]></style><meta/></head><body id='&#65;'"
        " class = \"\xC3\xA9\">a&amp;\xE2\x82\xAC<!-- - -- -->&x;<br></br><img alt='&lt;'/>\n"
        "<script>a</script><p/></body ></html>\n";
    EXPECT_TRUE(Reading(document).isRead);
    for (std::size_t length = 0; length < document.size(); ++length) {
        expectOneAnswer(std::string_view(document).substr(0, length));
    }
}

TEST(ReadDocument, AnythingIsReadOrHasOneError) {
    constexpr std::string_view parts[] = {
        "<p",    ">",     "</p>", "<b>",        "</b>", "a",    " ",    "='",       "'",
        "\"",    "/>",    "&",    ";",          "#x",   "1",    "amp",  "<!--",     "-->",
        "<?",    "?>",    "<br>", "<![CDATA[",  "]]>",  "\xFF", "\xC3", "<script>", "</script>",
        "<img ", " alt=", "[",    "<!DOCTYPE ", "]",    "\n",   "\xA9", "<style>",  "</style>"};
    std::mt19937 random(1);  // NOLINT(cert-msc51-cpp): the same every time
    for (int i = 0; i < 20000; ++i) {
        std::string markup;
        for (auto n = random() % 12; n > 0; --n) markup += parts[random() % std::size(parts)];
        expectOneAnswer(markup);
    }
}

TEST(Vocabulary, IsWhatTheDefaultSheetShows) {
    std::vector<Problem> problems;
    Sheet const sheet = Sheet::parse(defaultSheetText(), problems);
    Cascade cascade(sheet, {}, {80, true, Media::Scheme::none}, problems);
    for (ElementType const& type : vocabulary()) {
        Element element;
        element.name = type.name;
        Display const shown = cascade.styleOf(element)->display;
        // These belong to the elements, whatever a sheet says.
        bool const isInnerPart = type.display >= Display::headerGroup &&
                                 type.display <= Display::column && type.display != Display::cell;
        if (isInnerPart) continue;
        EXPECT_EQ(shown, type.display) << type.name;
    }
}

}  // namespace
}  // namespace galley::web

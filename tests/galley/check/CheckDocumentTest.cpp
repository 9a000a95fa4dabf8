#include "tests/galley/check/findings.h"
#include "tests/support/text.h"

namespace galley {
namespace {

std::string page(std::string const& markup) {
    String text;
    EXPECT_EQ(outcome(CLI::XML::xmlToText(text, asString(markup), {}, 30)), "ok") << markup;
    return shown(text);
}

/// A document, what is said about it, and another one of the same page, if it is to be looked at.
struct Case {
    std::string markup;
    std::string report;
    char const* sameAs = nullptr;
};

void check(std::initializer_list<Case> cases) {
    for (Case const& c : cases) {
        EXPECT_EQ(report({c.markup, false}), c.report) << c.markup;
        if (c.sameAs != nullptr) {
            EXPECT_EQ(page(c.markup), page(c.sameAs)) << c.markup;
        }
    }
}

TEST(CheckDocument, WarnsAboutAttributesWithoutEffect) {
    check({
        {"<p colour=\"red\">a</p>", "1:4 warning: 'colour' is no property; did you mean 'color'?\n",
         "<p>a</p>"},
        {"<p class=\"y\"\n id=\"z\"style=\"w\"/>",
         "1:4 warning: 'class' has no effect\n"
         "2:2 warning: 'id' has no effect\n"
         "2:8 warning: 'style' has no effect\n",
         "<p/>"},
        {"<p color=\"red\" color=\"blue\" display=\"none\" display=\"flex\">a</p>",
         "1:4 warning: a later 'color' replaces this one\n"
         "1:29 warning: a later 'display' replaces this one\n"
         "1:53 warning: 'flex' is no kind of display and has no effect\n",
         "<p color=\"blue\">a</p>"},
        {"<p display=\"Inline\">a</p><p display=\"inline-block\">a</p>",
         "1:13 warning: 'Inline' is no kind of display; did you mean 'inline'?\n"
         "1:38 warning: 'inline-block' is no kind of display and has no effect\n",
         "<p>a</p><p>a</p>"},
        {"<p color=\"\" padding=\"1 \" margin=\"1 2\" border-width=\"\">a</p>",
         "1:34 warning: '1 2' counts as 1; ' 2' is ignored\n"
         "1:53 warning: '' is no number and counts as 0\n",
         "<p padding=\"1\" margin=\"1\">a</p>"},
        {std::string("<p\0 a=\"\"/>", 10), "1:5 warning: 'a' has no effect\n", "<p/>"},
        // The error is enough.
        {"<q class=\"x\"/>", "1:1 error: Invalid tag: <q>\n"},
    });
}

TEST(CheckDocument, WarnsAboutReferencesThatDisappear) {
    check({
        {"<p>x&mdash;y &#8364;</p>",
         "1:5 warning: '&mdash;' is no reference in text and disappears; write the character "
         "itself\n"
         "1:14 warning: '&#8364;' is no reference in text and disappears; write the character "
         "itself\n",
         "<p>xy </p>"},
        {"say &quot;a&quot;\n&lt;&gt;&amp;&nbsp;",
         "1:5 warning: '&quot;' is no reference in text and disappears; write the character "
         "itself\n"
         "1:12 warning: '&quot;' is no reference in text and disappears; write the character "
         "itself\n",
         "say a &lt;&gt;&amp;&nbsp;"},
        {"a&nsbp;b&AMP;c",
         "1:2 warning: '&nsbp;' is no reference in text; did you mean '&nbsp;'?\n"
         "1:9 warning: '&AMP;' is no reference in text; did you mean '&amp;'?\n",
         "abc"},
        {"<![CDATA[a&lt;&copy;]]>",
         "1:15 warning: '&copy;' is no reference in text and disappears; write the character "
         "itself\n",
         "a&lt;"},
        {"<p border-style=\"&nbsp;&lt;&gt;&amp;&quot;&apos;\" border-top-style=\"a\n&b;\"/>",
         "1:18 warning: '&nbsp;' is no reference in an attribute and disappears; write the "
         "character itself\n"
         "2:1 warning: '&b;' is no reference in an attribute and disappears; write the character "
         "itself\n",
         "<p border-style=\"&lt;&gt;&amp;&quot;&apos;\" border-top-style=\"a\n\"/>"},
        {"R&D,dull;ing &;",
         "1:2 warning: '&D,dull;' disappears; write '&amp;' for an ampersand\n"
         "1:14 warning: '&;' disappears; write '&amp;' for an ampersand\n",
         "Ring <![CDATA[&;]]>"},
        {"x&a&b;y", "1:2 warning: '&a&b;' disappears; write '&amp;' for an ampersand\n", "xy"},
        {"<p border-style=\"a & b;\">a</p>",
         "1:20 warning: '& b;' disappears; write '&amp;' for an ampersand\n"},
        // No semicolon is in the same word.
        {"R&D is fun; AT&T<b>;</b>", "", "R&amp;D is fun; AT&amp;T<b>;</b>"},
    });
}

TEST(CheckDocument, WarnsAboutSpaceBetweenTagsThatIsLost) {
    auto const joined = [](char const* place, char const* words) {
        return std::string(place) + " warning: " + words +
               " run together; put the space in front of the tag\n";
    };
    check({
        {"<p><b>bold</b> word</p>", joined("1:15", "'bold' and 'word'"), "<p><b>bold</b>word</p>"},
        {"<b>a</b> <b>c</b>", joined("1:9", "'a' and 'c'"), "<b>a</b><b>c</b>"},
        {"<b>a</b>\n <i> <mark> c</mark></i>", joined("1:9", "'a' and 'c'"),
         "<b>a</b><i><mark>c</mark></i>"},
        {"x a<b> c</b> d", joined("1:7", "'a' and 'c'") + joined("1:13", "'c' and 'd'"),
         "x a<b>c</b>d"},
        {"a<!-- --> b<?x?>\nc", joined("1:10", "'a' and 'b'") + joined("1:17", "'b' and 'c'"),
         "abc"},
        {"a<![CDATA[ b]]>", joined("1:11", "'a' and 'b'"), "ab"},
        {"a<b display=\"none\">x y</b> c", joined("1:27", "'a' and 'c'"), "ac"},
        {"<p display=\"inline\">a</p> c", joined("1:26", "'a' and 'c'"), "ac"},
        {"<table><tr><td><b>a</b> c</td></tr></table>", joined("1:24", "'a' and 'c'")},
        {"<b>R&amp;D</b> c", joined("1:15", "'R&amp;D' and 'c'"), "<b>R&amp;D</b>c"},
        {"<b>a</b> <i>&x;</i>c",
         joined("1:9", "'a' and 'c'") +
             "1:13 warning: '&x;' is no reference in text and disappears; write the character "
             "itself\n",
         "<b>a</b>c"},
        {"<b margin-top=\"1\">a</b> c", joined("1:24", "'a' and 'c'")},
        {"<b>a<i/></b> c", joined("1:13", "'a' and 'c'"), "<b>a</b>c"},
    });
}

TEST(CheckDocument, SaysNothingAboutWordsThatStandApart) {
    check({
        {"<b>bold </b>word <b>c</b>, <i>d</i>.", ""},
        {"<b>a</b>&nbsp;c <b>a&nbsp;</b> c <b>a</b> &nbsp;c", ""},
        {"<p>a</p> b <p>c</p>\n<h1>d</h1> <table><tr> <td>a</td> <td>b</td> </tr></table> c", ""},
        {"<b> a</b><b>c </b> <b/> d <!-- --> e", ""},
        {"<b margin-right=\"1\">a</b> c<i padding-left=\"1\"> d</i> <i/>", ""},
        {"<p display=\"none\"><b>a</b> c</p>", ""},
        {"<b display=\"block\">a</b> c", ""},
        {"a <p display=\"none\">b</p> c", ""},
        {"<b>a</b> </p>", ""},
        {"", ""},
    });
    CLI::XML::StyleList rules;
    CLI::XML::parseCss(rules, "b { margin-right: 1; } i { margin-left: 1; } i { margin-top: 1; }");
    EXPECT_EQ(report({"<b>a</b> c", false}, rules), "");
    EXPECT_EQ(report({"a <i>b</i> c<i> d</i>", false}, rules),
              "1:11 warning: 'b' and 'c' run together; put the space in front of the tag\n"
              "1:16 warning: 'c' and 'd' run together; put the space in front of the tag\n");
}

TEST(CheckDocument, WarnsAboutWhatIsNotRead) {
    std::string const unread =
        " warning: this end tag closes no element; what follows is not read\n";
    check({
        {"<p>a</p></p>\n<q>", "1:9" + unread, "<p>a</p>"},
        {"a\n</p> <!-- c --> b", "2:1" + unread, "a\n"},
        {"</p></p>", "1:1" + unread, ""},
        {"<p>a</p></p> <!-- > --> <!---->\n", ""},
        {"a</", ""},
        {"a</p> <!-- b", ""},
    });
    std::string const text("a<![CDATA[b \0c]]><![CDATA[\0 \0]]>d", 33);
    EXPECT_EQ(report({text, false}),
              "1:13 warning: a NUL byte ends the text: what follows it is not shown\n");
    EXPECT_EQ(page(text), page("ab d"));
}

TEST(CheckDocument, GoesOnBehindElementsThatAreUnknownOrRefused) {
    check({
        {"<u><tr>a<td><u/></td></tr></u>\n<P/><td/>",
         "1:1 error: Invalid tag: <u>\n"
         "1:8 error: Cannot layout 'text' within 'tr'\n"
         "1:13 error: Invalid tag: <u>\n"
         "2:1 error: Invalid tag: <P>\n"
         "2:5 error: Cannot layout 'td' within 'html'\n"},
        {"<p><tr> a<td>b</td>\n<b/></tr></p><table>x<p><td display=\"block\"/></p></table>",
         "1:4 error: Cannot layout 'tr' within 'p'\n"
         "1:9 error: Cannot layout 'text' within 'tr'\n"
         "2:1 error: Cannot layout 'b' within 'tr'\n"
         "2:21 error: Cannot layout 'text' within 'table'\n"
         "2:22 error: Cannot layout 'p' within 'table'\n"},
        {"<td display=\"none\"><td>a</td><u/></td><b>c<u> d</u> e</b>",
         "1:30 error: Invalid tag: <u>\n1:43 error: Invalid tag: <u>\n"},
        {"<tr display=\"block\">a</tr><tr display=\"table\" display=\"\">a</tr>",
         "1:27 error: Cannot layout 'tr' within 'html'\n"
         "1:31 warning: a later 'display' replaces this one\n"
         "1:58 error: Cannot layout 'text' within 'tr'\n"},
    });
}

TEST(CheckDocument, StopsWhereTheLibraryCannotGoOn) {
    check({
        {"<td/>\n<p colour=\"red\">a</p><b>x</p></b><u>",
         "1:1 error: Cannot layout 'td' within 'html'\n"
         "2:4 warning: 'colour' is no property; did you mean 'color'?\n"
         "2:26 error: End tag </p> does not match start tag <b>, <b> at 2:22\n"},
        {"<u>\n<p><u a>",
         "1:1 error: Invalid tag: <u>\n2:8 error: Expecting assignment character '='\n"},
        {"<p>\n<b>&x;",
         "2:4 warning: '&x;' is no reference in text and disappears; write the character itself\n"
         "2:7 error: Missing end tag at the end, <b> at 2:1\n"},
        {std::string("a\0b", 3), "1:2 error: Expecting content\n"},
    });
}

}  // namespace
}  // namespace galley

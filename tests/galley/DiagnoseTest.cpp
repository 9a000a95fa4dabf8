#include "galley/diagnose.h"

#include <gtest/gtest.h>

#include "tests/support/sources.h"
#include "tests/support/text.h"

namespace {

std::string documentError(std::string const& document) {
    galley::Options options;
    options.dialect = galley::Dialect::core;
    options.name = "x";
    return galley::render(document, {}, options).error().text();
}

std::string sheetError(std::string const& sheet) {
    return galley::Sheet::parse(sheet, "x", galley::Dialect::core).error().text();
}

/// A source, the line and the words of its error, the line as it is shown, and below it the caret,
/// whose place is the column unless that is given.
struct Case {
    std::string source;
    int line;
    std::string words;
    std::string shown;
    std::string caret;
    std::size_t column = 0;
};

std::string text(Case const& c) {
    std::string const number = std::to_string(c.line);
    std::size_t const column = c.column > 0 ? c.column : c.caret.length();
    return "x:" + number + ":" + std::to_string(column) + ": error: " + c.words + "\n    " +
           number + " | " + c.shown + "\n      | " + c.caret + "\n";
}

TEST(Diagnose, ShowsTheLineOfEveryMessageAboutADocument) {
    Case const cases[] = {
        {"<p>\n a < b</p>", 2, "Expecting element type", " a < b</p>", "    ^"},
        {"<p\n a>x</p>", 2, "Expecting assignment character '='", " a>x</p>", "  ^"},
        {"<p a='1'/>", 1, "Expecting quotation character '\"'", "<p a='1'/>", "     ^"},
        {"<p a=\"1\n2/>", 2, "Expecting quotation character '\"'", "2/>", "   ^"},
        {"<p/\n>", 1, "Expecting end tag character '>'", "<p/", "   ^"},
        {"<p></p\n q>", 2, "Expecting end tag character '>'", " q>", " ^"},
        {"<p></ p>", 1, "Expecting element type", "<p></ p>", "     ^"},
        {"\n<?xml", 2, "Expecting end tag character '>'", "<?xml", "     ^"},
        {"a\n<![CDATA[]]>", 2, "Expecting content", "<![CDATA[]]>", "         ^"},
        {"<![CDATA[\na]]", 2, "Expecting end of CDATA ']]>'", "a]]", "   ^"},
        {"<!--\n--", 2, "Expecting end tag comment characters '-->'", "--", "  ^"},
        {"<p>\n <!-- <q> --><q\na=\"<b\"/>", 2, "Invalid tag: <q>", " <!-- <q> --><q",
         "             ^"},
        {"<div>\n<td\n/></div>", 2, "Cannot layout 'td' within 'div'", "<td", "^"},
        {"<p display=\"none\"><td>a</td></p>\n<b><tr/></b>", 2, "Cannot layout 'tr' within 'b'",
         "<b><tr/></b>", "   ^"},
        {"<table>\n<tr><td>a</td>\n <!-- a -->\t&x;</tr>b</table>", 3,
         "Cannot layout 'text' within 'tr'", " <!-- a -->\t&x;</tr>b</table>", "           \t^"},
        {"<table><![CDATA[ \n CDATA]]></table>", 2, "Cannot layout 'text' within 'table'",
         " CDATA]]></table>", " ^"},
        {"<table><tr display=\"none\">a</tr></table>\n<td/>", 2, "Cannot layout 'td' within 'html'",
         "<td/>", "^"},
        {"<p><p display=\"table-row\"/>\n<tr/></p>", 1, "Cannot layout 'p' within 'p'",
         "<p><p display=\"table-row\"/>", "   ^"},
    };
    for (Case const& c : cases) {
        EXPECT_EQ(documentError(c.source), text(c)) << c.source;
    }
}

TEST(Diagnose, ShowsTheStartTagOfAnElementThatIsNotClosed) {
    EXPECT_EQ(documentError("<div>\n<p><b>x</b>\n</div>"),
              "x:3:1: error: End tag </div> does not match start tag <p>\n"
              "    3 | </div>\n"
              "      | ^\n"
              "x:2:1: note: Start tag <p> is here\n"
              "    2 | <p><b>x</b>\n"
              "      | ^\n");
    EXPECT_EQ(documentError("<div>\n <p>x</p> y"),
              "x:2:12: error: Missing end tag at the end\n"
              "    2 |  <p>x</p> y\n"
              "      |            ^\n"
              "x:1:1: note: Start tag <div> is here\n"
              "    1 | <div>\n"
              "      | ^\n");
    // The last lines are empty ones.
    EXPECT_EQ(documentError("<p>\r\n\n"),
              "x:3:1: error: Missing end tag at the end\n"
              "    1 | <p>\n"
              "      |    ^\n"
              "x:1:1: note: Start tag <p> is here\n"
              "    1 | <p>\n"
              "      | ^\n");
}

TEST(Diagnose, ShowsTheLineOfEveryMessageAboutASheet) {
    Case const cases[] = {
        {"a {}\n { b: c; }", 2, "Expecting '{'", " { b: c; }", " ^"},
        {"a,\nb {}", 2, "Expecting '{'", "b {}", "^"},
        {"a", 1, "Expecting '{'", "a", " ^"},
        {"a { b:c;\n\tb c; }", 2, "Expecting ':'", "\tb c; }", "\t  ^"},
        {"a{b\v:\vc\v;\v}\vd", 1, "Expecting '{'", "a{b : c ; } d", "             ^"},
        {"a { b: ; }", 1, "Expecting value", "a { b: ; }", "       ^"},
        {"a { b: c }", 1, "Expecting ';'", "a { b: c }", "         ^"},
        {"a{b:c}", 1, "Expecting ';'", "a{b:c}", "      ^"},
        {"a{b:{};c:};\n:d}", 2, "Expecting '}'", ":d}", "^"},
    };
    for (Case const& c : cases) EXPECT_EQ(sheetError(c.source), text(c)) << c.source;
}

TEST(Diagnose, NamesNoPlaceWithoutOne) {
    struct {
        char const* message;
        char const* document;
        char const* text;
    } constexpr cases[] = {
        {"Page too large: more than 9 cells", "<p>a</p>",
         "x: error: Page too large: more than 9 cells\n"},
        // Of another source.
        {"Invalid tag: <q>", "<r/>", "x: error: Invalid tag: <q>\n"},
        {"Invalid tag: <q>", "</p><q/>", "x: error: Invalid tag: <q>\n"},
        {"3: Expecting content", "", "x:3: error: Expecting content\n"},
        {"Line 3: Missing end tag at the end", "", "x:3: error: Missing end tag at the end\n"},
    };
    for (auto const& [message, document, text] : cases) {
        EXPECT_EQ(galley::diagnose(message, {"x", document}).text(), text);
    }
}

TEST(Diagnose, ShowsLinesAsTheyCanBeShown) {
    auto const repeat = [](std::string const& s, int n) {
        return std::string(String::repeat(s.c_str(), static_cast<unsigned>(n)).c_str());
    };
    std::string const accents = repeat("\xc3\xa9", 100);
    std::string const smiley = "\xf0\x9f\x98\x80";
    std::string const invalid = "Invalid tag: <q>";
    std::string const dots = "...";
    Case const cases[] = {
        {"a\r\n<q/>\r\n", 2, invalid, "<q/>", "^"},
        {"a\v\rb<q/>", 1, invalid, "a  b<q/>", "    ^"},
        {"\xe9\xa9\xc3" + smiley + "\t<q/>", 1, invalid, "???" + smiley + "\t<q/>", "     \t^", 6},
        // An accent on the letter before, a wide letter, and a joiner without width.
        {"e\u0301\u4E2D\u200D<q/>", 1, invalid, "e\u0301\u4E2D\u200D<q/>", "   ^", 5},
        // What would be shown from right to left, or not at all.
        {"a\u202Eb\u2069<q/>\u200F", 1, invalid, "a<U+202E>b<U+2069><q/><U+200F>",
         std::string(18, ' ') + "^", 5},
        {repeat("\u202E", 50) + "<q/>", 1, invalid, dots + repeat("<U+202E>", 8) + "<q/>",
         std::string(67, ' ') + "^", 51},
        {std::string(68, 'a') + "<q/>", 1, invalid, std::string(68, 'a') + "<q/>",
         std::string(68, ' ') + "^"},
        {std::string(69, 'a') + "<q/>", 1, invalid, dots + std::string(68, 'a') + "<q/>",
         std::string(71, ' ') + "^", 70},
        {"<q/>" + std::string(69, 'a'), 1, invalid, "<q/>" + std::string(68, 'a') + dots, "^"},
        {accents + "<q/>" + accents, 1, invalid,
         dots + repeat("\xc3\xa9", 36) + "<q/>" + repeat("\xc3\xa9", 32) + dots,
         std::string(39, ' ') + "^", 101},
        {repeat(smiley, 50) + "<q/>" + repeat("\xa9", 90), 1, invalid,
         dots + repeat(smiley, 18) + "<q/>" + repeat("?", 32) + dots, std::string(39, ' ') + "^",
         51},
    };
    for (Case const& c : cases) EXPECT_EQ(documentError(c.source), text(c)) << c.source;
    std::string const far(99999, '\n');
    EXPECT_EQ(documentError(far + "<q/>"),
              "x:100000:1: error: Invalid tag: <q>\n"
              "100000 | <q/>\n"
              "       | ^\n");
}

TEST(Diagnose, IsFoundInDeepDocumentsAndLongLines) {
    std::string nested;
    for (int i = 0; i < 20000; ++i) nested += "<div a=\"1\">";
    std::string const words(3000000, 'a');
    for (std::string const& source :
         {nested + words + "<td/>", nested + "\n<q>", nested + "</p>"}) {
        std::string const error = documentError(source);
        EXPECT_LT(error.length(), 1000U);
        EXPECT_NE(error.find("^\n"), std::string::npos) << error;
    }
    std::string closed = nested + "\n" + words + "<td/>";
    for (int i = 0; i < 20000; ++i) closed += "</div>";
    EXPECT_EQ(
        documentError(closed).rfind("x:2:3000001: error: Cannot layout 'td' within 'div'\n", 0),
        0U);
}

/// Each line of a text of errors and notes that names a place shows that place.
TEST(Diagnose, ShowsThePlaceThatItNames) {
    std::mt19937 random(1);
    int places = 0;
    for (Source const& example : exampleSources()) {
        for (int i = 0; i < 50; ++i) {
            Source const source = mutant(example, random);
            galley::Options options;
            options.dialect = i % 2 == 0 ? galley::Dialect::core : galley::Dialect::web;
            auto const found = source.isSheet
                                   ? galley::checkSheet(source.text, "x", *options.dialect)
                                   : galley::check(source.text, {}, options);
            unsigned line = 1;
            for (galley::Diagnostic const& diagnostic : found) {
                EXPECT_GE(diagnostic.line(), line) << source.text;
                line = diagnostic.line();
                std::string const& excerpt = diagnostic.excerpt();
                std::size_t const margin = excerpt.find('|');
                if (margin == std::string::npos || excerpt.find("...") != std::string::npos)
                    continue;
                std::size_t const below = excerpt.find('\n') + 1;
                bool const isPlain = excerpt.find_first_of("\t\x80\xc3") == std::string::npos;
                if (!isPlain || std::stoul(excerpt) != line) continue;
                EXPECT_EQ(excerpt.find('^') - below - margin - 1, diagnostic.column()) << excerpt;
                ++places;
            }
        }
    }
    EXPECT_GT(places, 300);
}

TEST(Diagnose, FindsManyPlacesInOneLine) {
    std::string line;
    for (int i = 0; i < 100000; ++i) line += "<b a=\"\"/>";
    galley::Options options;
    options.dialect = galley::Dialect::core;
    auto const found = galley::check(line, {}, options);
    ASSERT_EQ(found.size(), 100000U);
    EXPECT_EQ(found.back().column(), 99999U * 9 + 4);
    EXPECT_EQ(found.front().column(), 4U);
}

}  // namespace

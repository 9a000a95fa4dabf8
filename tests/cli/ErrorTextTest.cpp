#include <algorithm>
#include <cctype>

#include "cli/report.h"
#include "galley/check/locateError.h"
#include "tests/support/sources.h"
#include "tests/support/text.h"

namespace {

std::string documentError(std::string const& document) {
    return errorText("x", documentMessage(document), document);
}

std::string sheetError(std::string const& sheet) {
    return errorText("x", sheetMessage(sheet), sheet, SourceKind::Sheet);
}

/// A source, the line and the words of its error, the line as it is shown, and a mark in it over
/// the caret.
struct Case {
    std::string source;
    int line;
    std::string words;
    std::string shown;
    std::string caret;
};

std::string text(Case const& c) {
    std::string const number = std::to_string(c.line);
    return "x:" + number + ": error: " + c.words + "\n    " + number + " | " + c.shown +
           "\n      | " + c.caret + "\n";
}

TEST(ErrorText, ShowsTheLineOfEveryMessageAboutADocument) {
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
        {std::string("<table><![CDATA[ \0a]]></table>\n<td/>", 36), 2,
         "Cannot layout 'td' within 'html'", "<td/>", "^"},
        {"<table><tr display=\"none\">a</tr></table>\n<td/>", 2, "Cannot layout 'td' within 'html'",
         "<td/>", "^"},
        {"<p><p display=\"table-row\"/>\n<tr/></p>", 1, "Cannot layout 'p' within 'p'",
         "<p><p display=\"table-row\"/>", "   ^"},
    };
    for (Case const& c : cases) {
        EXPECT_EQ(documentError(c.source), text(c)) << c.source;
    }
}

TEST(ErrorText, ShowsTheStartTagOfAnElementThatIsNotClosed) {
    EXPECT_EQ(documentError("<div>\n<p><b>x</b>\n</div>"),
              "x:3: error: End tag </div> does not match start tag <p>\n"
              "    3 | </div>\n"
              "      | ^\n"
              "x:2: note: Start tag <p> is here\n"
              "    2 | <p><b>x</b>\n"
              "      | ^\n");
    EXPECT_EQ(documentError("<div>\n <p>x</p> y"),
              "x:2: error: Missing end tag at the end\n"
              "    2 |  <p>x</p> y\n"
              "      |            ^\n"
              "x:1: note: Start tag <div> is here\n"
              "    1 | <div>\n"
              "      | ^\n");
    // The last lines are empty ones.
    EXPECT_EQ(documentError("<p>\r\n\n"),
              "x:3: error: Missing end tag at the end\n"
              "    1 | <p>\n"
              "      |    ^\n"
              "x:1: note: Start tag <p> is here\n"
              "    1 | <p>\n"
              "      | ^\n");
}

TEST(ErrorText, ShowsTheLineOfEveryMessageAboutASheet) {
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

TEST(ErrorText, NamesNoPlaceWithoutOne) {
    EXPECT_EQ(errorText("x", "Out of memory", "<q/>"), "x: error: Out of memory\n");
    EXPECT_EQ(errorText("x", "Page too large: more than 9 cells", "<p>a</p>"),
              "x: error: Page too large: more than 9 cells\n");
    // Of another source.
    EXPECT_EQ(errorText("x", "Invalid tag: <q>", "<r/><q/>"), "x: error: Invalid tag: <q>\n");
    EXPECT_EQ(errorText("x", "Invalid tag: <q>", "</p><q/>"), "x: error: Invalid tag: <q>\n");
    EXPECT_EQ(errorText("x", "3: Expecting content"), "x:3: error: Expecting content\n");
    EXPECT_EQ(errorText("x", "Line 3: Expecting ':'", "a{}", SourceKind::Sheet),
              "x:3: error: Expecting ':'\n");
}

TEST(ErrorText, ShowsLinesAsTheyCanBeShown) {
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
        {"\xe9\xa9\xc3" + smiley + "\t<q/>", 1, invalid, "\xe9\xa9\xc3" + smiley + "\t<q/>",
         "     \t^"},
        // A mark without width, an accent on the letter before, and a wide letter.
        {"\xef\xbb\xbf"
         "e\xcc\x81\xe4\xb8\xad<q/>",
         1, invalid,
         "\xef\xbb\xbf"
         "e\xcc\x81\xe4\xb8\xad<q/>",
         "   ^"},
        {std::string(68, 'a') + "<q/>", 1, invalid, std::string(68, 'a') + "<q/>",
         std::string(68, ' ') + "^"},
        {std::string(69, 'a') + "<q/>", 1, invalid, dots + std::string(68, 'a') + "<q/>",
         std::string(71, ' ') + "^"},
        {"<q/>" + std::string(69, 'a'), 1, invalid, "<q/>" + std::string(68, 'a') + dots, "^"},
        {accents + "<q/>" + accents, 1, invalid,
         dots + repeat("\xc3\xa9", 36) + "<q/>" + repeat("\xc3\xa9", 32) + dots,
         std::string(39, ' ') + "^"},
        {repeat(smiley, 50) + "<q/>" + repeat("\xa9", 90), 1, invalid,
         dots + repeat(smiley, 18) + "<q/>" + repeat("\xa9", 32) + dots,
         std::string(39, ' ') + "^"},
    };
    for (Case const& c : cases) EXPECT_EQ(documentError(c.source), text(c)) << c.source;
    std::string const far(99999, '\n');
    EXPECT_EQ(documentError(far + "<q/>"),
              "x:100000: error: Invalid tag: <q>\n"
              "100000 | <q/>\n"
              "       | ^\n");
}

TEST(ErrorText, IsFoundInDeepDocumentsAndLongLines) {
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
    EXPECT_EQ(documentError(closed).rfind("x:2: error: Cannot layout 'td' within 'div'\n", 0), 0U);
}

/// Whether an error names the words of its message, and a line that the source has.
void check(std::string const& source, std::string const& message, SourceKind kind) {
    std::string const error = errorText("x", message, source, kind);
    std::size_t const colon = error.find(": error: ");
    ASSERT_NE(colon, std::string::npos) << error;
    std::string const words = error.substr(colon + 9, error.find('\n') - colon - 9);
    ASSERT_EQ(error.compare(0, 2, "x:"), 0) << error;
    int const line = std::stoi(error.substr(2, colon - 2));
    EXPECT_GE(line, 1) << error;
    EXPECT_LE(line, 1 + std::count(source.begin(), source.end(), '\n')) << error;
    std::string const prefix = std::to_string(line) + ": " + words;
    EXPECT_TRUE(message == words || message == prefix || message == "Line " + prefix) << error;

    auto const locate =
        kind == SourceKind::Document ? galley::locateInDocument : galley::locateInSheet;
    auto const place = locate(source, message);
    ASSERT_TRUE(place) << message;
    EXPECT_EQ(line, 1 + std::count(source.begin(),
                                   source.begin() + static_cast<long>(place->position), '\n'));
    if (message != words) return;
    // A construct is at fault, and nothing before it.
    std::string const before = documentMessage(source.substr(0, place->position));
    EXPECT_TRUE(before.empty() || before.ends_with("Missing end tag at the end")) << error;
    bool const isText = message.starts_with("Cannot layout 'text'");
    char const first = source[place->position];
    EXPECT_TRUE(isText ? std::isspace(static_cast<unsigned char>(first)) == 0 : first == '<')
        << error;
}

TEST(ErrorText, HoldsForMutationsOfTheExamples) {
    std::mt19937 random(1);
    int failures = 0;
    for (Source const& example : exampleSources()) {
        for (int i = 0; i < 150; ++i) {
            Source const source = mutant(example, random);
            std::string const message = source.message();
            if (message.empty()) continue;
            ++failures;
            check(source.text, message, source.isSheet ? SourceKind::Sheet : SourceKind::Document);
            if (testing::Test::HasFailure()) FAIL() << source.text;
        }
    }
    EXPECT_GT(failures, 300);
}

}  // namespace

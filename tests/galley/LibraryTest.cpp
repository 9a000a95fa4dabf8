// The library as programs in C++17 see it: one header, standard types.

#include <galley/galley.h>
#include <gmock/gmock.h>

#include <cstdlib>
#include <memory>

#include "tests/support/Terminal.h"

#if defined(GALLEY_EXPORT)
#error "The header brings others along"
#endif

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

/// Options of the core, for which all pages here are but the last.
galley::Options core(unsigned width = 0) {
    galley::Options options;
    options.dialect = galley::Dialect::core;
    options.width = width;
    return options;
}

galley::Result<galley::Sheet> parse(std::string const& css, std::string const& name = "<sheet>") {
    return galley::Sheet::parse(css, name, galley::Dialect::core);
}

/// The text of what failed.
template <class T>
std::string errorsOf(galley::Result<T> const& result) {
    std::string all;
    for (galley::Diagnostic const& error : result.errors()) all += error.text();
    return all;
}

/// What is printed to a file.
struct Printed {
    galley::Result<void> result;
    std::string text;
};

Printed print(std::string_view markup, galley::Options const& options) {
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> const file(std::tmpfile(), std::fclose);
    Printed printed{galley::print(markup, {}, options, file.get()), {}};
    std::rewind(file.get());
    for (int c = 0; (c = std::fgetc(file.get())) != EOF;) printed.text += static_cast<char>(c);
    return printed;
}

TEST(Library, RendersAsTheOptionsSay) {
    struct Case {
        galley::Color color;
        galley::Format format;
        char const* page;
    };
    constexpr Case cases[] = {
        {galley::Color::always, galley::Format::ansi, "aa \x1b[0m\x1b[1mbb \x1b[0m\ncc\n"},
        {galley::Color::never, galley::Format::ansi, "aa bb\ncc\n"},
        {galley::Color::always, galley::Format::plain, "aa bb\ncc\n"},
        {galley::Color::never, galley::Format::html, "<pre "},
        {galley::Color::never, galley::Format::svg, "<svg "},
    };
    for (auto const& [color, format, page] : cases) {
        galley::Options options = core(6);
        options.color = color;
        options.format = format;
        EXPECT_THAT(*galley::render("aa <b>bb </b>cc", {}, options), StartsWith(page));
    }
    galley::Options options = core();
    options.format = galley::Format::html;
    options.standalone = true;
    options.name = "folder/page.xml";
    std::string const document = *galley::render("x", {}, options);
    EXPECT_THAT(document, StartsWith("<!DOCTYPE html>"));
    EXPECT_THAT(document, HasSubstr("<title>page.xml</title>"));
    options.dialect = galley::Dialect::web;
    std::string const titled = *galley::render(
        "<html xml:lang='de'><head><title>\n A &amp;\n B</title></head></html>", {}, options);
    EXPECT_THAT(titled, HasSubstr("<html lang=\"de\">"));
    EXPECT_THAT(titled, HasSubstr("<title>A &amp; B</title>"));
}

TEST(Library, PrintsWhatSuitsTheFile) {
    setenv("COLUMNS", "3", 1);
    EXPECT_EQ(print("aa <b>bb</b>", core()).text, "aa\nbb\n");
    EXPECT_EQ(*galley::render("aa bb", {}, core()), "aa\nbb\n");
    EXPECT_EQ(print("aa bb", core(9)).text, "aa bb\n");
    Terminal terminal;
    {
        std::unique_ptr<std::FILE, int (*)(std::FILE*)> const file(
            std::fopen(ttyname(terminal.terminal), "w"), std::fclose);
        EXPECT_TRUE(galley::print("aa <b>bb</b> cc", {}, core(), file.get()));
    }
    EXPECT_EQ(terminal.seen(), "aa \x1b[0m\x1b[1mbb\x1b[0m\r\ncc\r\n");
    unsetenv("COLUMNS");
}

TEST(Library, SaysWhyThereIsNoPage) {
    galley::Options options = core();
    options.name = "page.xml";
    auto const page = galley::render("<p>\n \xc3\xa9 <b>x</p>", {}, options);
    ASSERT_FALSE(page);
    galley::Diagnostic const& error = page.error();
    EXPECT_EQ(error.message(), "End tag </p> does not match start tag <b>");
    EXPECT_EQ(error.source(), "page.xml");
    EXPECT_EQ(error.line(), 2U);
    EXPECT_EQ(error.column(), 8U);
    EXPECT_EQ(error.excerpt(), "    2 |  \xc3\xa9 <b>x</p>\n      |        ^\n");
    EXPECT_EQ(error.text(), "page.xml:2:8: error: End tag </p> does not match start tag <b>\n" +
                                error.excerpt() +
                                "page.xml:2:4: note: Start tag <b> is here\n"
                                "    2 |  \xc3\xa9 <b>x</p>\n      |    ^\n");
    try {
        page.value();
        FAIL() << "no exception";
    } catch (galley::Failure const& failure) {
        EXPECT_EQ(failure.what(), error.text());
    }
    EXPECT_EQ(galley::render("<p padding=\"2000000000\"/>x", {}, core()).error().text(),
              "<document>: error: Page too large: more than 67108864 cells\n");
}

TEST(Library, WritesNothingOfAPageThatFails) {
    Printed const printed = print("<p>a</p><q/>", core());
    EXPECT_EQ(printed.text, "");
    EXPECT_THAT(errorsOf(printed.result), StartsWith("<document>:1:9: error: Invalid tag: <q>\n"));
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> const full(std::fopen("/dev/full", "w"),
                                                               std::fclose);
    EXPECT_EQ(errorsOf(galley::print("a", {}, core(), full.get())),
              "<output>: error: No space left on device\n");
}

TEST(Library, AddsSheetsUpInTheirOrder) {
    auto const rule = [](char const* cells) {
        return *parse("p { padding-left: " + std::string(cells) + "; }");
    };
    galley::Sheet const one = rule("1");
    galley::Sheet const three = rule("3");
    galley::Sheet sum = one + three;
    EXPECT_EQ(*galley::render("<p>x</p>", sum, core()), "   x\n");
    EXPECT_EQ(*galley::render("<p>x</p>", galley::Sheet() + sum + one, core()), " x\n");
    galley::Sheet const copy = sum;
    sum += rule("2");
    EXPECT_EQ(*galley::render("<p>x</p>", sum, core()), "  x\n");
    EXPECT_EQ(*galley::render("<p>x</p>", copy, core()), "   x\n");
    EXPECT_EQ(*galley::render("<p>x</p>", three + galley::Sheet(), core()), "   x\n");
}

TEST(Library, TellsAllFaultsOfASheetAtOnce) {
    auto const sheet = parse("p { color red; }\nb {}\nh1 { margin: 1 }", "s.css");
    ASSERT_FALSE(sheet);
    EXPECT_EQ(errorsOf(sheet),
              "s.css:1:11: error: Expecting ':'\n"
              "    1 | p { color red; }\n"
              "      |           ^\n"
              "s.css:3:16: error: Expecting ';'\n"
              "    3 | h1 { margin: 1 }\n"
              "      |                ^\n");
}

TEST(Library, ChecksADocumentAndItsSheet) {
    galley::Sheet const sheet = *parse("p { colour: red; }", "s.css");
    galley::Options options = core();
    options.name = "d.xml";
    std::vector<std::string> told;
    for (auto const& found : galley::check("<p class=\"a\">x<td/></p>", sheet, options)) {
        std::string const text = found.text();
        told.push_back(text.substr(0, text.find('\n')));
    }
    EXPECT_THAT(told, ElementsAre(StartsWith("s.css:1:5: warning: 'colour' "),
                                  StartsWith("d.xml:1:4: warning: 'class' "),
                                  "d.xml:1:15: error: Cannot layout 'td' within 'p'"));
    EXPECT_TRUE(galley::check("<p>x</p>", {}, core()).empty());
    EXPECT_EQ(galley::check("<p padding=\"2000000000\"/>x", {}, core()).size(), 1U);
}

TEST(Library, LetsControlsThroughWhereTheyAreWanted) {
    galley::Sheet const sheet = *parse("p { border-left-width: 1; border-left-style: \x1b; }");
    galley::Options options = core();
    options.color = galley::Color::always;
    EXPECT_EQ(*galley::render("<p>\x07</p>", sheet, options), "??\n");
    options.raw = true;
    EXPECT_EQ(*galley::render("<p>\x07</p>", sheet, options), "\x1b\x07\n");
    // But never where an error is shown; and what is checked is what would be shown.
    EXPECT_EQ(galley::render("\x1b\x07x<q/>", sheet, options).error().excerpt(),
              "    1 | <U+001B><U+0007>x<q/>\n      |                  ^\n");
    using namespace std::literals;
    std::string_view const nul = "<p>a\0</p>"sv;
    EXPECT_EQ(galley::check(nul, sheet, options).size(), 1U);
    options.raw = false;
    EXPECT_TRUE(galley::check(nul, sheet, options).empty());
}

TEST(Library, SkipsTheMarkThatEditorsPutBeforeUtf8) {
    std::string const mark = "\xef\xbb\xbf";
    for (bool const isRaw : {false, true}) {
        galley::Options options = core();
        options.raw = isRaw;
        galley::Sheet const sheet = *parse(mark + "p { padding-left: 2; }");
        EXPECT_EQ(*galley::render(mark + "<p>a</p>" + mark, sheet, options), "  a\n" + mark + "\n");
        EXPECT_EQ(galley::render(mark + "<q/>", {}, options).error().column(), 1U);
    }
    EXPECT_TRUE(galley::check(mark + "<p>a</p>", {}, core()).empty());
    EXPECT_TRUE(galley::checkSheet(mark + "p { color: red; }", "", galley::Dialect::core).empty());
}

TEST(Library, EscapesDataForWhereItStands) {
    std::string all;
    for (char c = '!'; c <= '~'; ++c) all += c;
    for (std::string const& data : {all, std::string("&amp;"), std::string("R&D; \"x\" <b>")}) {
        EXPECT_EQ(*galley::render("<p>" + galley::escape(data) + "</p>", {}, core(200)),
                  data + "\n");
        // The corners of a border as wide as one letter.
        std::string const markup =
            "<p border-width=\"1\" border-corner-style=\"" + galley::escapeAttribute(data) + "\"/>";
        EXPECT_THAT(galley::render(markup, {}, core(200)).value(), HasSubstr(data));
    }
    EXPECT_EQ(galley::escape(""), "");
}

TEST(Library, ReadsDocumentsInTheDialectThatTheySayUnlessAskedOtherwise) {
    std::string const table = "<table><tr><td>a</td><td>b</td></tr></table>";
    std::string const web = "<?galley dialect=\"web\"?>" + table;
    std::string const core = "<?galley dialect=\"core\"?>" + table;
    EXPECT_EQ(*galley::render(web), " a  b\n");
    EXPECT_EQ(*galley::render(core), "ab\n");
    galley::Options options;
    options.dialect = galley::Dialect::core;
    EXPECT_EQ(*galley::render(web, {}, options), "ab\n");
    options.dialect = galley::Dialect::web;
    EXPECT_EQ(*galley::render(core, {}, options), " a  b\n");
    auto const sheet = galley::Sheet::parse("td { color: red; }", "s.css", galley::Dialect::web);
    EXPECT_TRUE(galley::render(web, *sheet));
    EXPECT_EQ(galley::render(core, *sheet).error().source(), "s.css");
    auto const error = galley::render("\n<?galley dialect=\"x\"?>" + table).error();
    EXPECT_EQ(error.line(), 2U);
    EXPECT_EQ(error.column(), 9U);
    EXPECT_EQ(galley::check("<?galley dialect=\"x\"?>" + table).size(), 1U);
}

}  // namespace

// The library for C, with nothing of the one for C++ beside it.

#include <galley/c.h>
#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

/// A report that is freed.
struct Report {
    Report() = default;
    Report(Report const&) = delete;
    Report& operator=(Report const&) = delete;
    ~Report() { galley_report_free(report); }

    /// The first lines of all that it says.
    std::string headings() const {
        std::string all;
        for (std::size_t i = 0; i < galley_report_count(report); ++i) {
            std::string const text = galley_report_text(report, i);
            all += text.substr(0, text.find('\n') + 1);
        }
        return all;
    }

    galley_report* report = nullptr;
};

/// A text of the library's, freed there.
std::string take(char* text) {
    std::string copy = text != nullptr ? text : "null";
    galley_free(text);
    return copy;
}

std::string render(std::string const& markup, galley_sheet const* sheet,
                   galley_options const* options, Report& report) {
    std::size_t length = 0;
    char* const page =
        galley_render(markup.data(), markup.length(), sheet, options, &length, &report.report);
    EXPECT_EQ(length, page != nullptr ? std::strlen(page) : 0U);
    return take(page);
}

/// Options of the core.
galley_options core() {
    galley_options options = {};
    options.size = sizeof options;
    options.dialect = GALLEY_DIALECT_CORE;
    return options;
}

TEST(CInterface, RendersWithSheetsInTheirOrder) {
    galley_sheet* const sheet = galley_sheet_new();
    for (std::string const css : {"p { padding-left: 1; }", "p { padding-left: 2; }"}) {
        EXPECT_EQ(galley_sheet_add(sheet, css.data(), css.length(), nullptr, GALLEY_DIALECT_CORE,
                                   nullptr),
                  1);
    }
    Report report;
    std::string const bad = "p {}\nq";
    EXPECT_EQ(galley_sheet_add(sheet, bad.data(), bad.length(), "s.css", GALLEY_DIALECT_CORE,
                               &report.report),
              0);
    EXPECT_EQ(report.headings(), "s.css:2:2: error: Expecting '{'\n");
    Report none;
    galley_options const options = core();
    EXPECT_EQ(render("<p>x</p>", sheet, &options, none), "  x\n");
    EXPECT_EQ(render("<p>x</p>", nullptr, &options, none), "x\n");
    EXPECT_EQ(none.report, nullptr);
    galley_sheet_free(sheet);
}

TEST(CInterface, TakesOptionsOfAnySize) {
    galley_options options = core();
    options.width = 3;
    options.color = GALLEY_COLOR_ALWAYS;
    options.name = "d.xml";
    Report report;
    EXPECT_EQ(render("aa <b>bb</b>", nullptr, &options, report), "aa \n\x1b[0m\x1b[1mbb\x1b[0m\n");
    EXPECT_EQ(render("<q/>", nullptr, &options, report), "null");
    EXPECT_EQ(report.headings(), "d.xml:1:1: error: Invalid tag: <q>\n");
    // Those of a caller that knows less, or more.
    options.size = offsetof(galley_options, color);
    Report none;
    EXPECT_EQ(render("aa <b>bb</b>", nullptr, &options, none), "aa\nbb\n");
    struct {
        galley_options known;
        int unknown[4];
    } later = {options, {7, 7, 7, 7}};
    later.known.size = sizeof later;
    EXPECT_EQ(render("aa bb", nullptr, &later.known, none), "aa \nbb\n");
}

TEST(CInterface, ReportsAllThatItFinds) {
    std::string const markup = "<p class=\"a\">x</p>\n<td/>";
    Report report;
    galley_options const options = core();
    report.report = galley_check(markup.data(), markup.length(), nullptr, &options);
    ASSERT_EQ(galley_report_count(report.report), 2U);
    EXPECT_EQ(galley_report_severity(report.report, 0), GALLEY_WARNING);
    EXPECT_EQ(galley_report_severity(report.report, 1), GALLEY_ERROR);
    EXPECT_STREQ(galley_report_message(report.report, 1), "Cannot layout 'td' within 'html'");
    EXPECT_STREQ(galley_report_source(report.report, 1), "<document>");
    EXPECT_EQ(galley_report_line(report.report, 1), 2U);
    EXPECT_EQ(galley_report_column(report.report, 1), 1U);
    Report ofSheet;
    ofSheet.report = galley_check_sheet("P {}", 4, "s.css", GALLEY_DIALECT_CORE);
    EXPECT_EQ(ofSheet.headings().substr(0, 19), "s.css:1:1: warning:");
    Report clean;
    clean.report = galley_check("x", 1, nullptr, nullptr);
    EXPECT_NE(clean.report, nullptr);
    EXPECT_EQ(galley_report_count(clean.report), 0U);
}

TEST(CInterface, ReadsADialectOnlyWhereItIsAskedForOrSaid) {
    std::string const table = "<table><tr><td>a</td><td>b</td></tr></table>";
    Report report;
    galley_options options = core();
    EXPECT_EQ(render(table, nullptr, nullptr, report), " a  b\n");
    EXPECT_EQ(render("<?galley dialect=\"core\"?>" + table, nullptr, nullptr, report), "ab\n");
    EXPECT_EQ(render(table, nullptr, &options, report), "ab\n");
    options.dialect = GALLEY_DIALECT_WEB;
    EXPECT_EQ(render("<?galley dialect=\"core\"?>" + table, nullptr, &options, report), " a  b\n");
    galley_sheet* const sheet = galley_sheet_new();
    EXPECT_EQ(galley_sheet_add(sheet, "td { padding: 0 }", 17, nullptr, 0, nullptr), 1);
    EXPECT_EQ(render(table, sheet, nullptr, report), "ab\n");
    galley_sheet_free(sheet);
}

TEST(CInterface, EscapesByTheLengthOfTheText) {
    EXPECT_EQ(take(galley_escape("a<b\"&c", 5)), "a&lt;b\"&amp;");
    EXPECT_EQ(take(galley_escape_attribute("a<b\"&c", 5)), "a&lt;b&quot;&amp;");
    EXPECT_EQ(take(galley_escape(nullptr, 0)), "");
}

}  // namespace

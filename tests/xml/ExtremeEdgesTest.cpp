// Which documents and sheets forbid that a page is painted while its document is read.

#include "xml/extremeEdges.h"

#include "tests/support/document.h"
#include "tests/support/examples.h"

namespace CLI::XML {
namespace {

constexpr char const* s_edges[] = {
    "margin",        "margin-left",      "margin-right",        "margin-top",
    "margin-bottom", "border-width",     "border-left-width",   "border-right-width",
    "padding",       "border-top-width", "border-bottom-width", "padding-left",
    "padding-right", "padding-top",      "padding-bottom",
};

bool isExtremeDocument(std::string_view markup) {
    return mayHaveExtremeEdges(String(markup.data(), 0, static_cast<int>(markup.length())),
                               StyleList());
}

/// As an attribute.
bool isExtreme(std::string const& name, std::string const& value) {
    return isExtremeDocument("<p " + name + "=\"" + value + "\">a</p>");
}

bool isExtremeInSheet(std::string const& name, std::string const& value) {
    Sheet const sheet(("b{x:y;} p{color:red;" + name + ":" + value + ";} i{}").c_str());
    return mayHaveExtremeEdges("<p>a</p>", sheet.rules);
}

TEST(ExtremeEdges, AreNegativeOrLargeNumbers) {
    struct Case {
        char const* value;
        bool isExtreme;
    };
    static constexpr Case s_cases[] = {
        {"", false},
        {"0", false},
        {"-", false},
        {"-0", false},
        {"-000", false},
        {"-x1", false},
        {"--1", false},
        {"+-1", false},
        {"- 1", false},
        {"1-1", false},
        {"x-1", false},
        {"9999", false},
        {"+9999px", false},
        {"0000009999", false},
        {"&", false},
        {"&-1", false},
        {"&#45", false},
        {"|", false},
        {"-1", true},
        {"-1px", true},
        {"-0001", true},
        {"10000", true},
        {"+10000", true},
        {"0010000", true},
        {"4294967297", true},
        {"99999999999999999999999999", true},
        {"-99999999999999999999999999", true},
    };
    for (auto const& [value, expected] : s_cases) {
        for (char const* const edge : s_edges) {
            EXPECT_EQ(isExtreme(edge, value), expected) << edge << ": " << value;
            // A value in a sheet is never empty, and may hold no white space.
            if (*value == '\0' || std::string_view(value) == "- 1") continue;
            EXPECT_EQ(isExtremeInSheet(edge, value), expected) << edge << ": " << value;
        }
        for (char const* const other : {"border-style", "border-corner-style", "x-margin",
                                        "margin-", "Margin", "margi", "argin", "color", "width"}) {
            EXPECT_FALSE(isExtreme(other, value)) << other << ": " << value;
        }
    }
    EXPECT_FALSE(isExtremeInSheet("border-style", "-1"));
    EXPECT_FALSE(isExtremeInSheet("x-margin", "-1"));
}

// The reader's own account: the value that a margin gets, decoded, as a number.
TEST(ExtremeEdges, AreWhatTheValueIsWhenItIsDecoded) {
    static constexpr char const* s_pieces[] = {"-",     "+",      "1",     "0000", "&x;", "&;",
                                               "&amp;", "&quot;", "&",     ";",    " ",   "\t",
                                               "\n",    "\v\f\r", "&#45;", "&lt",  "x"};
    constexpr unsigned s_count = std::size(s_pieces);
    unsigned extreme = 0;
    for (unsigned n = 0; n < s_count * s_count * s_count * s_count; ++n) {
        std::string value;
        for (unsigned rest = n; rest > 0; rest /= s_count) value += s_pieces[rest % s_count];
        String const decoded = decodeReferences(value.c_str(), PullParser::s_specialReplacement);
        int const cells = decoded.toInteger();
        bool const expected = cells < 0 || cells > 9999;
        extreme += expected ? 1 : 0;
        ASSERT_EQ(isExtreme("margin", value), expected) << value;
    }
    EXPECT_GT(extreme, 1000);
}

TEST(ExtremeEdges, AreFoundWhereverAnAttributeMayStand) {
    using namespace std::string_view_literals;
    for (std::string_view const markup : {
             "<p margin=\"-1\">a</p>"sv,
             "<p margin=\"-1\"/>"sv,
             "<p a=\"x\" margin=\"-1\">"sv,
             "<p a=\"x\"margin=\"-1\">"sv,
             "<p a=\"\"margin=\"-1\">"sv,
             "<p a=\"=\"margin=\"-1\">"sv,
             "<p a=\"padding=\" margin=\"-1\">"sv,
             "<p a=\"&quot;\" margin=\"-1\">"sv,
             "<p\tmargin=\"-1\">"sv,
             "<p\nmargin=\"-1\">"sv,
             "<p\rmargin=\"-1\">"sv,
             "<p\0margin=\"-1\">"sv,
             "<p \0 margin=\"-1\">"sv,
             "\"<p margin=\"-1\">"sv,
             "=\"<p margin=\"-1\">"sv,
             "<!-- a=\"--><p margin=\"-1\">"sv,
             "<![CDATA[ margin=\"]]><p margin=\"-1\">"sv,
             "<p>a</p>\0<p margin=\"-1\">"sv,
             "<p margin=\"1\" margin=\"-1\">"sv,
         }) {
        EXPECT_TRUE(isExtremeDocument(markup)) << markup;
    }
}

TEST(ExtremeEdges, AreNotInWhatIsNoValueOfAnEdge) {
    for (char const* const markup : {
             "",
             "\"",
             "=\"",
             "margin=",
             "margin=\"",
             "margin: -1; margin=-1; margin='-1'; \"-1\" margin = \"-1\"",
             "<p a=\"margin=\">-1\"</p>",
             "<p margin=\"&\" title=\";-1\"/>",
             "<p class=\"-1\" title=\"12345\">&gt;-1 \"10000\"</p>",
             "<table border-style=\"-\" border-left-style=\"&gt;\" title=\"&quot;a&quot;\"/>",
         }) {
        EXPECT_FALSE(isExtremeDocument(markup)) << markup;
    }
}

TEST(ExtremeEdges, AreInNoExample) {
    for (Example const& example : examples()) {
        Sheet const sheet(example.css.c_str());
        EXPECT_FALSE(mayHaveExtremeEdges(example.markup.c_str(), sheet.rules)) << example.name;
    }
}

}  // namespace
}  // namespace CLI::XML

// Which documents and sheets forbid that a page is painted while its document is read.

#include "xml/reachesUp.h"

#include "tests/support/document.h"
#include "tests/support/examples.h"

namespace CLI::XML {
namespace {

constexpr char const* s_edges[] = {
    "margin",       "margin-top",       "margin-bottom",
    "border-width", "border-top-width", "border-bottom-width",
    "padding",      "padding-top",      "padding-bottom",
};

bool reachesUpInDocument(std::string_view markup) {
    return mayReachUp(String(markup.data(), 0, static_cast<int>(markup.length())), StyleList());
}

/// As an attribute.
bool reachesUp(std::string const& name, std::string const& value) {
    return reachesUpInDocument("<p " + name + "=\"" + value + "\">a</p>");
}

bool reachesUpInSheet(std::string const& name, std::string const& value) {
    Sheet const sheet(("b{x:y;} p{color:red;" + name + ":" + value + ";} i{}").c_str());
    return mayReachUp("<p>a</p>", sheet.rules);
}

TEST(ReachesUp, AVerticalEdgeThatMayBeNegativeOrHuge) {
    struct Case {
        char const* value;
        bool doesReachUp;
    };
    static constexpr Case s_cases[] = {
        {"0", false},        {"1", false},        {"|", false},
        {"+10000px", false}, {"99999999", false}, {"2147483647", true},
        {"-1", true},        {"-1px", true},      {"-99999999999999999999999999", true},
        {"&x;-1", true},     {"&-1", true},
    };
    for (auto const& [value, expected] : s_cases) {
        for (char const* const edge : s_edges) {
            EXPECT_EQ(reachesUp(edge, value), expected) << edge << ": " << value;
            if (std::string_view(value).find(';') != std::string_view::npos) continue;
            EXPECT_EQ(reachesUpInSheet(edge, value), expected) << edge << ": " << value;
        }
        for (char const* const other :
             {"margin-left", "margin-right", "border-left-width", "border-right-width",
              "padding-left", "padding-right", "border-style", "border-corner-style", "x-margin",
              "margin-", "Margin", "margi", "argin", "color", "width"}) {
            EXPECT_FALSE(reachesUp(other, value)) << other << ": " << value;
        }
    }
}

// The reader's own account: the value that a margin gets, decoded, as a number.
TEST(ReachesUp, WhatIsNegativeWhenItIsDecoded) {
    static constexpr char const* s_pieces[] = {"-",     "+",      "1", "0000", "&x;", "&;",
                                               "&amp;", "&quot;", "&", ";",    " ",   "x"};
    constexpr unsigned s_count = std::size(s_pieces);
    unsigned negative = 0;
    for (unsigned n = 0; n < s_count * s_count * s_count * s_count; ++n) {
        std::string value;
        for (unsigned rest = n; rest > 0; rest /= s_count) value += s_pieces[rest % s_count];
        String const decoded = decodeReferences(value.c_str(), PullParser::s_specialReplacement);
        if (decoded.toInteger() >= 0) continue;
        ++negative;
        ASSERT_TRUE(reachesUp("margin", value)) << value;
    }
    EXPECT_GT(negative, 100);
}

TEST(ReachesUp, AnEdgeWhereverAnAttributeMayStand) {
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
        EXPECT_TRUE(reachesUpInDocument(markup)) << markup;
    }
}

TEST(ReachesUp, NothingThatIsNoValueOfAnEdge) {
    for (char const* const markup : {
             "",
             "\"",
             "=\"",
             "margin=",
             "margin=\"",
             "margin: -1; margin=-1; margin='-1'; \"-1\" margin = \"-1\"",
             "<p class=\"-1\" title=\"-12\">&gt;-1 \"-1\"</p>",
             "<table border-style=\"-\" border-left-style=\"&gt;\" title=\"&quot;a&quot;\"/>",
         }) {
        EXPECT_FALSE(reachesUpInDocument(markup)) << markup;
    }
}

TEST(ReachesUp, NoExample) {
    for (Example const& example : examples()) {
        Sheet const sheet(example.css.c_str());
        EXPECT_FALSE(mayReachUp(example.markup.c_str(), sheet.rules)) << example.name;
    }
}

}  // namespace
}  // namespace CLI::XML

// What a conversion has finished it lets go of: of a long page only the text stays.

#include "tests/memory/allocations.h"
#include "tests/support/document.h"
#include "tests/support/examples.h"
#include "xml/xml.h"

namespace CLI::XML {
namespace {

/// The most bytes of `usage` that a conversion adds to what was in use before it.
long mostHeld(Allocations::Usage& usage, String& page, String const& markup,
              StyleList const& styles = {}) {
    long const before = usage.bytes;
    usage.peak = before;
    EXPECT_EQ(outcome(xmlToText(page, markup, styles, 80)), "ok");
    return usage.peak - before;
}

/// Of these only blocks that are not of the page's text, which is a long one.
long mostHeldBesideText(String& page, String const& markup, StyleList const& styles = {}) {
    return mostHeld(Allocations::s_smallUsage, page, markup, styles);
}

TEST(LettingGo, LeavesOnlyTheTextOfAPage) {
    std::vector<Example> documents = examples();
    documents.push_back({"lines", "one two three four five six seven eight nine ten eleven ", ""});
    documents.push_back({"blocks with a border", "<p border-width=\"1\">one two three</p>", ""});
    documents.push_back({"blocks in a block", "<div><p>one</p><p>two</p></div>", ""});
    for (Example const& document : documents) {
        SCOPED_TRACE(document.name);
        Sheet const sheet(document.css.c_str());
        unsigned const times = 1'000'000 / static_cast<unsigned>(document.markup.length());
        String page;
        long const held =
            mostHeldBesideText(page, String::repeat(document.markup.c_str(), times), sheet.rules);
        EXPECT_GT(page.length(), 2 * static_cast<int>(Allocations::s_large));
        EXPECT_LT(held, page.length() / 4);
    }
}

TEST(LettingGo, LeavesOnlyTheTextOfABlockThatIsOpen) {
    std::string markup = "<div padding-left=\"1\">";
    for (int i = 0; i < 50'000; ++i) markup += "<p>one two three</p>";
    markup += "</div>";
    String page;
    long const held = mostHeldBesideText(page, markup.c_str());
    EXPECT_EQ(page.length(), 50'000 * 15);
    EXPECT_LT(held, page.length() / 4);
}

// The cells of a table are kept until it ends, but not its rows on the page.
TEST(LettingGo, LeavesNoRowOfATable) {
    std::string markup = "<table>";
    for (int i = 0; i < 500; ++i) markup += "<tr><td padding-left=\"4000\">a</td></tr>";
    markup += "</table>";
    String page;
    long const held = mostHeldBesideText(page, markup.c_str());
    EXPECT_EQ(page.length(), 500 * 4002);
    EXPECT_LT(held, page.length() / 2);
}

// A page of prose is a little longer than its document, by the line feeds.
TEST(LettingGo, LeavesTheTextOfProseWhereItIs) {
    std::string paragraph = "<p>";
    for (int i = 0; i < 100; ++i) paragraph += "one two three four ";
    paragraph += "</p>";
    String const prose = String::repeat(paragraph.c_str(), 500);
    String page;
    long const held = mostHeld(Allocations::s_usage, page, prose);
    EXPECT_GT(page.length(), prose.length());
    EXPECT_LT(held, page.length() / 4 * 5);
}

// Rows that have left the page are used again, long ones too.
TEST(LettingGo, LeavesFewOfManyLongRows) {
    String const word = String::repeat("x", 10'000);
    String const paragraphs =
        String::repeat(("<p>" + std::string(word.view()) + "</p>").c_str(), 500);
    String page;
    long const held = mostHeld(Allocations::s_usage, page, paragraphs);
    EXPECT_EQ(page.length(), 500 * 10'001);
    EXPECT_LT(held, page.length() / 2 * 3);
}

}  // namespace
}  // namespace CLI::XML

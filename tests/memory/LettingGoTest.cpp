// What a conversion has finished it lets go of: of a long page only the text stays.

#include "tests/memory/allocations.h"
#include "tests/support/document.h"
#include "tests/support/examples.h"
#include "xml/xml.h"

namespace CLI::XML {
namespace {

/// The most bytes that a conversion holds at once in blocks that are not of the page's text, which
/// is a long one. The text has a buffer of its own, or two while that grows.
long bytesBesideText(String& page, String const& markup, StyleList const& styles) {
    long const before = Allocations::s_smallBytes;
    Allocations::s_smallPeak = before;
    EXPECT_EQ(outcome(xmlToText(page, markup, styles, 80)), "ok");
    return Allocations::s_smallPeak - before;
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
            bytesBesideText(page, String::repeat(document.markup.c_str(), times), sheet.rules);
        EXPECT_GT(page.length(), 2 * static_cast<int>(Allocations::s_large));
        EXPECT_LT(held, page.length() / 4);
    }
}

// The cells of a table are kept until it ends, but not its rows on the page.
TEST(LettingGo, LeavesNoRowOfATable) {
    std::string markup = "<table>";
    for (int i = 0; i < 500; ++i) markup += "<tr><td padding-left=\"4000\">a</td></tr>";
    markup += "</table>";
    String page;
    long const held = bytesBesideText(page, markup.c_str(), StyleList());
    EXPECT_EQ(page.length(), 500 * 4002);
    EXPECT_LT(held, page.length() / 2);
}

}  // namespace
}  // namespace CLI::XML

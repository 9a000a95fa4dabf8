// Conversions on several threads at once. Under ThreadSanitizer this is a test of every access that
// they make.

#include <clocale>
#include <latch>
#include <string>
#include <thread>
#include <vector>

#include "tests/support/document.h"
#include "xml/xml.h"

namespace CLI::XML {
namespace {

constexpr char const* s_sheet =
    "p { color: red; padding-left: 1; } td { border-width: 1; } b { font-style: italic; }";

constexpr char const* s_documents[] = {
    "<p>one <b>two </b>three four</p><p>five &nbsp; six</p>",
    "<p color=\"blue\">a<b padding=\"1\">b</b></p><b>c d e f g h</b>",
    "<table><tr><td>1</td><td>2<p>3</p></td></tr><tr><td>44444</td></tr></table>",
    "<p margin-left=\"-1\">negative</p><p>x",
    "<p>caf\xC3\xA9\xA0\x85 <q/>",
    "<p margin-left=\"2000000000\">large</p>",
};

/// Everything that comes of the documents, pages and messages.
std::string convertAll(StyleList const& styles) {
    std::string results;
    for (char const* const document : s_documents) {
        for (unsigned const width : {4U, 20U, 80U}) {
            String out;
            XCode const result = xmlToText(out, document, styles, width);
            results += result ? out.c_str() : result.getString().c_str();
        }
    }
    return results;
}

TEST(Threads, ShareARuleList) {
    Sheet const sheet(s_sheet);
    std::string const expected = convertAll(sheet.rules);
    constexpr int s_threads = 8;
    constexpr int s_rounds = 20;
    std::string results[s_threads];
    std::latch start(s_threads);
    {
        std::vector<std::jthread> threads;
        for (std::string& result : results) {
            threads.emplace_back([&] {
                start.arrive_and_wait();
                for (int i = 0; i < s_rounds; ++i) result += convertAll(sheet.rules);
            });
        }
    }
    std::string allRounds;
    for (int i = 0; i < s_rounds; ++i) allRounds += expected;
    for (std::string const& result : results) EXPECT_EQ(result, allRounds);
    for (ZRLWPtr<StyleNode> const& rule : sheet.rules) EXPECT_EQ(rule->refCount, 1);
}

TEST(Threads, CountReferencesToARule) {
    Sheet const sheet(s_sheet);
    ZRLWPtr<StyleNode> const& rule = *sheet.rules.begin();
    constexpr int s_threads = 8;
    std::latch start(s_threads);
    {
        std::vector<std::jthread> threads;
        for (int i = 0; i < s_threads; ++i) {
            threads.emplace_back([&] {
                start.arrive_and_wait();
                for (int copies = 0; copies < 20000; ++copies) ZRLWPtr<StyleNode> const copy(rule);
            });
        }
    }
    EXPECT_EQ(rule->refCount, 1);
}

TEST(Threads, HaveLocalesOfTheirOwn) {
    Sheet const sheet(s_sheet);
    std::string const expected = convertAll(sheet.rules);
    char const* const names[] = {"C", "C.UTF-8", "POSIX", "C.UTF-8"};
    std::string results[std::size(names)];
    std::latch start(std::size(names));
    {
        std::vector<std::jthread> threads;
        for (std::size_t i = 0; i < std::size(names); ++i) {
            threads.emplace_back([&, i] {
                locale_t const own = newlocale(LC_ALL_MASK, names[i], nullptr);
                ASSERT_NE(own, nullptr) << names[i];
                uselocale(own);
                start.arrive_and_wait();
                results[i] = convertAll(sheet.rules);
                EXPECT_EQ(uselocale(nullptr), own) << names[i];
                uselocale(LC_GLOBAL_LOCALE);
                freelocale(own);
            });
        }
    }
    for (std::string const& result : results) EXPECT_EQ(result, expected);
}

}  // namespace
}  // namespace CLI::XML

// Pages of the dialect web on several threads at once, of one sheet and one set of options. Under
// ThreadSanitizer this is a test of every access that they make.

#include <gtest/gtest.h>

#include <latch>
#include <string>
#include <thread>
#include <vector>

#include "galley/galley.h"
#include "tests/support/webDocument.h"

namespace galley {
namespace {

/// All that comes of the document, pages and warnings.
std::string renderAll(Sheet const& sheet, Options const& common) {
    std::string results;
    for (Format const format : {Format::plain, Format::ansi, Format::html, Format::svg}) {
        Options options = common;
        options.format = format;
        results += *render(WebDocument::markup, sheet, options);
    }
    for (Diagnostic const& each : check(WebDocument::markup, sheet, common)) {
        results += each.message();
    }
    for (Diagnostic const& each : checkSheet(WebDocument::css, {}, Dialect::web)) {
        results += each.message();
    }
    return results;
}

TEST(LibraryThreads, ShareASheetAndOptions) {
    constexpr int s_threads = 8;
    constexpr int s_rounds = 5;
    Sheet const sheet = *Sheet::parse(WebDocument::css, {}, Dialect::web);
    Options options;
    options.dialect = Dialect::web;
    options.width = 30;
    options.color = Color::always;
    std::string results[s_threads];
    std::latch start(s_threads);
    {
        std::vector<std::jthread> threads;
        for (std::string& result : results) {
            // The first pages are made on all of them: what is made once is, too.
            threads.emplace_back([&] {
                start.arrive_and_wait();
                for (int i = 0; i < s_rounds; ++i) result += renderAll(sheet, options);
            });
        }
    }
    std::string const once = renderAll(sheet, options);
    std::string expected;
    for (int i = 0; i < s_rounds; ++i) expected += once;
    for (std::string const& result : results) EXPECT_EQ(result, expected);
}

}  // namespace
}  // namespace galley

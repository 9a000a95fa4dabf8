// Where a request for memory fails once, the library for people says so in its results: nothing is
// thrown, and nothing is left behind.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "galley/galley.h"
#include "tests/memory/allocations.h"
#include "tests/support/webDocument.h"

namespace galley {
namespace {

using namespace Allocations;

/// Calls `act` again and again, each time with the next request failing.
template <class Act>
void failOnce(char const* what, Act const& act) {
    act();
    for (long n = 0;; ++n) {
        SCOPED_TRACE(std::string(what) + ", request " + std::to_string(n));
        long const blocks = s_blocks;
        s_staysOut = false;
        s_left = n;
        EXPECT_NO_THROW(act());
        bool const isDone = s_left > 0;
        s_left = -1;
        EXPECT_EQ(s_blocks, blocks);
        if (isDone || testing::Test::HasFailure()) break;
    }
}

TEST(LibraryMemory, FailsInResults) {
    constexpr std::string_view good = "<p class=\"a\">one <b>two</b> three &mdash; four</p>";
    constexpr std::string_view bad = "<p>one</p><p class=\"a\"><q/>";
    constexpr std::string_view css = "p { padding-left: 2; colour: red; }\nb { color: \x01; }";
    using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;
    File const null(std::fopen("/dev/null", "w"), std::fclose);
    File const full(std::fopen("/dev/full", "w"), std::fclose);
    for (Dialect const dialect : {Dialect::core, Dialect::web}) {
        Sheet const sheet = *Sheet::parse(css, "", dialect);
        Options options;
        options.dialect = dialect;
        Options html = options;
        html.format = Format::html;
        for (std::string_view const markup : {good, bad}) {
            failOnce("render", [&] { (void)render(markup, sheet, options); });
            failOnce("html", [&] { (void)render(markup, sheet, html); });
            failOnce("print", [&] { (void)print(markup, sheet, options, null.get()); });
            failOnce("print in vain", [&] { (void)print(markup, sheet, options, full.get()); });
            failOnce("check", [&] { (void)check(markup, sheet, options); });
        }
        for (std::string_view const text :
             {css, std::string_view("p { color red; }\n\x01 { x }")}) {
            failOnce("parse", [&] { (void)Sheet::parse(text, "", dialect); });
            failOnce("check of a sheet", [&] { (void)checkSheet(text, "", dialect); });
        }
    }
}

TEST(LibraryMemory, FailsInResultsInTheDialectWeb) {
    Sheet const sheet = *Sheet::parse(WebDocument::css, {}, Dialect::web);
    Options options;
    options.dialect = Dialect::web;
    options.width = 30;
    std::string const page = *render(WebDocument::markup, sheet, options);
    std::string const bad = std::string(WebDocument::markup) + "<p title=\"a&b\">c</q>";
    for (Format const format : {Format::ansi, Format::html, Format::svg}) {
        options.format = format;
        failOnce("render", [&] { (void)render(WebDocument::markup, sheet, options); });
    }
    failOnce("an error", [&] { (void)render(bad, sheet, options); });
    failOnce("check", [&] { (void)check(bad, sheet, options); });
    failOnce("parse", [] { (void)Sheet::parse(WebDocument::css, {}, Dialect::web); });
    failOnce("check of a sheet", [] { (void)checkSheet(WebDocument::css, {}, Dialect::web); });
    options.format = Format::ansi;
    EXPECT_EQ(*render(WebDocument::markup, sheet, options), page);
}

}  // namespace
}  // namespace galley

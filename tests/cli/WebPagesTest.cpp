// Pages of the dialect web: links, colours, frames.

#include <unistd.h>

#include <string>

#include "tests/support/Terminal.h"
#include "tests/support/tool.h"

namespace {

using Links = Tool;
using Frames = Tool;
using Trees = Tool;

std::string const s_page = "<p>See <a href=\"https://a.example/\" color=\"#ff8800\">it</a>.</p>";

std::string withLink(std::string const& colour) {
    return "See \x1b]8;id=1;https://a.example/\x1b\\\x1b[4;" + colour +
           "mit\x1b]8;;\x1b\\\x1b[0m.\n";
}

TEST_F(Links, AndColoursAreThoseOfWhatThePageGoesTo) {
    std::string const plain = "See \x1b[4;33mit\x1b[0m.\n";
    std::string const list = "See it [1].\n\n[1] https://a.example/\n";
    struct Case {
        char const* arguments;
        std::string onPipe;
        std::string onTerminal;
    };
    Case const cases[] = {
        {"", "See it.\n", withLink("33")},
        {"--color always", plain, withLink("33")},
        {"--color never", "See it.\n", "See it.\n"},
        {"--color 16 --links always", withLink("33"), withLink("33")},
        {"--color 256 --links always", withLink("38;5;208"), withLink("38;5;208")},
        {"--color 24bit --links always", withLink("38;2;255;136;0"), withLink("38;2;255;136;0")},
        {"--color always --links never", plain, plain},
        {"--links list", list, "See \x1b[4;33mit\x1b[0m [1].\n\n[1] https://a.example/\n"},
        {"--links list --format plain", list, list},
        {"--links always --format plain", "See it.\n", "See it.\n"},
    };
    std::string const before = "unset COLORTERM; export TERM=xterm; ";
    for (auto const& [arguments, onPipe, onTerminal] : cases) {
        std::string const all = "--dialect web -w 30 " + std::string(arguments) + " - ";
        EXPECT_EQ(run(all, s_page, before).out, onPipe) << arguments;
        Terminal terminal;
        ASSERT_TRUE(terminal.isOpen);
        run(all + ">" + ttyname(terminal.terminal), s_page, before);
        std::string seen = terminal.seen();
        std::erase(seen, '\r');
        EXPECT_EQ(seen, onTerminal) << arguments;
        // A file is no terminal, whatever the tool is run on.
        Terminal other;
        ASSERT_TRUE(other.isOpen);
        run(all + " -o page.txt >" + ttyname(other.terminal), s_page, before);
        EXPECT_EQ(read("page.txt"), onPipe) << arguments;
    }
}

TEST_F(Links, OfOtherFormatsAreElements) {
    for (std::string const format : {"html", "svg"}) {
        std::string const all = "--dialect web --format " + format;
        std::string const element = "<a href=\"https://a.example/\">";
        EXPECT_NE(run(all, s_page).out.find(element), std::string::npos) << format;
        run(all + " -o page", s_page);
        EXPECT_NE(read("page").find(element), std::string::npos) << format;
        EXPECT_EQ(run(all + " --links never", s_page).out.find("<a "), std::string::npos) << format;
        std::string const list = run(all + " --links list", s_page).out;
        EXPECT_EQ(list.find("<a "), std::string::npos) << format;
        EXPECT_NE(list.find("https://a.example/"), std::string::npos) << format;
    }
}

TEST_F(Links, ThatAreListedAreNumberedBeforeThePageIsLaidOut) {
    struct Case {
        char const* page;
        char const* out;
    };
    constexpr Case cases[] = {
        // One number an address; what no terminal could follow has none.
        {"<p><a href='http://a/'>a</a> <a href='#x'>x</a> <a href='mailto:b@c'>b</a> "
         "<a href='http://a/'>a</a></p>",
         "a [1] x b [2] a [1]\n\n[1] http://a/\n[2] mailto:b@c\n"},
        {"<p><a href=' HTTP://a/&#10;b '>a</a></p>", "a [1]\n\n[1] HTTP://a/b\n"},
        // A number stays with its word.
        {"<p>aaaa bbbb cccc <a href='http://a/'>dddd</a> e</p>",
         "aaaa bbbb cccc\ndddd [1] e\n\n[1] http://a/\n"},
        {"<table><tr><td><a href='http://a/'>ab</a></td><td>c</td></tr></table>",
         " ab [1]  c\n\n[1] http://a/\n"},
        {"<html><body style='margin: 0 2'><p><a href='http://a/'>ab</a></p></body></html>",
         "  ab [1]\n\n  [1] http://a/\n"},
        {"<html><p><a href='http://a/'>ab</a></p></html>", "ab [1]\n\n[1] http://a/\n"},
        {"<p><a href='https://example.com/long/address'>ab</a></p>",
         "ab [1]\n\n[1] https://example\n    .com/long/addre\n    ss\n"},
        {"<p style='display: none'><a href='http://a/'>ab</a></p>x", "x\n"},
    };
    for (auto const& [page, out] : cases) {
        EXPECT_EQ(run("--dialect web --links list -w 19", page).out, out) << page;
    }
}

TEST_F(Links, ThatAreManyHaveTheirAddressesInOneColumn) {
    std::string page;
    for (int i = 1; i <= 10; ++i) page += "<a href='http://" + std::to_string(i) + "/'>a</a> ";
    std::string const out = run("--dialect web --links list", page).out;
    EXPECT_NE(out.find("\n [9] http://9/\n[10] http://10/\n"), std::string::npos) << out;
}

TEST_F(Frames, AreOfAsciiWhereAskedForOrTheirsWouldBeWide) {
    struct Case {
        char const* arguments;
        char const* out;
    };
    constexpr Case cases[] = {
        {"", "┌───────┐\n│±a     │\n└───────┘\n"},
        {"--ambiguous-width 1", "┌───────┐\n│±a     │\n└───────┘\n"},
        {"--ascii", "+-------+\n|±a     |\n+-------+\n"},
        {"--ambiguous-width 2", "+-------+\n|±a    |\n+-------+\n"},
    };
    std::string const page = "<div style='border: solid'>±a</div>";
    for (auto const& [arguments, out] : cases) {
        EXPECT_EQ(run(std::string("--dialect web -w 9 ") + arguments, page).out, out) << arguments;
    }
    std::string const html = run("--dialect web -f html --ambiguous-width 2", page).out;
    EXPECT_NE(html.find("<span class=\"gw\">&#177;</span>a"), std::string::npos) << html;
}

TEST_F(Trees, AreThoseOfTheirDialect) {
    write("page.css", "p { margin: 0 }");
    EXPECT_EQ(run("--dialect web --dump tree -s page.css", "<p>a</p>").out,
              "html { display: block; overflow-wrap: break-word; }\n"
              "  body { display: block; }\n"
              "    p { display: block; }\n"
              "      \"a\"\n");
    struct Case {
        char const* arguments;
        char const* error;
    };
    constexpr Case cases[] = {
        {"--dialect web --dump dom", "Of the dialect web there is --dump tree alone\n"},
        {"--dialect web --dump boxes", "Of the dialect web there is --dump tree alone\n"},
        {"--dialect core --dump tree", "--dump tree is for the dialect web\n"},
    };
    for (auto const& [arguments, error] : cases) {
        Outcome const outcome = run(arguments, "<p>a</p>");
        EXPECT_EQ(outcome.err, "<stdin>: error: " + std::string(error)) << arguments;
        EXPECT_EQ(outcome.status, 1) << arguments;
        EXPECT_EQ(outcome.out, "") << arguments;
    }
    EXPECT_EQ(run("--dialect web --dump tree", "<p>").out, "");
}

}  // namespace

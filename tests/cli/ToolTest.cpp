#include "tests/support/tool.h"

#include <unistd.h>

#include <algorithm>
#include <string>

#include "tests/support/Terminal.h"

namespace {

TEST_F(CoreTool, ReadsAFileOrStandardInput) {
    write("page.xml", "<p>from a file</p>");
    EXPECT_EQ(run("page.xml").out, "from a file\n");
    EXPECT_EQ(run("", "<p>piped</p>").out, "piped\n");
    EXPECT_EQ(run("-", "<p>piped</p>").out, "piped\n");
}

TEST_F(CoreTool, SkipsTheMarkThatEditorsPutBeforeUtf8) {
    std::string const mark = "\xef\xbb\xbf";
    write("page.xml", mark + "<p>a</p>" + mark);
    write("sheet.css", mark + "p { padding-left: 2; }");
    EXPECT_EQ(run("--css sheet.css page.xml").out, "  a\n" + mark + "\n");
}

TEST_F(CoreTool, JoinsTheRulesOfAllSheetsInTheirOrder) {
    write("one.css", "p { padding-left: 1; } b { padding-left: 3; }");
    write("two.css", "p { padding-left: 2; }");
    std::string const page = "<p><b>x</b></p>";
    EXPECT_EQ(run("--color always --css one.css --css two.css", page).out,
              "     \x1b[0m\x1b[1mx\x1b[0m\n");
    EXPECT_EQ(run("--color always --css two.css --css one.css", page).out,
              "    \x1b[0m\x1b[1mx\x1b[0m\n");
}

TEST_F(CoreTool, BreaksLinesAtTheWidthAskedForElseAt80) {
    std::string words;
    for (int i = 0; i < 40; ++i) words += "abc ";
    EXPECT_EQ(run("--width 8", "a b c d e").out, "a b c d\ne\n");
    EXPECT_EQ(run("--width 1", "a b").out, "a\nb\n");
    EXPECT_EQ(run("", words).out.find('\n'), 4U * 20 - 1);
    EXPECT_EQ(run("--width 99999999999", words).out.find('\n'), words.size() - 1);
}

TEST_F(CoreTool, DumpsEitherTree) {
    std::string const document = "<p>hi <b>you</b></p>";
    EXPECT_EQ(run("--dump dom", document).out, "html:\n  p:\n    'hi '\n    b:\n      'you'\n");
    EXPECT_EQ(run("--dump boxes --width 3", document).out,
              "block:  html: (0, 0, 3, 2)\n"
              "  block:  p: (0, 0, 3, 2)\n"
              "    line:   (anonymous): (0, 0, 3, 1)\n"
              "      inline: 'hi ': (0, 0, 3, 1)\n"
              "    line:   (anonymous): (0, 1, 3, 1)\n"
              "      inline: b: (0, 0, 3, 1)\n"
              "        inline: 'you': (0, 0, 3, 1)\n");
}

TEST_F(CoreTool, SaysWhichFileAndLineIsAtFault) {
    write("page.xml", "<p>\n<q/></p>");
    write("good.css", "p {}");
    write("bad.css", "p {\n color red; }");
    struct Case {
        char const* arguments;
        char const* input;
        int status;
        char const* error;
    };
    Case const cases[] = {
        {"", "<p>\n< b>", 1,
         "<stdin>:2:2: error: Expecting element type\n"
         "    2 | < b>\n"
         "      |  ^\n"},
        {"page.xml", "", 1,
         "page.xml:2:1: error: Invalid tag: <q>\n"
         "    2 | <q/></p>\n"
         "      | ^\n"},
        {"--css good.css --css bad.css", "<q/>", 1,
         "bad.css:2:8: error: Expecting ':'\n"
         "    2 |  color red; }\n"
         "      |        ^\n"},
        {"--dump boxes", "<td/>", 1,
         "<stdin>:1:1: error: Cannot layout 'td' within 'html'\n"
         "    1 | <td/>\n"
         "      | ^\n"},
        {"absent.xml", "", 3, "absent.xml: error: No such file or directory\n"},
        {"--css absent.css", "", 3, "absent.css: error: No such file or directory\n"},
        {"\"$(printf 'a\\033b')\"", "", 3, "a<U+001B>b: error: No such file or directory\n"},
        {".", "", 3, ".: error: Is a directory\n"},
        {"\"$(printf 'a\\nb\\tc')\"", "", 3,
         "a<U+000A>b<U+0009>c: error: No such file or directory\n"},
        {"", "<p\f/>", 1,
         "<stdin>:1:1: error: Invalid tag: <p<U+000C>>\n"
         "    1 | <p />\n"
         "      | ^\n"},
        {">/dev/full", "<p>x</p>", 3, "<stdout>: error: No space left on device\n"},
    };
    for (Case const& c : cases) {
        Outcome const outcome = run(c.arguments, c.input);
        EXPECT_EQ(outcome.status, c.status) << c.arguments << c.input;
        EXPECT_EQ(outcome.err, c.error) << c.arguments << c.input;
        EXPECT_EQ(outcome.out, "") << c.arguments << c.input;
    }
}

TEST_F(CoreTool, SaysWhereMemoryEnds) {
    // Builds without it are for sanitizers, which take more than any limit.
    if (!GALLEY_HAS_JEMALLOC) GTEST_SKIP();
    Outcome const outcome = run("", "<p margin-left=\"60000000\">x</p>", "ulimit -v 150000; ");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "<stdin>: error: Out of memory\n");
    // There is room for one document of that size.
    std::string const large = "<!--" + std::string(60000000, 'x') + "--><b/>";
    EXPECT_EQ(run("--dump dom", large, "ulimit -v 100000; ").out, "html:\n  b:\n");
}

TEST_F(CoreTool, RefusesWhatItDoesNotKnow) {
    write("page.xml", "page");
    for (char const* arguments : {"--nonsense",
                                  "--width x",
                                  "--width -1",
                                  "--dump html",
                                  "--css",
                                  "--css - -",
                                  "--width 0x3",
                                  "--width ''",
                                  "--width 0",
                                  "--max-width 00",
                                  "-w x",
                                  "-w",
                                  "-w 1 --width 2",
                                  "-o '' page.xml",
                                  "-o= page.xml",
                                  "-s= page.xml",
                                  "-s '' page.xml",
                                  "-p -o a",
                                  "-f pdf",
                                  "-fpdf",
                                  "-o a b.xml c.xml",
                                  "--strict",
                                  "--strict --watch --output a page.xml",
                                  "--theme blue -f svg",
                                  "--theme dark",
                                  "--theme light --output a.txt",
                                  "--theme light --dump dom --output a.svg",
                                  "--max-width -1",
                                  "--color red",
                                  "--format pdf",
                                  "--dump dom --format html",
                                  "--jobs 0",
                                  "--jobs x",
                                  "--check --output a",
                                  "--check --dump dom",
                                  "--pager --check",
                                  "--pager --output a",
                                  "--watch",
                                  "--watch a.xml",
                                  "--watch --output a -",
                                  "--watch --output a --css - a.xml",
                                  "--watch --check a.xml",
                                  "--watch --pager a.xml",
                                  "--pager --output-dir b",
                                  "--output ''",
                                  "--output= page.xml",
                                  "page.xml --css= --raw",
                                  "--color= always",
                                  "--css '' page.xml",
                                  "'' page.xml",
                                  "--output a --output-dir b",
                                  "--output a b.xml c.xml",
                                  "--output-dir d a/x.xml a/x.htm",
                                  "--format svg a.xml b.xml"}) {
        Outcome const outcome = run(arguments);
        EXPECT_EQ(outcome.status, 2) << arguments;
        EXPECT_EQ(outcome.out, "") << arguments;
        EXPECT_TRUE(outcome.err.starts_with("galley: error: ")) << outcome.err;
    }
    std::string const more = "\nRun with --help for more information.\n";
    EXPECT_EQ(run("--width=").err, "galley: error: --width: no value is given" + more);
    EXPECT_EQ(run("--width 1 --width 2").err,
              "galley: error: --width: given more than once" + more);
    EXPECT_EQ(run("--widht=1 -w0").err, "galley: error: --width: '0' is not positive" + more);
    EXPECT_EQ(run("-w0").err, "galley: error: --width: '0' is not positive" + more);
    EXPECT_EQ(run("-s").err, "galley: error: --css: no value is given" + more);
    EXPECT_EQ(run("-o= page.xml").err, "galley: error: -o: no value is given" + more);
    EXPECT_EQ(run("\"$(printf -- '--a\\nb')\"").err,
              "galley: error: The following argument was not expected: --a<U+000A>b" + more);
    EXPECT_EQ(run("-css x.css").err,
              "galley: error: The following argument was not expected: -css; did you mean "
              "'--css'?" +
                  more);
    EXPECT_EQ(read("page.xml"), "page");
}

TEST_F(CoreTool, TakesShortNamesWithTheirValuesBehindThemOrInTheSameWord) {
    write("page.css", "p { padding-left: 2; }");
    struct Case {
        char const* arguments;
        char const* out;
    };
    constexpr Case cases[] = {
        {"-w 4", "a b\nc d\n"},
        {"-w4 -p", "a b\nc d\n"},
        {"-s page.css -spage.css", "  a b c d\n"},
        {"-pfplain", "a b c d\n"},
        {"-pw 4", "a b\nc d\n"},
        {"--check --strict", ""},
        {"-o page.txt; cat page.txt", "a b c d\n"},
        {"-opage.txt -pagename; cat page.txt", "a b c d\n"},
    };
    for (Case const& c : cases) {
        EXPECT_EQ(run(c.arguments, "<p>a b c d</p>").out, c.out) << c.arguments;
    }
    EXPECT_TRUE(run("-f svg", "x").out.starts_with("<svg "));
    EXPECT_EQ(run("-fsvg --theme light", "x").status, 0);
}

std::size_t longestRow(std::string const& page) {
    std::size_t longest = 0;
    for (std::size_t start = 0; start < page.length();) {
        std::size_t const end = page.find('\n', start);
        longest = std::max(longest, end - start);
        start = end + 1;
    }
    return longest;
}

/// Of the page of --help: the row that begins with `start`, and the one behind it.
std::string rowsAt(std::string const& page, std::string const& start) {
    std::size_t const row = page.find("\n" + start) + 1;
    std::size_t const end = page.find('\n', page.find('\n', row) + 1);
    return page.substr(row, end - row);
}

TEST_F(CoreTool, PrintsItsHelpAsAPageOfTheWidthThereIs) {
    struct Case {
        char const* columns;
        std::size_t longest;
        char const* start;
        char const* rows;
    };
    constexpr Case cases[] = {
        {"50", 50, "  -w,", "  -w, --width N\n        Width of the page in columns (default:"},
        {"80", 80, "  -w,",
         "  -w, --width N           Width of the page in columns (default: that of the\n"
         "                          terminal on standard output, else of the environment's"},
        {"80", 80, "  -f,",
         "  -f, --format ansi|plain|html|svg\n"
         "                          How pages are written: text with escape sequences (the"},
        {"80", 80, "                          given a",
         "                          given a document may say it at its beginning, by\n"
         "                          <?galley dialect=\"core\"?>, and sheets are of the"},
        {"80", 80, "  1 ",
         "  1   a document or a sheet is at fault, or memory ran out\n  2   usage"},
        {"3000", 100, "      --max-width",
         "      --max-width N       The most that the width may be.\n"},
    };
    for (Case const& c : cases) {
        Outcome const outcome =
            run("--help", "", std::string("export COLUMNS=") + c.columns + "; ");
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(rowsAt(outcome.out, c.start), c.rows) << c.columns;
        EXPECT_EQ(longestRow(outcome.out), c.longest) << c.columns;
        EXPECT_NE(outcome.out.find("<pre>"), std::string::npos) << c.columns;
        EXPECT_EQ(outcome.out.find('\x1b'), std::string::npos) << c.columns;
    }
    EXPECT_TRUE(run("--version").out.starts_with("galley "));
}

TEST_F(CoreTool, ColorsItsHelpOnATerminalThatWelcomesIt) {
    struct Case {
        char const* before;
        char const* start;
    };
    constexpr Case cases[] = {
        {"", "\x1b[1mgalley\x1b[0m\r\n"},
        {"export NO_COLOR=1; ", "galley\r\n- show\r\n"},
    };
    for (Case const& c : cases) {
        Terminal terminal;
        ASSERT_TRUE(terminal.isOpen);
        run(std::string("--help >") + ttyname(terminal.terminal), "", c.before);
        EXPECT_TRUE(terminal.seen().starts_with(c.start)) << c.before;
    }
}

}  // namespace

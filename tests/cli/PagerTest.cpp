// Pages on their way to a terminal by a pager.

#include <unistd.h>

#include <string>

#include "tests/support/Terminal.h"
#include "tests/support/tool.h"

namespace {

using Pager = CoreTool;

TEST_F(Pager, ShowsWhatATerminalWouldAndTheErrorsBehindIt) {
    std::string words;
    for (int i = 0; i < 50000; ++i) words += "ab cd ";  // more than a pipe holds
    write("long.xml", words);
    write("bold.xml", "<b>x </b>y z ab");
    write("bad.xml", "<q/>");
    struct Case {
        char const* pager;
        char const* arguments;
        int status;
        char const* seen;
        char const* error;
    };
    constexpr Case cases[] = {
        {"cat", "bold.xml", 0, "\x1b[0m\x1b[1mx \x1b[0my z \r\nab\r\n", ""},
        {"cat", "--color never bold.xml bold.xml", 0, "x y z\r\nab\r\nx y z\r\nab\r\n", ""},
        {"sleep 0 && tr x X", "--color never bad.xml bold.xml", 1, "X y z\r\nab\r\n", "bad.xml:1"},
        {"head -n 1", "long.xml long.xml absent.xml", 0, "ab cd \r\n", ""},
        {"head -n 1", "absent.xml long.xml", 3, "ab cd \r\n", "absent.xml"},
        {"cat", "--color never bold.xml <&-", 0, "x y z\r\nab\r\n", ""},
        {"true", "long.xml", 0, "", ""},
        {"echo started", "bad.xml absent.xml", 1, "", "bad.xml:1"},
        {"echo LESS=$LESS", "bold.xml", 0, "LESS=FRX\r\n", ""},
        {"kill -INT $$; cat", "bold.xml", 0, "", ""},
        {"galley-nosuch", "--color never bold.xml bad.xml bold.xml", 1,
         "x y z\r\nab\r\nx y z\r\nab\r\n", "galley: error: Cannot run the pager 'galley-nosuch'"},
        {"cat (", "--color never bold.xml", 0, "x y z\r\nab\r\n",
         "galley: error: Cannot run the pager 'cat ('"},
        {"-", "--color never bold.xml", 0, "x y z\r\nab\r\n", "Cannot run the pager '-'"},
        {"kill -SEGV $$", "--color never bold.xml", 0, "x y z\r\nab\r\n", "Cannot run the pager"},
        {"cat; exit 2", "--color never bold.xml", 0, "x y z\r\nab\r\n", ""},
        {"a\tb\nc", "--color never bold.xml", 0, "x y z\r\nab\r\n", "'a<U+0009>b<U+000A>c'"},
        {"/dev/null", "--color never bold.xml", 0, "x y z\r\nab\r\n", "Cannot run the pager"},
    };
    for (Case const& c : cases) {
        for (char const* jobs : {"--jobs 1 ", "--jobs 3 "}) {
            Terminal terminal;
            ASSERT_TRUE(terminal.isOpen);
            Outcome const outcome = run(
                "--pager " + (jobs + std::string(c.arguments)) + " >" + ttyname(terminal.terminal),
                "", std::string("unset LESS; export PAGER='") + c.pager + "'; ");
            EXPECT_EQ(outcome.status, c.status) << c.pager << jobs;
            EXPECT_EQ(terminal.seen(), c.seen) << c.pager << jobs;
            EXPECT_NE(outcome.err.find(c.error), std::string::npos) << c.pager << outcome.err;
            EXPECT_EQ(outcome.err.empty(), *c.error == '\0') << c.pager << outcome.err;
        }
    }
}

TEST_F(Pager, LeavesTheLessOfTheEnvironmentAsItIs) {
    Terminal terminal;
    run(std::string("--pager >") + ttyname(terminal.terminal), "x",
        "export LESS=i PAGER='echo $LESS'; ");
    EXPECT_EQ(terminal.seen(), "i\r\n");
}

TEST_F(Pager, IsNotAskedWithoutATerminal) {
    EXPECT_EQ(run("--pager", "<b>x</b>", "export PAGER=true; ").out, "x\n");
}

}  // namespace

// Colours, widths, several documents, and where their pages go.

#include <sys/stat.h>
#include <unistd.h>

#include <set>
#include <string>

#include "tests/support/Terminal.h"
#include "tests/support/tool.h"

namespace {

using Output = CoreTool;

std::string const s_colored = "\x1b[0m\x1b[1mx\x1b[0m\n";

/// The first lines of all errors.
std::string headings(std::string const& errors) {
    std::string found;
    for (std::size_t start = 0; start < errors.length();) {
        std::size_t const end = errors.find('\n', start) + 1;
        std::string const line = errors.substr(start, end - start);
        std::size_t const error = line.find(": error: ");
        if (error != std::string::npos) found += line.substr(0, line.find(':')) + " ";
        start = end;
    }
    return found;
}

TEST_F(Output, IsColoredWhereAskedForOrWelcome) {
    struct Case {
        char const* before;
        char const* arguments;
        bool onTerminal;
        bool onPipe;
    };
    constexpr Case cases[] = {
        {"", "", true, false},
        {"", "--color auto", true, false},
        {"", "--color always", true, true},
        {"", "--color never", false, false},
        {"export NO_COLOR=1; ", "", false, false},
        {"export NO_COLOR=; ", "", true, false},
        {"export NO_COLOR=1; ", "--color always", true, true},
        {"export TERM=dumb; ", "", false, false},
        {"export TERM=dumb; ", "--color always", true, true},
        {"", "--format plain --color always", false, false},
    };
    for (Case const& c : cases) {
        Terminal terminal;
        ASSERT_TRUE(terminal.isOpen);
        std::string const arguments = std::string(c.arguments) + " - ";
        EXPECT_EQ(run(arguments, "<b>x</b>", c.before).out, c.onPipe ? s_colored : "x\n")
            << arguments;
        run(arguments + ">" + ttyname(terminal.terminal), "<b>x</b>", c.before);
        bool const isColored = terminal.seen().find("\x1b[1m") != std::string::npos;
        EXPECT_EQ(isColored, c.onTerminal) << c.before << arguments;
    }
    Terminal terminal;
    run(std::string("--output page.txt - >") + ttyname(terminal.terminal), "<b>x</b>");
    EXPECT_EQ(read("page.txt"), "x\n");
}

TEST_F(Output, TakesTheFirstWidthThereIs) {
    struct Case {
        char const* columns;
        char const* arguments;
        std::size_t width;
    };
    constexpr Case cases[] = {
        {"", "", 80},
        {"export COLUMNS=30; ", "", 30},
        {"export COLUMNS=30; ", "--width 20", 20},
        {"export COLUMNS=30; ", "--max-width 10", 10},
        {"export COLUMNS=30; ", "--max-width 50", 30},
        {"export COLUMNS=0; ", "", 80},
        {"export COLUMNS=-4; ", "", 80},
        {"export COLUMNS=30x; ", "", 80},
        {"export COLUMNS=; ", "--max-width 60", 60},
        {"", "--width 50 --max-width 40", 40},
        {"", "--width 30 --max-width 40", 30},
    };
    std::string words;
    for (int i = 0; i < 100; ++i) words += "a ";
    for (Case const& c : cases) {
        std::string const page =
            run(c.arguments, words, std::string("unset COLUMNS; ") + c.columns).out;
        // Less the blank behind the last word of the row.
        EXPECT_EQ(page.find('\n'), c.width - 1) << c.columns << c.arguments;
    }
    Terminal terminal;
    run(std::string("- >") + ttyname(terminal.terminal), "aa bb cc", "export COLUMNS=30; ");
    EXPECT_EQ(terminal.seen(), "aa bb \r\ncc\r\n");
}

TEST_F(Output, HasThePagesOfAllDocumentsThatAreRight) {
    write("one.xml", "<p>one</p>");
    write("two.xml", "<p>two</p>");
    write("bad.xml", "<q/>");
    struct Case {
        char const* arguments;
        char const* out;
        char const* errors;
        int status;
    };
    constexpr Case cases[] = {
        {"one.xml two.xml one.xml", "one\ntwo\none\n", "", 0},
        {"two.xml - one.xml", "two\npiped\none\n", "", 0},
        {"one.xml bad.xml two.xml absent.xml", "one\ntwo\n", "bad.xml absent.xml ", 1},
        {"absent.xml one.xml bad.xml", "one\n", "absent.xml bad.xml ", 3},
        {"--css absent.css --css bad.css one.xml", "", "absent.css bad.css ", 3},
        {"--check one.xml two.xml -", "", "", 0},
        {"--check bad.xml one.xml absent.xml bad.xml", "", "bad.xml absent.xml bad.xml ", 1},
        {"--check absent.xml", "", "absent.xml ", 3},
        {"--check --css bad.css bad.xml one.xml", "", "bad.css bad.xml ", 1},
        {"--check --format svg one.xml two.xml", "", "", 0},
        {"one.xml two.xml >/dev/full", "", "<stdout> ", 3},
        {"--help >/dev/full", "", "<stdout> ", 3},
        {"--version >/dev/full", "", "<stdout> ", 3},
        {"--help >&-", "", "<stdout> ", 3},
    };
    write("bad.css", "p");
    for (Case const& c : cases) {
        for (char const* jobs : {"--jobs 1 ", "--jobs 3 "}) {
            Outcome const outcome = run(jobs + std::string(c.arguments), "piped");
            EXPECT_EQ(outcome.out, c.out) << jobs << c.arguments;
            EXPECT_EQ(headings(outcome.err), c.errors) << jobs << c.arguments;
            EXPECT_EQ(outcome.status, c.status) << jobs << c.arguments;
        }
    }
}

TEST_F(Output, GoesToFilesWholeOrNotAtAll) {
    write("a.xml", "<p>new</p>");
    write("page.txt", "old");
    EXPECT_EQ(run("--output page.txt", "<q/>").status, 1);
    EXPECT_EQ(read("page.txt"), "old");
    EXPECT_EQ(run("--output page.txt a.xml", "", "ln page.txt kept; ").out, "");
    EXPECT_EQ(read("page.txt"), "new\n");
    EXPECT_EQ(read("kept"), "old");  // it was replaced, not overwritten
    EXPECT_EQ(run("--output - a.xml").out, "new\n");
    EXPECT_EQ(run("--output /dev/stdout a.xml | cat").out, "new\n");
    // Files that others have open are not begun anew.
    run("--output /dev/stdout a.xml >>log; echo last >>log", "", "echo first >log; ");
    EXPECT_EQ(read("log"), "first\nnew\nlast\n");
    run("--output /dev/fd/5 a.xml; echo last >&5; cat <unnamed >log", "",
        "exec 5>unnamed; echo first >&5; ln unnamed other; ");
    EXPECT_EQ(read("log"), "first\nnew\nlast\n");
    EXPECT_EQ(run("--output /dev/fd/77 a.xml").status, 3);
    run("--output link a.xml", "", "ln -s target link; ");
    EXPECT_EQ(read("target"), "new\n");
    run("--output link", "newer");
    EXPECT_EQ(read("target"), "newer\n");
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link"));
    struct Case {
        char const* arguments;
        char const* error;
    };
    constexpr Case failures[] = {
        {"--output /dev/full a.xml", "/dev/full: error: No space left on device\n"},
        {"--output . a.xml", ".: error: Is a directory\n"},
        {"--output no/page a.xml", "no/page: error: No such file or directory\n"},
        {"--output-dir a.xml/d a.xml", "a.xml/d: error: Not a directory\n"},
    };
    for (auto const& [arguments, error] : failures) {
        Outcome const outcome = run(arguments);
        EXPECT_EQ(outcome.err, error);
        EXPECT_EQ(outcome.status, 3) << arguments;
    }
    // The file system takes no more than one block of 512 bytes; nothing of it stays. It takes no
    // profile either, where coverage is measured.
    constexpr char const* s_limited = "trap '' XFSZ; ulimit -f 1; LLVM_PROFILE_FILE=/dev/null ";
    write("long.xml", "<p margin-left=\"2000\">x</p>");
    Outcome const cut = run("--output page.txt long.xml", "", s_limited);
    EXPECT_EQ(cut.err, "page.txt: error: File too large\n");
    EXPECT_EQ(read("page.txt"), "new\n");
    for (auto const& entry : std::filesystem::directory_iterator(folder)) {
        EXPECT_NE(entry.path().filename().string().rfind(".galley", 0), 0U) << entry.path();
    }
}

TEST_F(Output, HasThePermissionsOfTheFormerFileOrTheUmask) {
    auto const mode = [&](char const* name) {
        struct stat status = {};
        return stat((folder / name).c_str(), &status) == 0 ? status.st_mode & 0777U : 0U;
    };
    write("kept", "");
    run("--output fresh", "x", "umask 027; ");
    run("--output kept", "x", "chmod 604 kept; umask 027; ");
    EXPECT_EQ(mode("fresh"), 0640U);
    EXPECT_EQ(mode("kept"), 0604U);
}

TEST_F(Output, NamesFilesInADirectoryAfterTheirDocuments) {
    write("a.xml", "<p>a</p>");
    write("b.tar.xml", "<p>b</p>");
    write(".hidden", "<p>c</p>");
    write("bad.xml", "<q/>");
    std::string const all = "--output-dir out/in a.xml b.tar.xml bad.xml .hidden - ";
    for (char const* jobs : {"", "--jobs 2"}) {
        Outcome const outcome = run(all + jobs, "d");
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(read("out/in/a.txt"), "a\n");
        EXPECT_EQ(read("out/in/b.tar.txt"), "b\n");
        EXPECT_EQ(read("out/in/.hidden.txt"), "c\n");
        EXPECT_EQ(read("out/in/stdin.txt"), "d\n");
        EXPECT_FALSE(std::filesystem::exists(folder / "out/in/bad.txt"));
        std::filesystem::remove_all(folder / "out");
    }
    run("--output-dir out --format html a.xml");
    run("--output-dir out --format svg a.xml b.tar.xml");
    run("--output-dir out --format html -", "d");
    for (auto const& [file, title] :
         {std::pair{"out/a.html", "a.xml"}, {"out/stdin.html", "&lt;stdin&gt;"}}) {
        std::string const page = read(file);
        EXPECT_EQ(page.rfind("<!DOCTYPE html>\n", 0), 0U);
        EXPECT_NE(page.find("<title>" + std::string(title) + "</title>"), std::string::npos)
            << page;
    }
    EXPECT_EQ(run("--format html --output - a.xml").out.rfind("<pre ", 0), 0U);
    EXPECT_EQ(read("out/b.tar.svg").rfind("<svg ", 0), 0U);
}

TEST_F(Output, HasTheFormatThatTheNameOfItsFileAsksFor) {
    write("a.xml", "<b>x</b>");
    struct Case {
        char const* arguments;
        char const* file;
        char const* start;
    };
    constexpr Case cases[] = {
        {"-o p.svg", "p.svg", "<svg "},
        {"-o p.HTML", "p.HTML", "<!DOCTYPE html>"},
        {"-o p.x.Htm", "p.x.Htm", "<!DOCTYPE html>"},
        {"-o ./p.svg --raw --theme dark", "p.svg", "<svg "},
        {"-o p.svg -f html", "p.svg", "<!DOCTYPE html>"},
        {"-f plain -o p.svg", "p.svg", "x\n"},
        {"-f ansi --color always -o p.svg", "p.svg", "\x1b["},
        {"--dump dom -o p.svg", "p.svg", "html:\n"},
        {"-o p.txt", "p.txt", "x\n"},
        {"-o svg", "svg", "x\n"},
        {"-o .svg", ".svg", "x\n"},
        {"-o p.svgx", "p.svgx", "x\n"},
        {"-o d.svg/p", "d.svg/p", "x\n"},
    };
    std::filesystem::create_directory(folder / "d.svg");
    for (Case const& c : cases) {
        EXPECT_EQ(run(std::string("a.xml ") + c.arguments).status, 0) << c.arguments;
        EXPECT_TRUE(read(c.file).starts_with(c.start)) << c.arguments << read(c.file);
    }
}

/// All files below a folder, in order, each with a blank behind it.
std::string filesBelow(std::filesystem::path const& top) {
    std::set<std::string> names;
    if (!std::filesystem::exists(top)) return "";
    for (auto const& entry : std::filesystem::recursive_directory_iterator(top)) {
        if (!entry.is_directory()) names.insert(entry.path().lexically_relative(top).string());
    }
    std::string all;
    for (std::string const& name : names) all += name + " ";
    return all;
}

TEST_F(Output, KeepsTheFoldersOfDocumentsThatWouldHaveOnePage) {
    for (char const* name : {"a", "b", "b/a", "in", "a.txt", "a/x/y"}) {
        std::filesystem::create_directories(folder / name);
    }
    for (char const* name : {"a/p.xml", "b/p.xml", "b/a/p.xml", "p.xml", "b/p.md", "b/q.xml",
                             "in/p.xml", "a.txt/p.xml", "a.xml", "a/x/y/p.xml", "a/stdin.xml"}) {
        write(name, std::string("<p>") + name + "</p>");
    }
    std::filesystem::create_directory_symlink("a", folder / "link");
    std::string const here = folder.filename();
    struct Case {
        std::string documents;
        std::string files;
    };
    Case const cases[] = {
        {"a/p.xml b/q.xml", "p.txt q.txt "},
        {"a/p.xml b/p.xml", "a/p.txt b/p.txt "},
        {"a/p.xml b/p.xml b/q.xml", "a/p.txt b/p.txt q.txt "},
        {"a/p.xml b/p.md", "a/p.txt b/p.txt "},
        {"p.xml a/p.xml", "a/p.txt p.txt "},
        {"b/p.xml b/a/p.xml", "a/p.txt p.txt "},
        {"a/x/y/p.xml a/p.xml", "p.txt x/y/p.txt "},
        {"./a//p.xml a/../b/./p.xml", "a/p.txt b/p.txt "},
        {"../" + here + "/a/p.xml \"$PWD/b/p.xml\"", "a/p.txt b/p.txt "},
        {"../../../../../../../../.." + folder.string() + "/a/p.xml b/p.xml", "a/p.txt b/p.txt "},
        {"link/p.xml a/p.xml", "a/p.txt link/p.txt "},
        {"- a/stdin.xml", "a/stdin.txt stdin.txt "},
        {"a/p.xml p.xml; cd in; galley --output-dir ../out p.xml ../a/p.xml",
         "a/p.txt in/p.txt p.txt "},
        {"a/p.xml a/p.xml", ""},
        {"a/p.xml ./b/../a/p.xml b/p.xml", ""},
        {"b/p.xml b/p.md", ""},
        {"a.xml b/p.xml a.txt/p.xml", ""},
    };
    for (Case const& c : cases) {
        Outcome const outcome = run("--output-dir out " + c.documents, "piped",
                                    "galley() { " GALLEY_TOOL " \"$@\"; }; ");
        EXPECT_EQ(filesBelow(folder / "out"), c.files) << c.documents << outcome.err;
        EXPECT_EQ(outcome.status, c.files.empty() ? 2 : 0) << c.documents << outcome.err;
        std::filesystem::remove_all(folder / "out");
    }
    EXPECT_EQ(run("--output-dir out b/p.xml b/p.md").err,
              "galley: error: --output-dir: two documents for out/p.txt\n"
              "Run with --help for more information.\n");
    EXPECT_EQ(run("--output-dir out a.xml b/p.xml a.txt/p.xml").err,
              "galley: error: --output-dir: out/a.txt would be a page and a folder\n"
              "Run with --help for more information.\n");
    run("--output-dir out --format html b/p.xml a/p.xml");
    EXPECT_NE(read("out/a/p.html").find("a/p.xml"), std::string::npos);
    EXPECT_NE(read("out/b/p.html").find("b/p.xml"), std::string::npos);
}

TEST_F(Output, NeverReplacesWhatIsRead) {
    write("a.txt", "<p>a</p>");
    write("s.css", "");
    for (char const* arguments :
         {"--output a.txt a.txt", "--output-dir . a.txt", "--output ./s.css --css s.css a.txt"}) {
        EXPECT_EQ(run(arguments).status, 2) << arguments;
        EXPECT_EQ(read("a.txt") + read("s.css"), "<p>a</p>") << arguments;
    }
}

}  // namespace

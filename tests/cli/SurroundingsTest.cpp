// Streams that are closed or full, and files that cannot be had.

#include <unistd.h>

#include <string>

#include "tests/support/tool.h"

namespace {

using Surroundings = CoreTool;

TEST_F(Surroundings, NeedNotReadAllThatIsPrinted) {
    std::string words;
    for (int i = 0; i < 100000; ++i) words += "ab cd ";  // more than a pipe holds
    write("long.xml", words);
    write("bad.xml", "<q/>");
    struct Case {
        char const* arguments;
        int status;
        char const* error;
    };
    constexpr Case cases[] = {
        {"long.xml", 0, ""},
        {"long.xml long.xml --jobs 2", 0, ""},
        {"long.xml bad.xml", 0, ""},
        {"long.xml --output /dev/stdout", 0, ""},
        {"long.xml --format svg", 0, ""},
        {"bad.xml long.xml", 1, "bad.xml:1:1: error: Invalid tag: <q>\n    1 | <q/>\n      | ^\n"},
    };
    for (auto const& [arguments, status, error] : cases) {
        Outcome const outcome = run(std::string(arguments) + " 2>errors; echo $? >status) | :", "",
                                    "", "(" GALLEY_TOOL);
        EXPECT_EQ(read("status"), std::to_string(status) + "\n") << arguments;
        EXPECT_EQ(read("errors"), error) << arguments;
    }
    EXPECT_EQ(run("long.xml | head -n 1").out.length(), 78U);
}

TEST_F(Surroundings, AreToldApartWhereTheyFail) {
    write("a.xml", "<p>a</p>");
    std::filesystem::create_directory(folder / "locked");
    std::filesystem::create_directory(folder / "gone");
    struct Case {
        char const* before;
        char const* arguments;
        int status;
        char const* error;
    };
    constexpr Case cases[] = {
        {"", "a.xml >&-", 3, "<stdout>: error: Bad file descriptor\n"},
        {"", "a.xml a.xml --jobs 2 >&-", 3, "<stdout>: error: Bad file descriptor\n"},
        {"", "<&-", 3, "<stdin>: error: Bad file descriptor\n"},
        {"", "a.xml <&-", 0, ""},
        {"", "--output page.txt a.xml >&-", 0, ""},
        {"", "absent.xml 2>&-", 3, ""},
        {"", "--output page.txt a.xml <&- >&- 2>&-", 0, ""},
        {"", "a.xml a.xml >/dev/full", 3, "<stdout>: error: No space left on device\n"},
        {"", "--format svg a.xml >/dev/full", 3, "<stdout>: error: No space left on device\n"},
        {"", ". a.xml", 3, ".: error: Is a directory\n"},
        {"", "--css . a.xml", 3, ".: error: Is a directory\n"},
        {"cd gone; rmdir ../gone; ", "a.xml", 3, "a.xml: error: No such file or directory\n"},
        {"mkdir gone; cd gone; rmdir ../gone; ", "--output page.txt", 3,
         "page.txt: error: No such file or directory\n"},
    };
    for (auto const& [before, arguments, status, error] : cases) {
        Outcome const outcome = run(arguments, "piped", before);
        EXPECT_EQ(outcome.status, status) << before << arguments;
        EXPECT_EQ(outcome.err, error) << before << arguments;
        if (std::string(arguments).find("--output") != std::string::npos && status == 0) {
            EXPECT_EQ(read("page.txt"), "a\n") << arguments;
        }
    }
}

TEST_F(Surroundings, HaveFilesThatOthersMayNotReadOrWrite) {
    write("page.xml", "<p>a</p>");
    write("kept.txt", "old");
    write("secret.xml", "<p>a</p>");
    std::filesystem::permissions(folder / "secret.xml", std::filesystem::perms::none);
    std::filesystem::permissions(folder / "kept.txt", std::filesystem::perms::owner_read);
    std::filesystem::permissions(folder, std::filesystem::perms::all);
    // Permissions do not hold for root. Somebody else can write no profile of coverage.
    std::string const somebody =
        geteuid() == 0 ? "LLVM_PROFILE_FILE=/dev/null setpriv --reuid=65534 --clear-groups " : "";
    Outcome const unread = run("secret.xml", "", "", somebody + GALLEY_TOOL);
    EXPECT_EQ(unread.status, 3);
    EXPECT_EQ(unread.out, "");
    EXPECT_EQ(unread.err, "secret.xml: error: Permission denied\n");
    Outcome const unwritten = run("--output kept.txt page.xml", "", "", somebody + GALLEY_TOOL);
    EXPECT_EQ(unwritten.status, 3);
    EXPECT_EQ(unwritten.err, "kept.txt: error: Permission denied\n");
    EXPECT_EQ(read("kept.txt"), "old");
}

}  // namespace

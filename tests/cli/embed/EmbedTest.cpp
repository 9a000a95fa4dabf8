// Pages that are compiled into a program: the program that checks them, and the function that
// prints them.

#include <cstdlib>
#include <memory>

#include "galley/galley.h"
#include "printBytes.h"
#include "tests/support/tool.h"

namespace {

using Embed = Tool;
using OpenFile = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

OpenFile openFile(std::string const& name) { return {std::fopen(name.c_str(), "w"), std::fclose}; }

/// What printing a page depends on.
struct Environment {
    char const* columns;
    char const* noColor;

    void set() const {
        setenv("COLUMNS", columns, 1);
        setenv("NO_COLOR", noColor, 1);
    }
    ~Environment() {
        unsetenv("COLUMNS");
        unsetenv("NO_COLOR");
    }
};

TEST_F(Embed, EveryByteOfAPageAndTheOrderOfItsSheetsReachesTheProgram) {
    std::string const folderOfPage = GALLEY_SOURCE_DIR "/tests/cli/embed/";
    std::string const arguments = "--css " + folderOfPage + "first.css --css " + folderOfPage +
                                  "second.css " + folderOfPage + "bytes.xml ";
    for (char const* columns : {"30", "61"}) {
        Environment const environment{columns, ""};
        environment.set();
        ASSERT_TRUE(printBytes(openFile(folder / "page").get()));
        EXPECT_EQ(read("page"), run(arguments + "--width " + columns).out);
    }
}

TEST_F(Embed, APageThatCannotBeWrittenSaysWhy) {
    auto const printed = printBytes(openFile("/dev/full").get());
    ASSERT_FALSE(printed);
    EXPECT_EQ(printed.error().message(), "No space left on device");
}

TEST_F(Embed, AFaultIsReportedAndLeavesNoOutput) {
    std::string const core = "<?galley dialect='core'?>";
    std::string const documentError =
        "bad.xml:2:1: error: Invalid tag: <q>\n    2 | <q/></p>\n      | ^\n";
    std::string const sheetError =
        "bad.css:2:9: error: Expecting ':'\n    2 |  margin 1; }\n      |         ^\n";
    struct Case {
        char const* inputs;
        int status;
        std::string error;
    };
    Case const cases[] = {
        {"good.xml", 0, ""},
        {"good.xml good.css good.css", 0, ""},
        {"bad.xml good.css", 1, documentError},
        {"good.xml good.css bad.css", 1, sheetError},
        {"bad.xml bad.css", 1, sheetError + documentError},
        {"absent.xml", 3, "absent.xml: error: No such file or directory\n"},
        {"bad.xml absent.css", 3, "absent.css: error: No such file or directory\n" + documentError},
    };
    write("good.xml", core + "<p>good</p>");
    write("bad.xml", core + "<p>\n<q/></p>");
    write("good.css", "p { margin: 1; }");
    write("bad.css", "p {\n margin 1; }");
    for (Case const& c : cases) {
        write("page.cpp", "of a build before");
        Outcome const outcome = run(std::string("page.cpp f ") + c.inputs, "", "", GALLEY_EMBED);
        EXPECT_EQ(outcome.status, c.status) << c.inputs;
        EXPECT_EQ(outcome.err, c.error) << c.inputs;
        EXPECT_EQ(std::filesystem::exists(folder / "page.cpp"), c.status == 0) << c.inputs;
        bool const isNew = read("page.cpp").find("f(std::FILE*") != std::string::npos;
        EXPECT_EQ(isNew, c.status == 0) << c.inputs;
    }
}

}  // namespace

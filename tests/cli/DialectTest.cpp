// What a document says about its dialect.

#include <string>

#include "tests/support/tool.h"

namespace {

using Dialects = Tool;

/// Cells of a table touch in the core, and have blanks beside them in the other dialect.
std::string const s_table = "<table><tr><td>a</td><td>b</td></tr></table>";
std::string const s_core = "ab\n";
std::string const s_web = " a  b\n";

TEST_F(Dialects, AreSaidAtTheBeginningOfDocuments) {
    struct Case {
        char const* before;
        std::string out;
    };
    Case const cases[] = {
        {"<?galley dialect=\"core\"?>", s_core},
        {"<?galley dialect=\"web\"?>", s_web},
        {"<?galley   dialect = 'web'  ?>", s_web},
        {"\xef\xbb\xbf<?galley dialect='web'?>", s_web},
        {"<?xml version='1.0'?>\n<!-- a page -->\n<?galley dialect='web'?>\n", s_web},
        {"<?galley dialect='web'?><?galley dialect='core'?>", s_web},
    };
    for (auto const& [before, out] : cases) {
        EXPECT_EQ(run("", before + s_table).out, out) << before;
        // Whoever asks for one gets that.
        EXPECT_EQ(run("--dialect core", before + s_table).out, s_core) << before;
        EXPECT_EQ(run("--dialect web", before + s_table).out, s_web) << before;
    }
    std::string const usual = run("", s_table).out;
    for (std::string const before : {"<?other dialect='web'?>", "<?other dialect='core'?>"}) {
        EXPECT_EQ(run("", before + s_table).out, usual) << before;
    }
}

TEST_F(Dialects, ThatAreNoneAreErrors) {
    for (std::string const inside :
         {"dialect='html'", "dialect=''", "dialect", "dialect=web", "dialect='web", "",
          "dialect='web' width='9'", "width='9'", "dialect='Core'"}) {
        for (char const* arguments : {"", "--check"}) {
            Outcome const outcome = run(arguments, "<?galley " + inside + "?>" + s_table);
            EXPECT_TRUE(outcome.err.starts_with("<stdin>:1:9: error: Expecting dialect=\"core\""))
                << inside << outcome.err;
            EXPECT_EQ(outcome.status, 1) << inside;
            EXPECT_EQ(outcome.out, "") << inside;
        }
        EXPECT_EQ(run("--dialect web", "<?galley " + inside + "?>" + s_table).out, s_web);
    }
}

/// Pages of the web never have controls, so that none can be asked for.
TEST_F(Dialects, OfTheWebAreNotRaw) {
    write("core.xml", "<?galley dialect='core'?>a\x1b");
    write("web.xml", "<p>a\x1b</p>");
    std::string const error = "web.xml: error: --raw is for the dialect core\n";
    struct Case {
        char const* arguments;
        std::string out;
        std::string err;
    };
    Case const cases[] = {
        {"--raw core.xml", "a\x1b\n", ""},
        {"core.xml", "a?\n", ""},
        {"web.xml", "a\uFFFD\n", ""},
        {"--raw web.xml", "", error},
        {"--raw core.xml web.xml", "a\x1b\n", error},
        {"--raw --check web.xml", "", error},
        {"--raw --format html web.xml", "", error},
    };
    for (auto const& [arguments, out, err] : cases) {
        Outcome const outcome = run(arguments + std::string(" --color always"));
        EXPECT_EQ(outcome.out, out) << arguments;
        EXPECT_EQ(outcome.err, err) << arguments;
        EXPECT_EQ(outcome.status, err.empty() ? 0 : 1) << arguments;
    }
}

TEST_F(Dialects, OfSheetsAreThatOfTheFirstDocument) {
    write("core.xml", "<?galley dialect='core'?>" + s_table);
    write("web.xml", "<?galley dialect='web'?>" + s_table);
    write("page.css", "td { padding-left: 3; }");
    std::string const core = "   a   b\n";
    std::string const web = "   a    b\n";
    struct Case {
        char const* arguments;
        std::string out;
        char const* error;
    };
    Case const cases[] = {
        {"core.xml", core, ""},
        {"web.xml", web, ""},
        {"- <core.xml", core, ""},
        {"- <web.xml", web, ""},
        {"web.xml web.xml", web + web, ""},
        {"--jobs 2 core.xml core.xml", core + core, ""},
        {"core.xml web.xml", core,
         "page.css: error: This sheet is of the dialect core, the document of web\n"},
        {"web.xml core.xml", web,
         "page.css: error: This sheet is of the dialect web, the document of core\n"},
        {"--dialect web web.xml core.xml", web + web, ""},
    };
    for (auto const& [arguments, out, error] : cases) {
        Outcome const outcome = run("-s page.css " + std::string(arguments));
        EXPECT_EQ(outcome.out, out) << arguments;
        EXPECT_EQ(outcome.err, error) << arguments;
    }
    EXPECT_EQ(run("core.xml web.xml").out, s_core + s_web);
}

TEST_F(Dialects, OfPagesInProgramsAreTheirs) {
    write("core.xml", "<?galley dialect='core'?><q/>");
    write("web.xml", "<?galley dialect='web'?><q/>");
    write("page.css", "q > b, p:first-child { margin: 1lh 0 }");
    EXPECT_NE(run("page.cpp f core.xml", "", "", GALLEY_EMBED).err.find("Invalid tag"),
              std::string::npos);
    EXPECT_NE(run("page.cpp f core.xml page.css", "", "", GALLEY_EMBED).err.find("page.css:1:3"),
              std::string::npos);
    Outcome const outcome = run("page.cpp f web.xml page.css", "", "", GALLEY_EMBED);
    EXPECT_EQ(outcome.err, "");
    EXPECT_NE(read("page.cpp").find("options.dialect = galley::Dialect::web;"), std::string::npos);
}

}  // namespace

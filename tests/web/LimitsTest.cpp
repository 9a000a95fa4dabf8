// What is bounded, however long a source is.

#include <gtest/gtest.h>

#include "tests/web/flow/Pictures.h"
#include "web/css/Tokenizer.h"
#include "web/wording.h"

namespace galley::web {
namespace {

std::string repeated(std::string_view text, std::size_t times) {
    std::string all;
    for (std::size_t i = 0; i < times; ++i) all += text;
    return all;
}

std::vector<Problem> problemsOf(std::string const& markup) {
    TextOfRows rows("", "");
    std::vector<Problem> problems;
    renderPage(markup, {}, Media(), rows, problems);
    return problems;
}

TEST(Limits, WarningsOfADocumentAreSoMany) {
    std::size_t const many = s_mostWarnings + 5;
    for (std::string const& markup :
         {"<p>" + repeated("& ", many) + "</p>", repeated("<p sise='1'/>", many),
          repeated("<p style='colour: red'/>", many), repeated("<p colour='\xFF'/>\n", many),
          "<style>" + repeated("p { colour: red }", many) + "</style><p/>",
          repeated("<td colspan='x'/>", many)}) {
        std::vector<Problem> const problems = problemsOf(markup);
        ASSERT_EQ(problems.size(), s_mostWarnings + 1) << markup.substr(0, 30);
        EXPECT_EQ(problems.back().message, "there are more warnings than these");
        EXPECT_NE(problems[s_mostWarnings - 1].message, problems.back().message);
    }
}

TEST(Limits, AnErrorIsToldBehindAllWarnings) {
    std::vector<Problem> const problems =
        problemsOf("<p>" + repeated("& ", s_mostWarnings + 5) + "</q>");
    ASSERT_GT(problems.size(), s_mostWarnings + 1);
    EXPECT_EQ(problems[s_mostWarnings + 1].kind, Problem::Kind::error);
}

TEST(Limits, SheetsAreReadUpToALength) {
    std::string const rule = "p { color: red }";
    std::string const blanks = repeated(" ", Tokenizer::s_longest - rule.size());
    struct {
        std::string sheet;
        std::size_t rules;
        std::size_t problems;
    } const cases[] = {{blanks + rule, 1, 0}, {blanks + rule + rule, 1, 1}};
    for (auto const& each : cases) {
        std::vector<Problem> problems;
        Sheet const sheet = Sheet::parse(each.sheet, problems);
        EXPECT_EQ(sheet.rulesFor(Media()).size(), each.rules);
        ASSERT_EQ(problems.size(), each.problems);
        for (Problem const& problem : problems) EXPECT_EQ(problem.offset, Tokenizer::s_longest);
    }
}

TEST(Limits, SheetsOfADocumentAreReadUpToALengthTogether) {
    std::string const sheet =
        "<style>p { text-indent: 1ch }" + repeated(" ", Tokenizer::s_longest / 2) + "</style>";
    std::string const last = "<style>p { text-indent: 2ch }</style><p>a</p>";
    EXPECT_EQ(textOf(sheet + last, 9), "  a\n");
    EXPECT_EQ(textOf(sheet + sheet + last, 9), " a\n");
    std::vector<Problem> const problems = problemsOf(sheet + sheet + last);
    ASSERT_EQ(problems.size(), 2U);
    EXPECT_EQ(problems[1].message,
              "sheets of a document are read up to 4 MiB; this one has no effect");
}

TEST(Limits, StyleAttributesAreReadUpToALength) {
    std::string const blanks = repeated(" ", Tokenizer::s_longest);
    std::vector<Problem> const problems =
        problemsOf("<p style='" + blanks + "color: red'/><p style='color: red'/>");
    ASSERT_EQ(problems.size(), 1U);
    EXPECT_EQ(problems[0].message, "sheets are read up to 4 MiB; the rest has no effect");
}

}  // namespace
}  // namespace galley::web

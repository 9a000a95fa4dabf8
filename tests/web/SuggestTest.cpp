#include "web/suggest.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "web/renderPage.h"

namespace galley::web {
namespace {

TEST(Suggest, FindsTheNearestName) {
    constexpr std::string_view s_names[] = {"color", "table", "td", "tables", "border-left-width"};
    struct {
        std::string_view word;
        std::string_view suggestion;
    } const cases[] = {
        {"colour", "color"},
        {"COLOR", "color"},
        {"clor", "color"},
        {"olor", "color"},
        {"colro", "color"},
        {"tabels", "tables"},
        {"tablez", "table"},
        {"tabless", "tables"},
        {"border-left-widht", "border-left-width"},
        {"boder-lef-width", "border-left-width"},
        {"boder-lef-widt", ""},
        // Half of the word would have to be changed.
        {"te", ""},
        {"tdx", "td"},
        {"colx", ""},
        {"d", ""},
        {"", ""},
    };
    for (auto const& c : cases) {
        EXPECT_EQ(suggest(c.word, s_names, std::identity()), c.suggestion) << c.word;
    }
}

class NoRows final : public RowSink {
public:
    void take(Row const& /*row*/) override {}
};

std::vector<std::string> warningsOf(std::string_view markup) {
    NoRows rows;
    std::vector<Problem> problems;
    EXPECT_TRUE(renderPage(markup, {}, {}, rows, problems)) << markup;
    std::vector<std::string> messages;
    for (Problem const& problem : problems) messages.push_back(problem.message);
    return messages;
}

TEST(Suggest, SaysWhatWasMeantInADocument) {
    struct Case {
        char const* markup;
        char const* message;
    };
    constexpr Case cases[] = {
        {"<tabel/>", "unknown element 'tabel'; did you mean 'table'?"},
        {"<nonsense/>", "unknown element 'nonsense'"},
        {"<label/>", "element 'label' is not supported"},
        {"<p align='left'/>", "unknown attribute 'align'; did you mean 'text-align'?"},
        {"<p clas='a'/>", "unknown attribute 'clas'; did you mean 'class'?"},
        {"<p colour='red'/>", "unknown attribute 'colour'; did you mean 'color'?"},
        {"<p sytle='a'/>", "unknown attribute 'sytle'; did you mean 'style'?"},
        {"<p hiden='a'/>", "unknown attribute 'hiden'; did you mean 'hidden'?"},
        {"<p onclick='a'/>", "unknown attribute 'onclick'"},
        {"<p style='colour: red'/>", "unknown property 'colour'; did you mean 'color'?"},
        {"<p style='color: gren'/>", "'gren' is no value of 'color'; did you mean 'green'?"},
        {"<p text-align='centre'/>",
         "'centre' is no value of 'text-align'; did you mean 'center'?"},
        // Of the words that are near, those that the property takes.
        {"<p style='white-space: pre-warp'/>",
         "'pre-warp' is no value of 'white-space'; did you mean 'pre-wrap'?"},
        {"<p style='width: gren'/>", "'gren' is no value of 'width'"},
        {"<p style='display: blok'/>", "'blok' is no value of 'display'; did you mean 'block'?"},
        {"<style>p { margin-letf: 1 }</style>",
         "unknown property 'margin-letf'; did you mean 'margin-left'?"},
    };
    for (auto const& [markup, message] : cases) {
        EXPECT_EQ(warningsOf(markup), std::vector<std::string>{message}) << markup;
    }
}

TEST(Suggest, HasOnlySoManySuggestionsForADocument) {
    std::string markup;
    for (int i = 0; i < 101; ++i) markup += "<b clas='a'/>";
    std::vector<std::string> const messages = warningsOf(markup);
    ASSERT_EQ(messages.size(), 101U);
    EXPECT_EQ(messages[99], "unknown attribute 'clas'; did you mean 'class'?");
    EXPECT_EQ(messages[100], "unknown attribute 'clas'");
}

}  // namespace
}  // namespace galley::web

#include "galley/check/suggest.h"

#include <gtest/gtest.h>

namespace galley {
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

}  // namespace
}  // namespace galley

// Where rows end on a screen, with escape sequences in them.

#include "cli/rows.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(RowsOfAScreen, EndWhereTheirColumnsDoWhateverSequencesTheyHold) {
    std::string const link = "\x1b]8;id=1;https://example.com/m\x1b\\";
    std::string const end = "\x1b]8;;\x1b\\";
    struct Case {
        std::string row;
        std::size_t width;
        std::string shown;
    };
    Case const cases[] = {
        {"abcdef", 3, "abc"},
        {"\x1b[1mabc\x1b[0mdef", 3, "\x1b[1mabc\x1b[0m"},
        {"\x1b[38;2;1;2;3mabcd", 2, "\x1b[38;2;1;2;3mab"},
        {"\x1b[2Kabc", 2, "\x1b[2Kab"},
        {link + "abc" + end + "def", 3, link + "abc" + end},
        {link + "abc" + end + "def", 5, link + "abc" + end + "de"},
        {"\x1b]8;;https://example.com\aab\x1b]8;;\acd", 3,
         "\x1b]8;;https://example.com\aab\x1b]8;;\ac"},
        {"\x1b"
         "7ab",
         1,
         "\x1b"
         "7a"},
        // Of what does not end nothing is text.
        {"a\x1b", 2, "a\x1b"},
        {"a\x1b[1", 2, "a\x1b[1"},
        {"a\x1b]8;;x", 2, "a\x1b]8;;x"},
        {"a\x1b]8;;x\x1b", 2, "a\x1b]8;;x\x1b"},
        {"a\tb", 8, "a\t"},
        {"\xe6\xbc\xa2\xe5\xad\x97", 3, "\xe6\xbc\xa2"},
    };
    for (auto const& [row, width, shown] : cases) {
        EXPECT_EQ(row.substr(0, endOfRow(row, 0, width)), shown) << testing::PrintToString(row);
    }
}

TEST(RowsOfAScreen, GoOnInTheNextWithoutPartingASequence) {
    std::string const link = "\x1b]8;;https://example.com/a-long-address\x1b\\";
    std::vector<std::string> const rows = {link + "ab", "cd\x1b]8;;\x1b\\"};
    EXPECT_EQ(breakRows(rows[0] + rows[1] + "\n", 2), rows);
}

}  // namespace

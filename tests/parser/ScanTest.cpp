#include "xml/parser/scan.h"

#include <tuple>

#include "tests/support/text.h"

namespace CLI::XML {
namespace {

/// A text, a set, where scanning from the beginning stops, and on which line.
using ScanCase = std::tuple<String, char const*, int, int>;

TEST(Scanning, ReadsUpToTheFirstMemberOfTheSet) {
    for (auto const& [text, set, end, lines] :
         {ScanCase("ab\ncd<", "<", 5, 2), ScanCase("<ab", "<", 0, 1), ScanCase("abc", "<>", 3, 1),
          ScanCase("", "<", 0, 1), ScanCase("a\r\nb\rc", "<", 6, 2), ScanCase("a\nb", " \n", 1, 1),
          ScanCase(bytes("ab\0cd"), "<", 2, 1), ScanCase("\xE9<\xFF", "<\xFF", 1, 1),
          ScanCase("i\xE9", "\xE9", 1, 1)}) {
        int position = 0;
        int line = 1;
        String out = "x";
        EXPECT_EQ(parseUntilCharacter(text, position, line, out, set), end) << shown(text);
        EXPECT_EQ(position, end) << shown(text);
        EXPECT_EQ(line, lines) << shown(text);
        EXPECT_EQ(shown(out), "x" + shown(text.substring(0, end)));
    }
}

TEST(Scanning, SkipsTheMembersOfTheSet) {
    for (auto const& [text, set, end, lines] :
         {ScanCase(" \n\r\n\rx", " \n\r", 5, 3), ScanCase("x ", " ", 0, 1),
          ScanCase("  ", " ", 2, 1), ScanCase(bytes(" \0 x"), " ", 3, 1)}) {
        int position = 0;
        int line = 1;
        skipCharacters(text, position, line, set);
        EXPECT_EQ(position, end) << shown(text);
        EXPECT_EQ(line, lines) << shown(text);
    }
}

TEST(Scanning, MatchesOnlyWhatFitsBeforeTheEnd) {
    using Case = std::tuple<char const*, int, char const*, int, bool>;
    for (auto const& [text, start, literal, end, matches] :
         {Case("a<!--", 1, "<!--", 5, true), Case("a<!-", 1, "<!--", 1, false),
          Case("<!-x", 0, "<!--", 0, false), Case("<", 1, "<", 1, false),
          Case("", 0, "", 0, true)}) {
        int position = start;
        EXPECT_EQ(peekString(text, start, literal), matches) << text;
        EXPECT_EQ(parseString(text, position, literal), matches) << text;
        EXPECT_EQ(position, end) << text;
    }
    String const text = bytes("\xE9\0");
    int position = 0;
    EXPECT_FALSE(parseCharacter(text, position, 'i') || peekCharacter(text, position, "i"));
    EXPECT_TRUE(peekCharacter(text, position, "x\xE9") && parseCharacter(text, position, '\xE9'));
    EXPECT_TRUE(peekCharacter(text, position, "x") && parseCharacter(text, position, '\0'));
    EXPECT_FALSE(peekCharacter(text, position, "x") || parseCharacter(text, position, '\0'));
    EXPECT_EQ(position, 2);
}

}  // namespace
}  // namespace CLI::XML

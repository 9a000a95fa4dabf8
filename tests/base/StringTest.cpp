#include "base/String.h"

#include <climits>
#include <tuple>
#include <utility>

#include "tests/support/text.h"

namespace {

TEST(StringBuffer, FollowsOneSizingRuleHoweverTheTextCameAbout) {
    using Case = std::pair<int, int>;
    for (auto const& [length, bytes] :
         {Case(0, 8), Case(7, 8), Case(8, 16), Case(15, 16), Case(16, 32), Case(100, 128),
          Case(2048, 4096), Case(4094, 4096), Case(4095, 4097), Case(4096, 8193), Case(8191, 8193),
          Case(8192, 12289)}) {
        SCOPED_TRACE(length);
        String const text = String::repeat("x", static_cast<unsigned>(length));
        String grown = text.substring(0, length / 2);
        grown += text.substring(length / 2, length);
        for (String const& s : {text, String(text.c_str()), String(text.c_str(), 0, length),
                                String(String::formatted, "%s", text.c_str()), grown}) {
            EXPECT_EQ(s.capacity() + 8, bytes);
            EXPECT_EQ(s, std::string(static_cast<std::size_t>(length), 'x').c_str());
        }
    }
}

TEST(StringBuffer, IsKeptByAnAppendThatFits) {
    String text = "12345678";
    char const* const buffer = text.c_str();
    EXPECT_EQ((text += "1234567").c_str(), buffer);
    EXPECT_EQ((text += "8").capacity(), 24);
    EXPECT_EQ(text, "1234567812345678");
}

TEST(StringBuffer, ThatCannotBeHadLeavesTheEmptyTextOrTheFormerOne) {
    String text = "abc";
    EXPECT_FALSE(text.reserve(INT_MAX));
    EXPECT_EQ(text.concat("x", INT_MAX), "abc");
    EXPECT_EQ(String("x", 0, INT_MAX), "");
    EXPECT_EQ(String::repeat("ab", 0xFFFFFFFF), "");
    EXPECT_EQ(String::repeat(bytes("a\0"), 2), bytes("a\0a\0"));
}

TEST(StringBuffer, GrowsAheadAndShrinksToWhatAFreshTextTakes) {
    String text;
    unsigned buffers = 0;
    for (int i = 0; i < 20000; ++i) {
        char const* const former = text.c_str();
        EXPECT_TRUE(text.growFor(2));
        text += "ab";
        if (text.c_str() != former) ++buffers;
    }
    EXPECT_LT(buffers, 20U);
    for (int length : {40000, 8, 7, 0}) {
        text.deleteRegion(length, text.length());
        text.shrinkToFit();
        EXPECT_EQ(text.capacity(), String(text.c_str()).capacity()) << length;
        EXPECT_EQ(text.length(), length);
    }
    text.assign("123456789");
    char const* const buffer = text.c_str();
    text.assign("abcdefghijk");
    EXPECT_EQ(text, "abcdefghijk");
    EXPECT_EQ(text.c_str(), buffer);
    text.assign(std::string_view(buffer, 3'000'000'000U));
    EXPECT_EQ(text, "");
}

TEST(StringMove, TakesTheBufferAndAssignmentExchanges) {
    String source = "a longer text";
    char const* const buffer = source.c_str();
    String target = std::move(source);
    EXPECT_EQ(source, "");  // NOLINT(bugprone-use-after-move): what a move leaves behind
    String other = "short";
    other = std::move(target);
    EXPECT_EQ(other.c_str(), buffer);
    EXPECT_EQ(target, "short");  // NOLINT(bugprone-use-after-move)
}

TEST(StringEquality, CountsNulBytesExceptAgainstAPointer) {
    EXPECT_TRUE(String(nullptr) == nullptr && !(String("a") == nullptr));
    EXPECT_FALSE(String("ab") == String("ac") || String("ab") == String("abc"));
    EXPECT_FALSE(bytes("a\0b") == bytes("a\0c"));
    EXPECT_TRUE(bytes("a\0b") == "a" && bytes("a\0b") == String(bytes("a\0b")));
    EXPECT_TRUE(String("ab")[-4] == '\0' && String("ab")[2] == '\0' && String("ab")[1] == 'b');
}

TEST(StringAlias, MayBeTheSourceOfItsOwnChange) {
    for (int const length : {1, 3, 4, 7, 8, 15, 2047, 2048}) {
        String const former = String::repeat("ab", 2048).substring(0, length);
        char const* const s = former.c_str();
        String text = former;
        EXPECT_EQ(text += text, String(String::formatted, "%s%s", s, s)) << length;
        text = former;
        EXPECT_EQ(text.insert(1, text), String(String::formatted, "a%s%s", s, s + 1)) << length;
    }
    String text = "0123456789";
    EXPECT_EQ(text.concat(text.c_str() + 4, 6), "0123456789456789");
    EXPECT_EQ(text = text.c_str() + 14, "89");
    EXPECT_EQ(text.format("%s-%s-%d", text.c_str(), text.c_str(), 7), "89-89-7");
    EXPECT_EQ(text.concatf("<%s>", text.c_str()), "89-89-7<89-89-7>");
    EXPECT_EQ(text = *&text, "89-89-7<89-89-7>");
}

TEST(StringRanges, AreBroughtIntoTheText) {
    using Case = std::tuple<int, int, char const*, char const*>;
    for (auto const& [from, to, cut, left] :
         {Case(0, 5, "hello", ""), Case(1, 3, "el", "hlo"), Case(3, 3, "", "hello"),
          Case(5, 2, "", "hello"), Case(5, 6, "", "hello"), Case(4, 5, "o", "hell"),
          Case(2, INT_MAX, "llo", "he"), Case(-1, 2, "", "llo")}) {
        String text = "hello";
        EXPECT_EQ(text.substring(from, to), String(cut)) << from << ".." << to;
        EXPECT_EQ(text.deleteRegion(from, to), String(left)) << from << ".." << to;
    }
}

TEST(StringInsert, PutsTheTextBeforeAPositionOfTheText) {
    using Case = std::pair<int, char const*>;
    for (auto const& [position, expected] : {Case(0, "<>abc"), Case(2, "ab<>c"), Case(3, "abc<>"),
                                             Case(9, "abc<>"), Case(-1, "<>abc")}) {
        EXPECT_EQ(String("abc").insert(position, "<>"), expected) << position;
    }
}

TEST(StringSearch, FindsTheFirstByteFromAPositionOn) {
    using Case = std::tuple<char, int, int>;
    for (auto const& [byte, from, expected] :
         {Case('a', 0, 0), Case('a', 1, 3), Case('a', -5, 0), Case('a', 4, -1), Case('\0', 0, 1),
          Case('\0', 2, -1)}) {
        EXPECT_EQ(bytes("a\0ba").indexOf(byte, from), expected) << byte << from;
    }
}

TEST(StringNumbers, ReadAnOptionalSignAndDigitsAndSaturate) {
    using Case = std::pair<char const*, int>;
    for (auto const& [text, expected] :
         {Case("3", 3), Case("-12", -12), Case("+7", 7), Case(" \t\n\v\f\r8", 8), Case("2px", 2),
          Case("", 0), Case("abc", 0), Case("--1", 0), Case("- 1", 0), Case("1 2", 1),
          Case("007", 7), Case("2147483647", INT_MAX), Case("2147483648", INT_MAX),
          Case("-2147483648", INT_MIN), Case("-2147483649", INT_MIN),
          Case("99999999999999999999", INT_MAX), Case("-99999999999999999999", INT_MIN)}) {
        EXPECT_EQ(String(text).toInteger(), expected) << text;
    }
}

}  // namespace

#include "web/text/SegmentReader.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "web/css/characters.h"
#include "web/text/asciiBreaks.h"
#include "web/text/asciiPairs.h"
#include "web/text/letters.h"
#include "web/text/utf8.h"

namespace galley::web {
namespace {

using WhiteSpace = TextOptions::WhiteSpace;
using WordBreak = TextOptions::WordBreak;

std::string behindOf(Segment const& segment, TextOptions options) {
    bool const isPreserved = options.whiteSpace == WhiteSpace::preserved;
    switch (segment.behind) {
        case Segment::Behind::end:
            return "";
        case Segment::Behind::opportunity:
            return "|";
        case Segment::Behind::softHyphen:
            return "-|";
        case Segment::Behind::space:
            return std::string(isPreserved ? segment.next - segment.end : 1, '_');
        case Segment::Behind::tab:
            return ">";
        case Segment::Behind::lineFeed:
            return "/";
    }
    return "?";
}

/// What holds of every segment, whatever the text.
void check(std::string_view text, Segment const& segment, TextOptions options) {
    std::size_t width = 0;
    bool isPlain = true;
    for (std::size_t i = segment.begin; i < segment.end;) {
        Cluster const cluster = clusterAt(text.substr(0, segment.end), i, options.isAmbiguousWide);
        width += cluster.width;
        isPlain = isPlain && isPrintableAscii(text[i]);
        i = cluster.end;
    }
    EXPECT_EQ(segment.width, width);
    EXPECT_TRUE(isPlain || !segment.isPlain);
    std::string printed;
    appendPrinted(printed, text.substr(segment.begin, segment.end - segment.begin));
    bool const isAsIs = printed == text.substr(segment.begin, segment.end - segment.begin);
    EXPECT_TRUE(isAsIs || !segment.isPrintedAsIs);
    EXPECT_EQ(findIllFormed(printed), std::string::npos);
    for (std::size_t i = 0; i < printed.size(); i += decodeAt(printed, i).length) {
        char32_t const c = decodeAt(printed, i).value;
        EXPECT_TRUE(c >= 0x20 && (c < 0x7F || c >= 0xA0)) << static_cast<unsigned>(c);
    }
}

/// The segments of a text, each with what is behind it.
std::string segmentsOf(std::string_view text, TextOptions options = {}) {
    std::string out;
    SegmentReader reader(text, options);
    std::size_t at = 0;
    for (Segment segment; reader.next(segment); at = segment.next) {
        EXPECT_EQ(segment.begin, at);
        EXPECT_LE(segment.begin, segment.end);
        EXPECT_LE(segment.end, segment.next);
        EXPECT_LT(segment.begin, segment.next);
        EXPECT_TRUE(segment.behind != Segment::Behind::end || segment.end == text.size());
        check(text, segment, options);
        appendPrinted(out, text.substr(segment.begin, segment.end - segment.begin));
        out += behindOf(segment, options);
    }
    EXPECT_EQ(at, text.size());
    return out;
}

struct Case {
    std::string text;
    std::string expected;
};

TEST(Segments, EndWhereALineMayBreak) {
    Case const cases[] = {
        {"", ""},
        {"ab cd", "ab_cd"},
        {"ab-cd", "ab-|cd"},
        {"-12 a-12 (-12) b)-1 \u00E9-1 a)-(b", "-12_a-|12_(-12)_b)-1_\u00E9-1_a)-|(b"},
        {"ab/cd a?b a(b)c a)(b", "ab/cd_a?|b_a(b)c_a)|(b"},
        {"well-known, though", "well-|known,_though"},
        {"abcdefghijklmnopqrstuvwxyz-abcdefgh", "abcdefghijklmnopqrstuvwxyz-|abcdefgh"},
        // Hyphens that begin a word.
        {"--output-dir -o [--all|--none]", "--output-|dir_-o_[--all|--none]"},
        {"'--x' \"-y\" \u201C--z\u201D a=-b", "'--x'_\"-y\"_\u201C--z\u201D_a=-b"},
        {"a--b ---c \"d\"-e", "a-|-|b_---|c_\"d\"-|e"},
        {"-\u00E9 a-\u00E9 \u00A0-o a?-\u00E9", "-\u00E9_a-|\u00E9_ -o_a?|-|\u00E9"},
        // Behind and before what is not ASCII.
        {"\u6F22\u5B57abc\u6F22", "\u6F22|\u5B57|abc|\u6F22"},
        {"\u3042\u3001\u3044\u3002\u300C\u3046\u300D\uFF01\u3048",
         "\u3042\u3001|\u3044\u3002|\u300C\u3046\u300D\uFF01|\u3048"},
        {"\u3042\u3063\u30FC\u3005", "\u3042|\u3063|\u30FC\u3005"},
        {"\uD55C\uAD6D a\u2014b a\u2013b", "\uD55C|\uAD6D_a|\u2014|b_a\u2013|b"},
        {"\u00E9t\u00E9-ci \u00E9/\u00E9?\u00E9", "\u00E9t\u00E9-|ci_\u00E9/|\u00E9?|\u00E9"},
        {"\u6F22\u201C\u5B57\u201D\u6F22 x\u00ABy\u00BB",
         "\u6F22|\u201C\u5B57\u201D|\u6F22_x\u00ABy\u00BB"},
        {"\u6F22\u201Ca a\u201C\u6F22 a\u2028\u2028\u6F22",
         "\u6F22\u201Ca_a\u201C\u6F22_a | |\u6F22"},
        {"\u20AC100 100\u20AC/\u00E9 \u6F22(1)", "\u20AC100_100\u20AC/|\u00E9_\u6F22|(1)"},
        {"\u0E20\u0E32\u0E29\u0E32\u0E44\u0E17\u0E22",
         "\u0E20\u0E32\u0E29\u0E32\u0E44\u0E17\u0E22"},
        {"\u05D0-\u05D0\u2010a a\u2010b", "\u05D0-|\u05D0\u2010a_a\u2010|b"},
        {"\U0001F600\U0001F600x\U0001F468\u200D\U0001F469",
         "\U0001F600|\U0001F600|x|\U0001F468\u200D\U0001F469"},
        {"\U0001F1E9\U0001F1EA\U0001F1E9\U0001F1EA", "\U0001F1E9\U0001F1EA|\U0001F1E9\U0001F1EA"},
        {"\u2500\u2502 \u25CF a\u2192b", "\u2500\u2502_\u25CF_a\u2192b"},
        {"\u05D0\u05D1\u0663a \u20AC\u05D0%", "\u05D0\u05D1\u0663a_\u20AC\u05D0%"},
        // What only the surroundings tell.
        {"z-0 (12)\u20AC (a)\u20AC 1\u300D\u20AC \u6F22\u300D\u20AC 1\u6F22)\u20AC",
         "z-|0_(12)\u20AC_(a)|\u20AC_1\u300D\u20AC_\u6F22\u300D|\u20AC_1|\u6F22)|\u20AC"},
        {"\u0663/\u0664 \u00E9/\u0664", "\u0663/\u0664_\u00E9/|\u0664"},
        {"\u2010\u00E9 a\t\u2010\u00E9\u2010\u00E9", "\u2010\u00E9_a_\u2010\u00E9\u2010|\u00E9"},
        {"\u20AC(1 \u20AC(\u0301\u0664 \u20AC(\u00E9",
         "\u20AC(1_\u20AC(\u0301\u0664_\u20AC|(\u00E9"},
        {"\u6F22\u202A\u3002\u202C\u6F22\u200D\u6F22", "\u6F22\u3002|\u6F22\u200D\u6F22"},
        // Used, never printed.
        {"a\u200Bb a\u2060-\u2060b a\u200B", "a|b_a-b_a|"},
        {"super\u00ADcali a\u00AD", "super-|cali_a-|"},
        {"1\u00A0000 a\u202F! \u6F22\u00A0\u6F22", "1 000_a !_\u6F22 \u6F22"},
        {"a\x01-\xFFz", "a\uFFFD-|\uFFFDz"},
        {"\u0600 b", "\u0600_b"},
    };
    for (auto const& [text, expected] : cases) EXPECT_EQ(segmentsOf(text), expected);
}

TEST(Segments, BreakAllWordsOrOnlyWhereMarksAre) {
    struct {
        WordBreak wordBreak;
        std::string text;
        std::string expected;
    } const cases[] = {
        {WordBreak::keepAll, "\u6F22\u5B57\u3002\uD55C\uAD6D a-b \u6F22a",
         "\u6F22\u5B57\u3002|\uD55C\uAD6D_a-|b_\u6F22a"},
        {WordBreak::breakAll, "abc1, (d) $5 x%", "a|b|c|1,_(d)_$5_x%"},
        {WordBreak::breakAll, "\u00E9t\u00E9! e\u0301a \u6F22\u3002",
         "\u00E9|t|\u00E9!_e\u0301|a_\u6F22\u3002"},
        {WordBreak::breakAll, "\u05D0\u05D1", "\u05D0|\u05D1"},
        {WordBreak::breakAll, "--ab a\u00A0b", "--a|b_a b"},
    };
    for (auto const& [wordBreak, text, expected] : cases) {
        EXPECT_EQ(segmentsOf(text, {.wordBreak = wordBreak}), expected);
    }
}

TEST(Segments, WhiteSpaceIsCollapsedOrKept) {
    struct {
        std::string text;
        std::string collapsed;
        std::string lines;
        std::string preserved;
    } const cases[] = {
        {" a  b ", "_a_b_", "_a_b_", "_a__b_"},
        {"a\tb", "a_b", "a_b", "a>b"},
        {"a \t b", "a_b", "a_b", "a_>_b"},
        {"a\nb", "a_b", "a/b", "a/b"},
        {"a\r\nb\rc\n\rd", "a_b_c_d", "a/b/c//d", "a/b/c//d"},
        {" \n ", "_", "/", "_/_"},
        {"a \n \n b", "a_b", "a//b", "a_/_/_b"},
        {"\u6F22\n\u5B57", "\u6F22_\u5B57", "\u6F22/\u5B57", "\u6F22/\u5B57"},
        {"a\u200B\nb\n\u200Bc\u200B d", "a|b||c_d", "a/b/|c_d", "a/b/|c_d"},
        {"a\fb\vc", "a\uFFFDb\uFFFDc", "a\uFFFDb\uFFFDc", "a\uFFFDb\uFFFDc"},
        {"a \u0301b", "a_b", "a_b", "a_b"},
    };
    for (auto const& [text, collapsed, lines, preserved] : cases) {
        EXPECT_EQ(segmentsOf(text, {.whiteSpace = WhiteSpace::collapsed}), collapsed);
        EXPECT_EQ(segmentsOf(text, {.whiteSpace = WhiteSpace::lines}), lines);
        EXPECT_EQ(segmentsOf(text, {.whiteSpace = WhiteSpace::preserved}), preserved);
    }
}

template <std::size_t Count>
bool isIn(AsciiPairs const (&rows)[Count], char before, char behind) {
    for (AsciiPairs const& row : rows) {
        if (row.before.find(before) != std::string_view::npos) {
            return row.behind.find(behind) != std::string_view::npos;
        }
    }
    return false;
}

TEST(Segments, EveryPairOfAsciiCharactersIsTheBrowsers) {
    for (char before = '!'; before <= '~'; ++before) {
        for (char behind = '!'; behind <= '~'; ++behind) {
            // One text is read as ASCII, the other one cluster by cluster.
            for (std::string const start : {"ab", "\u00E9b"}) {
                std::string const text = start + before + behind + "c";
                std::size_t const place = start.size() + 1;
                auto const breaks = [&](WordBreak wordBreak) {
                    SegmentReader reader(text, {.wordBreak = wordBreak});
                    Segment segment;
                    while (segment.next < place) reader.next(segment);
                    return segment.next == place;
                };
                EXPECT_EQ(breaks(WordBreak::normal), isIn(s_normalPairs, before, behind)) << text;
                EXPECT_EQ(breaks(WordBreak::keepAll), isIn(s_normalPairs, before, behind)) << text;
                EXPECT_EQ(breaks(WordBreak::breakAll), isIn(s_breakAllPairs, before, behind))
                    << text;
            }
        }
    }
}

/// Where lines of a text in ASCII may break, as it is defined.
std::vector<std::size_t> breaksOf(std::string const& text) {
    std::vector<std::size_t> places;
    for (std::size_t i = 1; i < text.size(); ++i) {
        bool const isBehindSpace = text[i - 1] == ' ' && text[i] != ' ';
        bool const isInWord = text[i - 1] != ' ' && text[i] != ' ';
        if (isBehindSpace || (isInWord && breaksInAscii(text, i, false))) places.push_back(i);
    }
    return places;
}

TEST(Segments, ALongTextInAsciiIsReadAsItsPairs) {
    std::mt19937 random(1);
    std::string_view const some = "abcxyzABCXYZ@[`{-(?<. ";
    for (int round = 0; round < 2000; ++round) {
        std::string text;
        for (std::size_t i = random() % 60; i > 0; --i) {
            // Mostly letters, so that whole words are skipped.
            std::size_t const kind = random() % 4 == 0 ? some.size() : 12;
            text += some[random() % kind];
        }
        std::vector<std::size_t> places;
        SegmentReader reader(text);
        for (Segment segment; reader.next(segment);) {
            if (segment.next < text.size()) places.push_back(segment.next);
        }
        EXPECT_EQ(places, breaksOf(text)) << text;
    }
}

TEST(Segments, WordsAreWhatSegmentsWouldBe) {
    std::mt19937 random(1);
    std::string_view const some = "abcde.,01fgh     \n\t(-?\xC3\x81";
    for (int round = 0; round < 20000; ++round) {
        // Of plain words, or of anything.
        std::size_t const kinds = round % 2 == 0 ? 14 : some.size();
        std::string text;
        for (std::size_t i = random() % 70; i > 0; --i) text += some[random() % kinds];
        TextOptions const options = {.whiteSpace = static_cast<WhiteSpace>(random() % 3),
                                     .wordBreak = static_cast<WordBreak>(random() % 3)};
        SegmentReader bySegments(text, options);
        SegmentReader byWords(text, options);
        Segment expected;
        Segment found;
        for (;;) {
            std::size_t const start = expected.next;
            std::string_view const words = byWords.takeWords();
            for (std::size_t i = 0; i < words.size(); i = expected.next - start) {
                ASSERT_TRUE(bySegments.next(expected));
                std::string_view const blank =
                    expected.next < text.size() ? " " : words.substr(expected.end - start);
                EXPECT_EQ(text.substr(expected.end, expected.next - expected.end), blank) << text;
                EXPECT_TRUE(expected.isPlain && expected.width > 0) << text;
            }
            bool const isThere = bySegments.next(expected);
            ASSERT_EQ(byWords.next(found), isThere) << text;
            if (!isThere) break;
            EXPECT_EQ(found.begin, expected.begin) << text;
            EXPECT_EQ(found.next, expected.next) << text;
            EXPECT_EQ(found.behind, expected.behind) << text;
        }
    }
}

// Where ambiguous characters are wide all of them are read cluster by cluster.
TEST(Segments, OfLettersAreThoseOfTheirClusters) {
    std::mt19937 random(1);
    std::vector<std::string> const pieces = {"\u00E9", "\u00DF", "\u03BB", "\u0416", "\u0301",
                                             "\u00D7", "\u00AD", "\u0483", "e",      "0",
                                             " ",      "-",      "\n"};
    for (int round = 0; round < 30000; ++round) {
        std::string text;
        for (std::size_t i = 1 + random() % 9; i > 0; --i) {
            std::size_t const kind = random() % 8;
            text += kind == 0   ? std::string(1, static_cast<char>(' ' + random() % 95))
                    : kind == 1 ? pieces[random() % pieces.size()]
                                : pieces[random() % 4];
        }
        TextOptions options = {.whiteSpace = static_cast<WhiteSpace>(random() % 3),
                               .wordBreak = static_cast<WordBreak>(random() % 2)};
        SegmentReader reader(text, options);
        options.isAmbiguousWide = true;
        SegmentReader byClusters(text, options);
        Segment expected;
        Segment found;
        while (byClusters.next(expected)) {
            ASSERT_TRUE(reader.next(found)) << text;
            ASSERT_EQ(found.end, expected.end) << text;
            ASSERT_EQ(found.next, expected.next) << text;
            ASSERT_EQ(found.behind, expected.behind) << text;
            check(text, found, {});
        }
    }
    for (char32_t c = 0x80; c < 0x800; ++c) {
        std::string text;
        appendUtf8(text, c);
        EXPECT_EQ(isLetterAt(text, 0), isCommonLetter(c));
        if (!isCommonLetter(c)) continue;
        Cluster const cluster = clusterAt(text + "a", 0, false);
        EXPECT_TRUE(cluster.width == 1 && cluster.end == 2 && cluster.isPrintedAsIs);
        EXPECT_EQ(cluster.properties.lineClass, LineClass::AL) << static_cast<unsigned>(c);
    }
}

TEST(Segments, CoverWhateverBytesThereAre) {
    std::mt19937 random(1);
    std::vector<std::string> const pieces = {
        " ",      "\n",     "\r",     "\t",         "a",      "-",      "(",          "1",
        "\x01",   "\x7F",   "\xC3",   "\xE6",       "\xBC",   "\xF0",   "\xFF",       "\u00E9",
        "\u0301", "\u00AD", "\u200B", "\u200D",     "\u0600", "\u6F22", "\u3002",     "\u201C",
        "\uFE0F", "\uFE0E", "\u2028", "\u00A0",     "\u093F", "\u2764", "\U0001F600", "\U0001F1E9",
        "?",      "$",      "\u05D0", "\U0001F3FD",
    };
    for (int round = 0; round < 5000; ++round) {
        std::string text;
        for (std::size_t i = random() % 12; i > 0; --i) {
            text += random() % 8 == 0 ? std::string(1, static_cast<char>(random()))
                                      : pieces[random() % pieces.size()];
        }
        TextOptions options;
        options.whiteSpace = static_cast<WhiteSpace>(random() % 3);
        options.wordBreak = static_cast<WordBreak>(random() % 3);
        options.isAmbiguousWide = random() % 2 == 0;
        segmentsOf(text, options);
        if (HasFailure()) FAIL() << testing::PrintToString(text);
    }
}

}  // namespace
}  // namespace galley::web

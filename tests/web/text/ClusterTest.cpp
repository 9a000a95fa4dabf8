#include "web/text/Cluster.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <vector>

#include "web/text/utf8.h"

namespace galley::web {
namespace {

void append(std::string& out, char32_t c) {
    auto const tail = [&](unsigned shift) {
        out += static_cast<char>(0x80U | ((static_cast<unsigned>(c) >> shift) & 0x3FU));
    };
    if (c < 0x80) {
        out += static_cast<char>(c);
        return;
    }
    unsigned const length = c < 0x800 ? 2 : c < 0x10000 ? 3 : 4;
    out += static_cast<char>((0xF00U >> length) | (static_cast<unsigned>(c) >> 6 * (length - 1)));
    for (unsigned i = length - 1; i > 0; --i) tail(6 * (i - 1));
}

std::vector<Cluster> clustersOf(std::string_view text, bool isAmbiguousWide = false) {
    std::vector<Cluster> clusters;
    for (std::size_t i = 0; i < text.size(); i = clusters.back().end) {
        clusters.push_back(clusterAt(text, i, isAmbiguousWide));
        EXPECT_EQ(clusters.back().begin, i);
    }
    return clusters;
}

/// The width of each cluster, one digit each.
std::string widthsOf(std::string_view text, bool isAmbiguousWide = false) {
    std::string widths;
    for (Cluster const& cluster : clustersOf(text, isAmbiguousWide)) {
        widths += std::to_string(cluster.width);
    }
    return widths;
}

std::string printed(std::string_view text) {
    std::string out = "[";
    appendPrinted(out, text);
    return out + "]";
}

/// A file of Debian's package unicode-data, without comments.
std::vector<std::string> linesOf(std::string const& name) {
    std::ifstream file("/usr/share/unicode/" + name);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) {
        line = line.substr(0, line.find('#'));
        if (!line.empty()) lines.push_back(line);
    }
    return lines;
}

/// But for those about controls, which are printed as U+FFFD and count as such.
TEST(Clusters, EndWhereUnicodesOwnTestsSay) {
    std::vector<std::string> const lines = linesOf("auxiliary/GraphemeBreakTest.txt");
    if (lines.empty()) GTEST_SKIP() << "unicode-data is not installed";
    EXPECT_EQ(lines.size(), 602U);
    for (std::string const& line : lines) {
        if (line.find(" 0001 ") != std::string::npos) continue;
        // A blank belongs to no prefix.
        if (line.find("\u00D7 0020") != std::string::npos) continue;
        std::istringstream words(line);
        std::string text;
        std::vector<std::size_t> expected;
        for (std::string word; words >> word;) {
            if (word == "\u00F7") {
                if (!text.empty()) expected.push_back(text.size());
            } else if (word != "\u00D7") {
                append(text, static_cast<char32_t>(std::stoul(word, nullptr, 16)));
            }
        }
        std::vector<std::size_t> ends;
        for (Cluster const& cluster : clustersOf(text)) ends.push_back(cluster.end);
        EXPECT_EQ(ends, expected) << line;
    }
}

TEST(Clusters, AnEmojiIsOneOfTwoCells) {
    std::vector<std::string> const lines = linesOf("emoji/emoji-test.txt");
    if (lines.empty()) GTEST_SKIP() << "unicode-data is not installed";
    std::size_t narrow = 0;
    for (std::string const& line : lines) {
        std::istringstream words(line.substr(0, line.find(';')));
        std::string text;
        for (std::string word; words >> word;) {
            append(text, static_cast<char32_t>(std::stoul(word, nullptr, 16)));
        }
        // A text character that is an emoji only with U+FE0F has one cell without it.
        bool const mayBeNarrow = line.find("; unqualified") != std::string::npos;
        std::string const widths = widthsOf(text);
        EXPECT_TRUE(widths == "2" || (mayBeNarrow && widths == "1")) << line << widths;
        if (widths == "1") ++narrow;
    }
    EXPECT_GT(narrow, 100U);
}

TEST(Clusters, HaveTheWidthOfTheirBase) {
    struct {
        std::string text;
        std::string widths;
    } const cases[] = {
        {"a1~", "111"},
        {"\u00E9e\u0301", "11"},
        {"\u6F22\uFF21\uD55C\uFF71", "2221"},
        {"\u1112\u1161\u11AB", "2"},
        {"\uFF76\uFF9E", "2"},
        {"\U0001F600\U0001F1E9\U0001F1EA\U0001F1E9", "222"},
        {"\u2764\u2764\uFE0F\u2764\uFE0E", "121"},
        {"1\uFE0F\u20E31\u20E3x\uFE0F", "211"},
        {"\u2764\u0301\uFE0F", "1"},
        {"\u261D\U0001F3FD\U0001F3FD", "2"},
        {"\u0915\u093F\u0915\u0941", "21"},
        {"\u0E01\u0E33\u0E01\u0E34", "21"},
        {"\u3099\u304B\u3099", "02"},
        {"\u0600\u0031\u0600\u6F22", "12"},
        {"\x01\x7F\u0085\xFF\xC3", "11111"},
        {"\u00A0\u2007\u202F\u2003\u3000", "11112"},
        {"\u00AD\u200B\u2060\uFEFF\u061C\u200E\u200F\u202A\u202E\u2066\u2069", "00000000000"},
        {"\u200D", "0"},
        {"\u200C", "0"},
        {"\u0301\u0302", "0"},
        {"\x01\u0301x", "11"},
        {"\u06DD\x01\u06DD\u009B\u06DD\u2028", "1111"},
        {"\U000E0001\U000E0041", "00"},
        {"\u06DD \u0600  \u06DD\u00A0", "1111111"},
    };
    for (auto const& [text, widths] : cases) EXPECT_EQ(widthsOf(text), widths) << text;
}

TEST(Clusters, AreWideIfAmbiguousOnlyWhereThatIsAskedFor) {
    EXPECT_EQ(widthsOf("\u00B0\u2500\u03B1a\u00E9\xFF"), "111111");
    EXPECT_EQ(widthsOf("\u00B0\u2500\u03B1a\u00E9\xFF", true), "222122");
}

TEST(Clusters, ArePrintedWithoutWhatIsNotToBe) {
    struct {
        std::string text;
        std::string expected;
    } const cases[] = {
        {"plain", "[plain]"},
        {"e\u0301 \u6F22", "[e\u0301 \u6F22]"},
        {"a\x1B[31m\x7F\u009B\xC3z\t\r\n", "[a\uFFFD[31m\uFFFD\uFFFD\uFFFDz\uFFFD\uFFFD]"},
        {"\uFEFFa\u00ADb\u200Bc\u2060d\u202Ee", "[abcde]"},
        {"a\u00A0b\u202Fc\u2007d\u2028e", "[a b c d e]"},
        {"\u0301a\u200B\u0301b", "[ab]"},
        {"\u200Da\u200D", "[a\u200D]"},
        {"\U0001F600\uFE0E\u2764\uFE0E", "[\U0001F600\u2764\uFE0E]"},
        {"\U0001F468\u200D\U0001F469", "[\U0001F468\u200D\U0001F469]"},
        {"\u0600\xFF", "[\u0600\uFFFD]"},
        {"\u06DD\x01\u0301 \u06DD\u2029", "[\u06DD\uFFFD\u0301 \u06DD ]"},
    };
    for (auto const& [text, expected] : cases) {
        EXPECT_EQ(printed(text), expected);
        EXPECT_EQ(countCells(text), countCells(expected) - 2) << expected;
    }
}

}  // namespace
}  // namespace galley::web

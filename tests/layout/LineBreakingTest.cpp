#include <algorithm>
#include <string>
#include <tuple>

#include "tests/support/boxes.h"

namespace CLI::XML {
namespace {

std::string textOf(Box const& box) {
    std::string text = asText(box.node) != nullptr ? shown(asText(box.node)->text) : "";
    for (ZRLWPtr<Box> const& child : box.children) text += textOf(*child);
    return text;
}

/// The size of a paragraph laid out at a width, and the text of each of its lines.
std::string lines(char const* content, int width, char const* css = "") {
    Page page(String(String::formatted, "<p>%s</p>", content), css);
    page.layOut(width);
    Box const& p = page.find("p");
    std::string result = rectangle(p.dimensions.content).substr(4);
    for (ZRLWPtr<Box> const& line : p.children) result += "|" + textOf(*line);
    return result;
}

using LineCase = std::tuple<char const*, int, char const*>;

void expectLines(std::initializer_list<LineCase> cases) {
    for (auto const& [content, width, expected] : cases) {
        EXPECT_EQ(lines(content, width), expected) << content << " at " << width;
    }
}

TEST(LineBreaking, FillsALineWithTheWordsThatFit) {
    expectLines({{"The quick brown fox", 10, "10x2|The quick |brown fox"},
                 {"The quick brown fox", 9, "9x3|The |quick |brown fox"},
                 {"The quick brown fox", 19, "19x1|The quick brown fox"},
                 {"The quick brown fox", 18, "16x2|The quick brown |fox"},
                 {"a<b/>b", 1, "1x2|a|b"}});
}

TEST(LineBreaking, AWordWiderThanTheLineStaysAloneOnIt) {
    expectLines({LineCase("abcdef", 3, "6x1|abcdef"), LineCase("abcdef gh", 3, "7x2|abcdef |gh"),
                 LineCase("ab abcdef gh", 3, "7x3|ab |abcdef |gh"), LineCase("a b", 2, "2x2|a |b"),
                 LineCase("a b", 1, "2x2|a |b"), LineCase("a b", 0, "2x2|a |b"),
                 LineCase("a b", -5, "2x2|a |b")});
}

TEST(LineBreaking, BreaksWithinInlineElements) {
    expectLines({{"<b>abcdef gh</b>x", 3, "7x2|abcdef |ghx"},
                 {"<b>abc</b>gh", 3, "3x2|abc|gh"},
                 {"<b><i>aa bb</i></b>cc", 3, "3x3|aa |bb|cc"},
                 {"a<b>bc d</b>", 2, "3x3|a|bc |d"}});
    Page page("<p>aa <b>bb cc </b>dd</p>");
    page.layOut(6);
    EXPECT_EQ(places(*page.box),
              "html 0,0 6x2[p 0,0 6x2[line 0,0 6x1['aa ' b 3,0 3x1['bb ']] "
              "line 0,1 5x1[b 0,0 3x1['cc '] 'dd' 3,0 2x1]]]");
    Box const& p = page.find("p");
    EXPECT_EQ(p.children[0]->children[1]->node, p.children[1]->children[0]->node);
}

TEST(LineBreaking, CountsTheContentWidthsOfALineOnly) {
    EXPECT_EQ(lines("<b>aa</b>bb", 4, "b{padding:3;}"), "10x7|aabb");
    EXPECT_EQ(lines("<b>aa</b>bb", 3, "b{padding:3;}"), "8x8|aa|bb");
    EXPECT_EQ(lines("<b>abc</b>de", 3, "b{margin-right:-2;}"), "3x1|abcde");
    EXPECT_EQ(lines("<b>aa bb</b>", 4, "b{border-width:1;}"), "5x6|aa |bb");
    EXPECT_EQ(lines("ab cd", 8, "p{padding:1; border-width:1;}"), "3x2|ab |cd");
    EXPECT_EQ(lines("ab cd", 9, "p{padding:1; border-width:1;}"), "5x1|ab cd");
}

TEST(LineBreaking, IsGreedyAtEveryWidth) {
    std::string const words[] = {"a ", "bcd ", "ef ", "ghijkl ", "m ", "n ", "opq ", "rstuv"};
    for (int width = 0; width <= 30; ++width) {
        std::string expected;
        int used = 0;
        for (std::string const& word : words) {
            int const length = static_cast<int>(word.length());
            bool const fits = used > 0 && used + length <= width;
            expected += (fits ? "" : "|") + word;
            used = fits ? used + length : length;
        }
        std::string const result = lines("a bcd ef ghijkl m n opq rstuv", width);
        EXPECT_EQ(result.substr(result.find('|')), expected) << width;
    }
}

TEST(LineBreaking, SplitsAnInlineElementByItself) {
    Page page("<b>aa bb <i>cc dd</i></b>");
    Box& element = page.find("b");
    page.layOut(80);
    ZRLWPtr<Box> const rest = element.split(9);
    EXPECT_EQ(shape(element), "inline b['aa ' 'bb ' inline i['cc ']]");
    EXPECT_EQ(shape(*rest), "inline b[inline i['dd']]");
    EXPECT_FALSE(rest->split(2));
}

TEST(LineBreaking, GivesWhatIsBrokenOffNoSizeBeforeItsLayout) {
    Page page("<b>bb cc dd</b> ee");
    page.layOut(80);
    for (Box* const box : {&page.find("b"), page.box->children[0].object}) {
        ZRLWPtr<Box> const rest = box->split(3);
        EXPECT_EQ(rectangle(rest->dimensions.content), "0,0 0x0") << shape(*rest);
    }
}

TEST(LineBreaking, KeepsTheRoomForBoxes) {
    Page page("<p>aa bb cc</p>");
    page.find("p").children.enlarge(20);
    page.layOut(3);
    EXPECT_EQ(page.find("p").children.count, 3U);
    EXPECT_EQ(page.find("p").children.capacity, 22U);
}

TEST(LineBreaking, NeverSplitsBlocksAndTables) {
    Page const page("<div/><table/>");
    EXPECT_FALSE(page.find("div").split(-1) || page.find("table").split(-1));
}

}  // namespace
}  // namespace CLI::XML

#include <climits>
#include <tuple>

#include "tests/support/boxes.h"

namespace CLI::XML {
namespace {

/// Left, right, top, bottom.
std::string sides(EdgeSizes const& e) {
    return String(String::formatted, "%d %d %d %d", e.left, e.right, e.top, e.bottom).c_str();
}

std::string edgesOf(Dimensions const& d) {
    return "m " + sides(d.margin) + ", b " + sides(d.border) + ", p " + sides(d.padding);
}

TEST(Edges, TakeASidesOwnPropertyBeforeTheShorthand) {
    for (auto const& [css, expected] :
         {Row("", "m 0 0 0 0, b 0 0 0 0, p 0 0 0 0"),
          Row("margin:1; border-width:2; padding:3;", "m 1 1 1 1, b 2 2 2 2, p 3 3 3 3"),
          Row("padding:1; padding-left:3;", "m 0 0 0 0, b 0 0 0 0, p 3 1 1 1"),
          Row("margin-bottom:-1; margin:2px;", "m 2 2 2 -1, b 0 0 0 0, p 0 0 0 0"),
          Row("margin-left:x; margin:2;", "m 0 2 2 2, b 0 0 0 0, p 0 0 0 0"),
          Row("margin-left:1; margin-right:2; margin-top:3; margin-bottom:4; border-left-width:5;"
              "border-right-width:6; border-top-width:7; border-bottom-width:8; padding-left:9;"
              "padding-right:10; padding-top:11; padding-bottom:12;"
              "margin:99; border-width:99; padding:99;",
              "m 1 2 3 4, b 5 6 7 8, p 9 10 11 12")}) {
        Page const page("<p>word</p>", String(String::formatted, "p{%s}", css.c_str()).c_str());
        Box const& box = page.find("p");
        EXPECT_EQ(edgesOf(box.dimensions), expected);
        EXPECT_EQ(edgesOf(box.children[0]->children[0]->dimensions), edgesOf(Dimensions()));
    }
}

TEST(Edges, AddUpAroundTheContent) {
    constexpr EdgeSizes ones{1, 1, 1, 1};
    constexpr EdgeSizes limit{INT_MAX, INT_MAX, INT_MAX, INT_MAX};
    using Case = std::tuple<Dimensions, char const*, char const*, char const*>;
    for (auto const& [d, edges, borderBox, marginBox] :
         {Case({{2, 3, 10, 1}, ones, ones, {}}, "2 2 2 2", "0,1 14x5", "0,1 14x5"),
          Case({{2, 3, 10, 1}, ones, ones, {2, 2, 2, 2}}, "4 4 4 4", "0,1 14x5", "-2,-1 18x9"),
          Case({{}, {1, 2, 0, 0}, ones, {0, 0, 3, 1}}, "2 3 4 2", "-2,-1 5x2", "-2,-4 5x6"),
          Case({{5, 0, 4, 1}, {}, {}, {-1, 0, 0, -2}}, "-1 0 0 -2", "5,0 4x1", "6,0 3x-1"),
          Case({{0, 0, 1, 1}, limit, limit, limit}, "2147483647 2147483647 2147483647 2147483647",
               "-2147483648,-2147483648 2147483647x2147483647",
               "-2147483648,-2147483648 2147483647x2147483647")}) {
        EXPECT_EQ(sides(d.edges()), edges);
        EXPECT_EQ(rectangle(d.borderBox()), borderBox);
        EXPECT_EQ(rectangle(d.marginBox()), marginBox);
    }
}

TEST(BoxStyle, PrefersTheOwnPropertyWhereverItStands) {
    Page const page("<p margin=\"2\" color=\"red\" x=\"\">word</p><b/>",
                    "p{margin-left:5; margin:9; color:blue; padding:7;}");
    Box& box = page.find("p");
    EXPECT_EQ(box.getStyleInt2("margin-left", "margin", 1), 5);
    EXPECT_EQ(box.getStyleInt2("margin-right", "margin", 1), 2);
    EXPECT_EQ(box.getStyleInt2("color", "margin", 1), 0);
    EXPECT_EQ(box.getStyle("color", "none"), "red");
    EXPECT_EQ(box.getStyle("padding", "none"), "7");
    EXPECT_EQ(box.getStyle("x", "none"), "");
    EXPECT_EQ(box.getStyle2("x", "color", "none"), "");
    EXPECT_EQ(box.getStyle2("y", "color", "none"), "red");
    Box& line = *box.children[0];
    for (Box const* const plain : {&line, &*line.children[0], &page.find("b"), &*page.box}) {
        EXPECT_EQ(plain->getStyle("color", "none"), "none");
        EXPECT_EQ(plain->getStyle2("x", "color", "none"), "none");
        EXPECT_EQ(plain->getStyleInt2("margin-left", "margin", 3), 3);
    }
}

}  // namespace
}  // namespace CLI::XML

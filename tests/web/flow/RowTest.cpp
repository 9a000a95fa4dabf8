#include "web/flow/Row.h"

#include <gtest/gtest.h>

namespace galley::web {
namespace {

Row rowOf(std::string_view text, int columns, bool isBold = false) {
    Row row;
    Look look;
    look.isBold = isBold;
    row.add(text, columns, look);
    return row;
}

TEST(Rows, AreDrawnOver) {
    struct Case {
        Row below;
        int column;
        Row above;
        char const* text;
        int width;
    };
    Case const cases[] = {
        {rowOf("abcdef", 6), 2, rowOf("XY", 2), "abXYef", 6},
        {rowOf("abcdef", 6), 0, rowOf("XY", 2), "XYcdef", 6},
        {rowOf("abcdef", 6), 5, rowOf("XY", 2), "abcdeXY", 7},
        {rowOf("ab", 2), 2, rowOf("XY", 2), "abXY", 4},
        {rowOf("ab", 2), 4, rowOf("XY", 2), "ab  XY", 6},
        {rowOf("ab", 2), 4, Row(), "ab", 2},
        {Row(), 1, rowOf("X", 1), " X", 2},
        // Halves of wide characters.
        {rowOf("日本語", 6), 1, rowOf("XY", 2), " XY 語", 6},
        {rowOf("日本語", 6), 2, rowOf("XY", 2), "日XY語", 6},
        {rowOf("日本語", 6), 3, rowOf("X", 1), "日 X語", 6},
        {rowOf("abcd", 4), 1, rowOf("日", 2), "a日d", 4},
        // A mark goes with its base.
        {rowOf("ae\u0301b", 3), 2, rowOf("X", 1), "ae\u0301X", 3},
    };
    for (Case const& each : cases) {
        Row row = each.below;
        row.draw(each.column, each.above.view(), {});
        EXPECT_EQ(row.text(), each.text);
        EXPECT_EQ(row.width(), each.width) << each.text;
    }
}

// Text lies over borders, and backgrounds under what they come behind.
TEST(Rows, AreDrawnOverByBackgroundsAndBorders) {
    Colour const red = Colour::rgb(255, 0, 0);
    Row row;
    row.add("a│ b", 4, {});
    Row above;
    above.add("   ┐", 4, blankOn(red));
    Row kept = row;
    row.draw(0, above.view(), {});
    EXPECT_EQ(row.text(), "a  b");
    ASSERT_EQ(row.spans().size(), 2U);
    EXPECT_EQ(row.textOf(row.spans()[0]), "a  ");
    EXPECT_EQ(row.spans()[0].look.background, red);
    kept.draw(0, above.view(), {.ground = {}, .beyond = {}, .keepsBorders = true});
    EXPECT_EQ(kept.text(), "a│ b");
    EXPECT_EQ(kept.spans()[0].look.background, red);
}

TEST(Rows, StandOnAnotherBackgroundWhereTheyHaveNone) {
    Row above;
    above.add("a", 1, blankOn(Colour::transparent()));
    above.add("b", 1, blankOn(Colour::rgb(0, 0, 255)));
    Row row;
    row.add(above.view(), Colour::transparent(), Colour::rgb(255, 0, 0));
    row.draw(3, above.view(), {.ground = Colour::transparent(), .beyond = {}});
    std::vector<Colour> backgrounds;
    for (Row::Span const& span : row.spans()) backgrounds.push_back(span.look.background);
    EXPECT_EQ(row.text(), "ab ab");
    EXPECT_EQ(backgrounds,
              (std::vector<Colour>{
                  Colour::rgb(255, 0, 0), Colour::rgb(0, 0, 255), {}, Colour::rgb(0, 0, 255)}));
}

TEST(Rows, KeepTheirLooksUnderOthers) {
    Row row = rowOf("ab", 2);
    row.add(rowOf("cd", 2, true).view());
    row.draw(1, rowOf("X", 1, true).view(), {});
    ASSERT_EQ(row.spans().size(), 2U);
    EXPECT_EQ(row.textOf(row.spans()[0]), "a");
    EXPECT_EQ(row.textOf(row.spans()[1]), "Xcd");
    EXPECT_TRUE(row.spans()[1].look.isBold);
}

}  // namespace
}  // namespace galley::web

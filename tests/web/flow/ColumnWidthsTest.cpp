// How columns of tables share a width. The figures are Chromium's, of cells as if none had parts.

#include "web/flow/columnWidths.h"

#include <gtest/gtest.h>

#include "web/flow/lengths.h"

namespace galley::web {
namespace {

using Columns = std::vector<ColumnNeed>;

ColumnNeed wish(int least, int most) { return {.least = least, .most = most}; }
ColumnNeed fixed(int least, int width) { return {.least = least, .most = width, .isFixed = true}; }
ColumnNeed percent(int least, int most, int share) {
    return {.least = least, .most = most, .isPercent = true, .percent = share * 1'000'000};
}

struct ShareCase {
    char const* name;
    Columns columns;
    int width;
    std::vector<std::int64_t> widths;
};

TEST(ColumnWidths, HaveTheirLeastFirstAndShareTheRest) {
    ShareCase const cases[] = {
        {"none", {}, 10, {}},
        {"less than the least", {wish(4, 9), wish(3, 3)}, 5, {4, 3}},
        {"between least and most", {wish(2, 11), wish(2, 35)}, 20, {6, 14}},
        {"what they would like", {wish(2, 5), wish(2, 7)}, 12, {5, 7}},
        {"surplus by wishes", {wish(4, 4), wish(8, 8)}, 40, {14, 26}},
        {"surplus of empty ones", {wish(0, 0), wish(0, 0), wish(0, 0)}, 8, {3, 3, 2}},
        {"nothing for an empty one", {wish(0, 0), wish(3, 3)}, 10, {0, 10}},
        {"fixed beside others", {fixed(1, 10), wish(8, 8), wish(1, 1)}, 40, {10, 27, 3}},
        {"all fixed", {fixed(1, 10), fixed(1, 5)}, 40, {27, 13}},
        {"short of fixed widths", {fixed(1, 16), fixed(1, 16)}, 20, {10, 10}},
        {"fixed before wishes", {fixed(1, 16), wish(1, 9)}, 20, {16, 4}},
        {"least before fixed", {fixed(1, 10), wish(8, 8)}, 10, {2, 8}},
        {"all per cent", {percent(1, 1, 25), percent(1, 1, 50)}, 40, {14, 26}},
        {"per cent of what is left", {percent(13, 20, 12), percent(9, 20, 12)}, 48, {26, 22}},
        {"per cent and fixed", {percent(1, 1, 25), fixed(1, 10)}, 40, {10, 30}},
        {"of each", {percent(1, 1, 25), fixed(1, 10), wish(1, 1)}, 40, {10, 10, 20}},
        {"per cent before wishes", {percent(4, 4, 80), wish(12, 12)}, 40, {28, 12}},
    };
    for (ShareCase const& each : cases) {
        EXPECT_EQ(shareWidth(each.columns, each.width), each.widths) << each.name;
    }
}

TEST(ColumnWidths, AreSharedCellByCell) {
    Columns const columns = {percent(2, 9, 30), fixed(1, 7), wish(3, 8), wish(0, 0)};
    for (int width = 6; width <= 200; ++width) {
        std::vector<std::int64_t> const widths = shareWidth(columns, width);
        std::int64_t sum = 0;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            EXPECT_GE(widths[i], columns[i].least) << width;
            sum += widths[i];
        }
        EXPECT_EQ(sum, width);
    }
}

TEST(ColumnWidths, AskForWhatMakesPercentagesTrue) {
    struct Case {
        Columns columns;
        std::int64_t width;
    };
    Case const cases[] = {
        {{wish(2, 5), fixed(3, 4)}, 0},
        {{percent(4, 4, 25), wish(8, 8), wish(1, 1)}, 16},
        {{percent(4, 4, 80), wish(12, 12)}, 60},
        {{percent(4, 4, 100)}, 4},
        {{percent(4, 4, 100), percent(1, 1, 0)}, 1'000'000 * s_parts},
        {{{.most = 8, .isPercent = true, .percent = 17'391'304},
          {.most = 13, .isPercent = true, .percent = 28'260'870}},
         46},
        {{percent(4, 4, 100), wish(1, 1)}, 1'000'000 * s_parts},
    };
    for (Case const& each : cases) EXPECT_EQ(widthOfPercentages(each.columns), each.width);
}

TEST(ColumnWidths, DoNotPassAHundredPerCent) {
    Columns columns = {percent(1, 1, 80), percent(1, 1, 40), percent(1, 1, 5)};
    limitPercentages(columns);
    EXPECT_EQ(columns, (Columns{percent(1, 1, 80), percent(1, 1, 20), percent(1, 1, 0)}));
}

TEST(ColumnWidths, GrowWithCellsOverSeveral) {
    struct Case {
        char const* name;
        Columns columns;
        ColumnNeed cell;
        Columns grown;
    };
    Case const cases[] = {
        {"by wishes", {wish(4, 4), wish(2, 2)}, wish(17, 17), {wish(12, 12), wish(5, 5)}},
        {"empty ones", {wish(0, 0), wish(0, 0)}, wish(5, 5), {wish(3, 3), wish(2, 2)}},
        {"fixed ones last",
         {fixed(1, 10), wish(4, 4)},
         wish(20, 20),
         {fixed(10, 10), wish(10, 10)}},
        {"enough", {wish(4, 6), wish(2, 2)}, wish(5, 8), {wish(4, 6), wish(2, 2)}},
        {"per cent",
         {wish(4, 4), wish(4, 4)},
         percent(1, 1, 50),
         {percent(4, 4, 25), percent(4, 4, 25)}},
        {"per cent, and none for an empty one",
         {wish(4, 4), wish(0, 0)},
         percent(1, 1, 50),
         {percent(4, 4, 50), percent(0, 0, 0)}},
        {"per cent left",
         {percent(1, 1, 25), wish(1, 1)},
         percent(1, 1, 50),
         {percent(1, 1, 25), percent(1, 1, 25)}},
    };
    for (Case const& each : cases) {
        Columns columns = each.columns;
        widen(columns, each.cell);
        EXPECT_EQ(columns, each.grown) << each.name;
    }
}

TEST(ColumnWidths, AreFixedByOneCell) {
    ColumnNeed column = wish(2, 9);
    widen(column, fixed(1, 5));
    EXPECT_EQ(column, fixed(2, 5));
    widen(column, wish(6, 20));
    EXPECT_EQ(column, fixed(6, 6));
}

}  // namespace
}  // namespace galley::web

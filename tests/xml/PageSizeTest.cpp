// How much page a document may ask for.

#include "tests/support/document.h"
#include "xml/render/Grid.h"
#include "xml/xml.h"

namespace CLI::XML {
namespace {

TEST(CellBudget, GrowsWithTheDocumentWithinLimits) {
    EXPECT_EQ(CellBudget::ofDocument(0), 67108864U);
    EXPECT_EQ(CellBudget::ofDocument(671088), 67108864U);
    EXPECT_EQ(CellBudget::ofDocument(671089), 67108900U);
    EXPECT_EQ(CellBudget::ofDocument(42949672), 4294967200U);
    EXPECT_EQ(CellBudget::ofDocument(42949673), 4294967295U);
}

/// Draws on a grid whose budget has `cells` left, and once more with one cell less.
template <class Draw>
void expectCost(unsigned cells, Draw const& draw) {
    for (bool const isEnough : {true, false}) {
        CellBudget budget(1000);
        budget.pay(isEnough ? 1000 - cells : 1001 - cells);
        Grid grid(budget);
        draw(grid);
        EXPECT_EQ(budget.isExceeded(), !isEnough) << cells;
    }
}

TEST(CellBudget, CountsRowsFillersAndDrawnCells) {
    auto const text = [](std::string_view drawn, int x, int y) {
        return [=](Grid& grid) { grid.draw(drawn, x, y, {}); };
    };
    expectCost(1 + 2, text("ab", 0, 0));
    expectCost(1 + 5 + 2, text("ab", 5, 0));
    expectCost(1 + 1, text("ab", -1, 0));
    expectCost(4 + 2, text("ab", 0, 3));
    expectCost(4, text({"\0a", 2}, 9, 3));
    expectCost(1 + 3 + 2, [](Grid& grid) {
        grid.draw("abc", 0, 0, {});
        grid.draw("xy", 1, 0, {});
    });
    expectCost(6 + 3 * 4, [](Grid& grid) { grid.draw("ab", 2, 0, 3, 3, {}); });
    // Row 1 is filled up to both, row 2 up to the frame; then row 0 is there.
    expectCost(3 + 2 * 2 + 1 + 1 + 1, [](Grid& grid) {
        grid.enter(2, 1);
        grid.draw("a", 1, 1, {});
        grid.leave();
        grid.draw("b", 0, 0, {});
    });
    // What a frame around clips away costs no more than its row.
    for (int const x : {0, 1}) {
        expectCost(1 + 1, [x](Grid& grid) {
            grid.enter(1, 0);
            grid.enter(-3, 0);
            grid.draw("ab", x, 0, {});
        });
    }
    // What frames around fill counts for each, as do a row of extents, and a look at others.
    expectCost((1 + 6) + (1 + 2) + 1 + 1 + 1, [](Grid& grid) {
        grid.draw("abcdef", 0, 0, {});
        grid.enter(1, 0);
        grid.enter(2, 0);
        grid.draw("X", 1, 0, {});
    });
}

TEST(CellBudget, CountsWhatLiesBeneathAFrame) {
    // Each row is looked at, and costs at least a cell where something is drawn beneath. A place
    // that is taken has extents of its own.
    expectCost((3 + 3) + 3 + 3, [](Grid& grid) {
        grid.draw("ab", 0, 0, {});
        grid.enter(0, 0);
        grid.draw("c", 0, 2, {});
        grid.leaveAndCover();
        grid.uncover();
    });
    expectCost((2 + 4) + 2 + 2 * 3, [](Grid& grid) {
        grid.enter(0, 0);
        grid.draw("a", 2, 0, 0, 2, {});
        grid.leaveAndCover();
        grid.draw(".", 5, 0, 0, 2, {});
    });
    expectCost((2 + 4) + 2 + 2 * 1, [](Grid& grid) {
        grid.enter(0, 0);
        grid.draw("a", 2, 0, 0, 2, {});
        grid.leaveAndCover();
        grid.draw(".", 2, 0, 0, 2, {});
    });
    expectCost((1 + 2) + 1 + (2 + 3 * 4 - 1), [](Grid& grid) {
        grid.enter(1, 0);
        grid.draw("a", 0, 0, {});
        grid.leaveAndCover();
        grid.draw(".", 4, 0, 0, 3, {});
    });
}

TEST(CellBudget, CountsEscapeText) {
    expectCost(1 + 1 + 12, [](Grid& grid) {
        String page;
        grid.draw("a", 0, 0, {.flags = Canvas::Attributes::Bold});
        grid.moveRowsTo(page);
    });
    expectCost(2 + 4 + (9 + 9 + 4) + (9 + 4), [](Grid& grid) {
        String page;
        grid.draw("a", 0, 0, {.foreground = 1});
        grid.draw("ab", 1, 0, {.foreground = 2});
        grid.draw("a", 0, 1, {.foreground = 1});
        grid.moveRowsTo(page);
    });
}

std::string textOf(Grid& grid) {
    String page;
    grid.moveRowsTo(page);
    return shown(page);
}

TEST(CellBudget, HasNoMoreRowsThanItsCellsCouldHold) {
    struct Case {
        int row;
        int height;
        bool isEnough;
        char const* page;
    };
    static constexpr Case s_cases[] = {
        {3, 1, true, "$\n$\n$\na$\n"},   {4, 1, false, ""},
        {2147483647, 1, false, ""},      {0, 4, true, "a$\na$\na$\na$\n"},
        {2, 9, false, "$\n$\na$\na$\n"}, {0, 65, false, "a$\na$\na$\na$\n"},
    };
    for (auto const& [row, height, isEnough, page] : s_cases) {
        CellBudget budget(64);
        Grid grid(budget);
        grid.draw("a", 1, 0, row, height, {});
        EXPECT_EQ(budget.isExceeded(), !isEnough) << row;
        EXPECT_EQ(textOf(grid), page) << row;
    }
    // However many have been moved away.
    CellBudget budget(3200);
    Grid grid(budget);
    for (int i = 0; i < 200; ++i) {
        String page;
        grid.draw("a", 0, i, {});
        grid.moveRowsTo(page);
    }
    EXPECT_FALSE(budget.isExceeded());
    grid.draw("a", 0, 200, {});
    EXPECT_TRUE(budget.isExceeded());
}

TEST(CellBudget, WhatItDoesNotHaveEndsAllDrawing) {
    CellBudget budget(20);
    Grid grid(budget);
    grid.draw("abc", 0, 0, {});
    grid.draw("d", 20, 0, {.flags = Canvas::Attributes::Bold});
    EXPECT_TRUE(budget.isExceeded());
    grid.draw("e", 0, 0, {});
    grid.enter(0, 0);
    grid.draw("f", 3, 0, {});
    grid.leaveAndCover();
    grid.draw(".", 9, 0, 0, 1, {});
    EXPECT_EQ(textOf(grid), "abc$\n");
}

constexpr char const* s_tooLarge = "Page too large: more than 67108864 cells";

std::string resultOf(String const& markup, unsigned width, char const* css) {
    String out("before");
    std::string const result = outcome(xmlToText(out, markup, Sheet(css).rules, width));
    EXPECT_TRUE(result == "ok" || out == "before");
    return result;
}

TEST(LargePages, AreRefusedBeforeTheyAreMade) {
    constexpr char const* s_shapes[] = {
        R"(<div padding="2000000000" background-color="red">x</div>)",
        R"(<div margin-left="2000000000">x</div>)",
        R"(<b margin-left="2000000000">x</b>)",
        R"(<div margin-top="2000000000">x</div>)",
        R"(<div padding-left="9000" padding-top="9000" background-color="red">x</div>)",
        R"(<div border-left-width="1" padding-top="2000000000"/>)",
        R"(<div border-right-width="1" padding-top="2000000000"/>)",
        R"(<div border-top-width="1" padding-left="2000000000"/>)",
        R"(<div border-bottom-width="1" padding-left="2000000000"/>)",
        R"(<div border-width="1" border-corner-style="+" margin-top="2147483647"/>)",
    };
    for (char const* const shape : s_shapes) {
        String inCell = String("<table><tr><td>").concat(shape, static_cast<int>(strlen(shape)));
        inCell += "</td></tr></table>";
        String inBlock =
            String("<p border-width=\"1\">").concat(shape, static_cast<int>(strlen(shape)));
        inBlock += "</p>";
        for (String const& markup : {String(shape), inCell, inBlock}) {
            EXPECT_EQ(resultOf(markup, 80, ""), s_tooLarge) << shown(markup);
        }
    }
    // By whole trees.
    EXPECT_EQ(resultOf("<b margin-left=\"-1\" padding-top=\"2147483637\">b</b>", 80, ""),
              s_tooLarge);
    EXPECT_EQ(resultOf("<div padding-top=\"2147483637\" margin-left=\"-1\">b</div>", 80, ""),
              s_tooLarge);
    EXPECT_EQ(
        resultOf("<p>x</p>", 80, "p { border-top-width: 9; padding-left: 70; border-style: o; } "),
        "ok");
    String const wideBorder =
        String("<p border-top-width=\"1\" padding-left=\"200\" border-style=\"") +=
        String::repeat("x", 1000000);
    EXPECT_EQ(resultOf(String(wideBorder) += "\"/>", 80, ""),
              "Page too large: more than 100006000 cells");
}

TEST(LargePages, FailBehindEveryOtherFailure) {
    for (char const* const shape : {R"(<p margin-left="2000000000">x</p>)",
                                    R"(<p margin-right="-1" margin-left="2000000000">x</p>)"}) {
        String const large(shape);
        EXPECT_EQ(resultOf(large, 80, ""), s_tooLarge);
        EXPECT_EQ(resultOf(String(large) += "<p>", 80, ""), "Line 1: Missing end tag at the end");
        EXPECT_EQ(resultOf(String(large) += "<table>a</table>", 80, ""),
                  "Cannot layout 'text' within 'table'");
        EXPECT_EQ(resultOf(String(large) += "<table>a</table><q/>", 80, ""), "Invalid tag: <q>");
    }
}

TEST(LargePages, AreDrawnUpToTheLimit) {
    // A row, its fillers and its cell.
    String out;
    EXPECT_TRUE(xmlToText(out, "<p margin-left=\"67108862\">x</p>", Sheet("").rules, 80));
    EXPECT_EQ(out.length(), 67108864);
    EXPECT_EQ(resultOf("<p margin-left=\"67108863\">x</p>", 80, ""), s_tooLarge);
    // Two rows, for each of which the way is filled, and "x " and "y".
    EXPECT_EQ(resultOf("<p margin-left=\"33554429\">x y</p>", 33554430, ""), "ok");
    EXPECT_EQ(resultOf("<p margin-left=\"33554430\">x y</p>", 33554431, ""), s_tooLarge);
    // Rows, even if there is nothing in them.
    EXPECT_EQ(resultOf("<p margin-top=\"4194303\">x</p>", 80, ""), "ok");
    EXPECT_EQ(resultOf("<p margin-top=\"4194304\">x</p>", 80, ""), s_tooLarge);
}

}  // namespace
}  // namespace CLI::XML

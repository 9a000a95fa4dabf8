// How much page a document may ask for.

#include "tests/support/paint.h"
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

/// Draws onto a canvas whose budget is `cells`, and once more with one cell less.
template <class Draw>
void expectCost(unsigned cells, Draw const& draw) {
    CellBudget enough(cells);
    Canvas canvas(&enough);
    EXPECT_TRUE(draw(canvas)) << cells;
    EXPECT_EQ(enough.remaining(), 0U) << cells;
    EXPECT_FALSE(enough.isExceeded()) << cells;

    CellBudget tooSmall(cells - 1);
    Canvas other(&tooSmall);
    EXPECT_FALSE(draw(other)) << cells;
    EXPECT_TRUE(tooSmall.isExceeded()) << cells;
    EXPECT_FALSE(other.drawClipped("x", 0, 0, {}));
}

TEST(CellBudget, CountsRowsFillersAndDrawnCells) {
    auto const text = [](char const* drawn, int x, int y) {
        return [=](Canvas& canvas) { return canvas.drawClipped(drawn, x, y, {}); };
    };
    expectCost(1 + 2, text("ab", 0, 0));
    expectCost(1 + 5 + 2, text("ab", 5, 0));
    expectCost(1 + 1, text("ab", -1, 0));
    expectCost(4 + 2, text("ab", 0, 3));
    expectCost(4, [](Canvas& canvas) { return canvas.drawClipped({"\0a", 2}, 9, 3, {}); });
    expectCost(1 + 3 + 2, [](Canvas& canvas) {
        return canvas.drawClipped("abc", 0, 0, {}) && canvas.drawClipped("xy", 1, 0, {});
    });
    expectCost(3 + 2 + 1 + 1, [](Canvas& canvas) {
        canvas.enter(1, 1);
        bool const isDrawn = canvas.drawClipped("a", 0, 1, {}) && canvas.drawClipped("b", 0, 0, {});
        canvas.leave();
        return isDrawn;
    });
    // The last row is there already, and shorter than where the new origin begins.
    expectCost((1 + 1) + 2 + 1, [](Canvas& canvas) {
        canvas.drawClipped("a", 0, 0, {});
        return canvas.enter(3, 0) && canvas.drawClipped("b", 0, 0, {});
    });
    expectCost((1 + 3) + (6 + 2), [](Canvas& canvas) {
        Canvas source(canvas.cellBudget());
        source.drawClipped("abc", 0, 0, {});
        return canvas.drawClipped(source, 2, 5) && canvas.drawClipped(source, 0, 0);
    });
    expectCost(1 + 1 + 12, [](Canvas& canvas) {
        String page;
        canvas.drawClipped("a", 0, 0, {.flags = Canvas::Attributes::Bold});
        canvas.moveRowsTo(page, 1);
        return !canvas.cellBudget()->isExceeded();
    });
}

TEST(CellBudget, WhatItDoesNotHaveChangesNothing) {
    CellBudget budget(20);
    Canvas canvas(&budget);
    canvas.drawClipped("abc", 0, 0, {});
    EXPECT_FALSE(canvas.drawClipped("d", 20, 0, {.flags = Canvas::Attributes::Bold}));
    EXPECT_FALSE(canvas.drawClipped("d", 0, 2147483647, {}));
    EXPECT_FALSE(canvas.mayDraw(1));
    EXPECT_EQ(canvas.dump("\n"), "abc\n");
    EXPECT_EQ(canvas.attributeTable.count, 1U);

    CellBudget other(20);
    Canvas const asked(&other);
    EXPECT_TRUE(asked.mayDraw(20));
    EXPECT_TRUE(asked.mayDraw(-1));
    EXPECT_FALSE(asked.mayDraw(std::int64_t{1} << 40));
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
    // A canvas of its own is composed far down.
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
}

}  // namespace
}  // namespace CLI::XML

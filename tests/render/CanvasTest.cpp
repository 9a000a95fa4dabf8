#include "xml/render/Canvas.h"

#include <climits>
#include <tuple>

#include "tests/support/text.h"

namespace CLI::XML {
namespace {

using Attributes = Canvas::Attributes;

constexpr Attributes s_plain;
constexpr Attributes s_red{0, 1, Attributes::NoColor};
constexpr Attributes s_blue{0, 4, Attributes::NoColor};
constexpr unsigned s_append = Canvas::AppendPosition;

std::string textOf(Canvas const& canvas) { return shown(canvas.dump("\n")); }

TEST(Canvas, PlacesTextAndFillsTheWayToIt) {
    Canvas canvas;
    EXPECT_EQ(textOf(canvas), "");
    EXPECT_TRUE(canvas.draw("ab", 3, 1, s_plain));
    EXPECT_EQ(textOf(canvas), "$\n   ab$\n");
    EXPECT_EQ(canvas.dump("|"), "|   ab|");
    EXPECT_FALSE(canvas.draw("", 9, 9, s_red));
    EXPECT_EQ(canvas.rows.count + canvas.attributeTable.count, 3U);
}

TEST(Canvas, OverwritesCellsAndSwitchesAttributesBetweenThem) {
    Canvas canvas;
    canvas.draw("xyz", 0, 0, s_red);
    canvas.draw("Q", 1, 0, s_plain);
    EXPECT_EQ(textOf(canvas), "^[[0m^[[31mx^[[0mQ^[[0m^[[31mz^[[0m$\n");
    canvas.draw("  ", 0, 0, s_blue);
    canvas.draw("!", 4, 0, s_blue);
    EXPECT_EQ(textOf(canvas), "^[[0m^[[34m  ^[[0m^[[31mz^[[0m ^[[0m^[[34m!^[[0m$\n");
}

TEST(Canvas, ShowsEachCellOfALongRowWhereverItDiffers) {
    std::string const row = "0123456789abcdefghijklmnopqrstuvwxyz!";
    for (unsigned i = 0; i < row.length(); ++i) {
        std::string const before = row.substr(0, i);
        std::string const behind = row.substr(i + 1);
        Canvas canvas;
        canvas.draw(row.c_str(), 0, 0, s_plain);
        canvas.draw("X", i, 0, s_red);
        std::string expected = before;
        expected.append("^[[0m^[[31mX^[[0m").append(behind).append("$\n");
        EXPECT_EQ(textOf(canvas), expected);
        canvas.rows[0][i] = Canvas::Byte::make(0, 0);
        EXPECT_EQ(textOf(canvas), before + behind + "$\n");
    }
}

TEST(Canvas, AppendsAtItsWidthAndBelowItsLastRow) {
    Canvas canvas;
    Canvas source;
    canvas.draw("abc", s_append, s_append, s_plain);
    canvas.draw("d", 0, s_append, s_plain);
    canvas.draw("X", s_append, 1, s_plain);
    source.draw("Y", s_append, s_append, s_plain);
    canvas.draw(source, s_append, s_append);
    EXPECT_EQ(textOf(canvas), "abc$\nd  X$\n    Y$\n");
}

TEST(Canvas, ShowsEveryByteButNul) {
    Canvas canvas;
    canvas.draw(bytes("a\xE9\0b"), 0, 0, s_plain);
    EXPECT_TRUE(canvas.draw(bytes("\0b"), 0, 1, s_plain));
    canvas.rows[1].add(Canvas::Byte::make(0, 0));
    canvas.draw("c", 1, 1, s_plain);
    EXPECT_EQ(textOf(canvas), "aM-i$\nc$\n");
}

TEST(Canvas, ClipsTextLeftOfAndAboveItsOrigin) {
    using Case = std::tuple<String, unsigned, unsigned, char const*>;
    for (auto const& [text, x, y, expected] :
         {Case("abc", -1, 0, "bc2$\n"), Case("abc", -2, 0, "c12$\n"), Case("abc", -3, 0, "012$\n"),
          Case("abc", INT_MIN, 0, "012$\n"), Case("abc", 0, -1, "012$\n"),
          Case("abc", 0, INT_MIN, "012$\n"), Case(bytes("ab\0cd"), -1, 0, "b12$\n"),
          Case(bytes("a\0bcd"), -2, 0, "012$\n")}) {
        Canvas canvas;
        canvas.draw("012", 0, 0, s_plain);
        int const column = static_cast<int>(x);
        int const row = static_cast<int>(y);
        bool const drawn = x == s_append || y == s_append
                               ? canvas.drawClipped(text.view(), column, row, s_plain)
                               : canvas.draw(text, x, y, s_plain);
        EXPECT_EQ(textOf(canvas), expected) << shown(text) << " at " << column << ',' << row;
        EXPECT_EQ(drawn, expected[0] != '0') << shown(text) << " at " << column << ',' << row;
    }
}

TEST(Canvas, ComposesEveryCellOfAnotherThatIsNotClipped) {
    Canvas source;
    source.draw("a b", 0, 1, s_plain);
    Canvas canvas;
    canvas.draw("01", 0, 0, s_plain);
    canvas.draw("0123456789", 0, 1, s_plain);
    EXPECT_TRUE(canvas.draw(source, 5, 0));
    EXPECT_TRUE(canvas.draw(source, 1, 1));
    EXPECT_EQ(textOf(canvas), "01   $\n01234a b89$\n a b$\n");
    EXPECT_TRUE(canvas.drawClipped(source, -1, -1));
    EXPECT_EQ(textOf(canvas), " b   $\n01234a b89$\n a b$\n");
    EXPECT_FALSE(canvas.drawClipped(source, 0, -2));
    EXPECT_FALSE(canvas.drawClipped(source, -3, 0));
    EXPECT_FALSE(canvas.drawClipped(source, INT_MIN, INT_MIN));
    Canvas empty;
    empty.rows[0];
    EXPECT_FALSE(canvas.draw(empty, 0, 4));
    EXPECT_EQ(canvas.rows.count, 5U);
}

TEST(Canvas, MapsTheAttributesOfAComposedCanvas) {
    Canvas source;
    source.draw("x", 0, 0, s_red);
    source.draw("y", 0, 1, s_plain);
    source.draw("z", 1, 1, s_red);
    source.draw("w", 2, 1, s_blue);
    Canvas canvas;
    canvas.draw("k", 0, 0, s_blue);
    canvas.draw(source, 1, 0);
    EXPECT_EQ(textOf(canvas), "^[[0m^[[34mk^[[0m^[[31mx^[[0m$\n y^[[0m^[[31mz^[[0m^[[34mw^[[0m$\n");
    EXPECT_EQ(canvas.attributeTable.count, 3U);
}

TEST(Canvas, HoldsMoreAttributeValuesThanAByteCanNumber) {
    auto const value = [](unsigned i) {
        return Attributes{static_cast<std::uint8_t>(i), static_cast<std::uint8_t>(i >> 8)};
    };
    Canvas source;
    for (unsigned i = 0; i < 600; ++i) source.draw("x", 0, i, value(i));
    Canvas canvas;
    canvas.draw(source, 0, 0);
    for (unsigned i = 0; i < 600; ++i) {
        EXPECT_EQ(canvas.attributeTable[canvas.rows[i][0].attributeIndex], value(i)) << i;
    }
}

TEST(Attributes, ResetAndBuildTheWholeNewState) {
    constexpr std::uint8_t none = Attributes::NoColor;
    using Case = std::tuple<Attributes, Attributes, char const*>;
    for (auto const& [from, to, expected] :
         {Case({}, {}, ""), Case({0, 1, 2}, {0, 1, 2}, ""), Case({1, 1, 1}, {}, "^[[0m"),
          Case({}, {0x03, none, none}, "^[[0m^[[1m^[[2m"), Case({}, {0x80, none, none}, "^[[0m"),
          Case({}, {0x7F, none, none}, "^[[0m^[[1m^[[2m^[[3m^[[4m^[[5m^[[7m^[[8m"),
          Case({1, 1, 1}, {0x21, 0, 7}, "^[[0m^[[1m^[[7m^[[30m^[[47m"),
          Case({0, 1, 2}, {0, 1, none}, "^[[0m^[[31m")}) {
        EXPECT_EQ(shown(to.generateFormattingFrom(from)), expected);
    }
}

TEST(Attributes, KnowEightColourNames) {
    int number = 0;
    for (auto* name : {"black", "red", "green", "yellow", "blue", "mangenta", "cyan", "white"}) {
        EXPECT_EQ(Attributes::color(name), number++) << name;
    }
    for (auto* name : {"", "Red", "magenta", "red "}) {
        EXPECT_EQ(Attributes::color(name), Attributes::NoColor) << name;
    }
}

}  // namespace
}  // namespace CLI::XML

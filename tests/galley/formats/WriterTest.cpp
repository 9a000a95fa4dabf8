// Rows of clusters, written in each format.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "galley/formats/PageWriter.h"

namespace galley {
namespace {

using web::Colour;
using web::Link;
using web::Look;
using web::Row;

struct Part {
    std::string text;
    int cells;
    Look look;
};
using Parts = std::vector<Part>;

std::string written(std::vector<Parts> const& rows, Format format,
                    ColourDepth depth = ColourDepth::exact) {
    String page;
    auto const writer = makePageWriter(page, {.format = format, .theme = Theme::dark}, depth);
    for (Parts const& parts : rows) {
        Row row;
        for (auto const& [text, cells, look] : parts) row.add(text, cells, look);
        writer->take(row);
    }
    writer->finish();
    return std::string(page.view());
}

std::string ansi(Parts const& row, ColourDepth depth = ColourDepth::exact) {
    return written({row}, Format::ansi, depth);
}

/// What stands behind the rules, or behind the rectangle that is the terminal.
std::string content(std::string const& page) {
    bool const isSvg = page.starts_with("<svg");
    std::string const begin = isSvg ? "/>\n" : "</style>";
    std::size_t const start = page.find(begin) + begin.length();
    return page.substr(start, page.rfind(isSvg ? "</svg>" : "</pre>") - start);
}

TEST(Writer, ALookHasItsSequenceAtEachDepth) {
    struct Case {
        Look look;
        char const* exact = "";
        char const* cube256 = "";
        char const* sixteen = "";
        char const* none = "";
    };
    Colour const orange = Colour::rgb(255, 136, 0);
    Case const cases[] = {
        {{.isBold = true}, "1", "1", "1", "1"},
        {{.isFaint = true, .isItalic = true}, "2;3", "2;3", "2;3", "2;3"},
        {{.isUnderlined = true, .isStruckThrough = true}, "4;9", "4;9", "4;9", "4;9"},
        {{.text = Colour::ofPalette(0)}, "30", "30", "30", ""},
        {{.text = Colour::ofPalette(15)}, "97", "97", "97", ""},
        {{.background = Colour::ofPalette(7)}, "47", "47", "47", ""},
        {{.background = Colour::ofPalette(8)}, "100", "100", "100", ""},
        {{.text = orange}, "38;2;255;136;0", "38;5;208", "33", ""},
        {{.background = orange, .isBold = true}, "1;48;2;255;136;0", "1;48;5;208", "1;43", "1"},
        {{.text = Colour::rgb(10, 255, 3), .background = Colour::rgb(119, 119, 119)},
         "38;2;10;255;3;48;2;119;119;119",
         "38;5;46;48;5;243",
         "92;100",
         ""},
        {{.text = Colour::current()}, "", "", "", ""},
    };
    auto const expected = [](std::string const& parameters) {
        if (parameters.empty()) return std::string("x\n");
        return "\x1b[" + parameters + "mx\x1b[0m\n";
    };
    for (auto const& [look, exact, cube256, sixteen, none] : cases) {
        EXPECT_EQ(ansi({{"x", 1, look}}), expected(exact));
        EXPECT_EQ(ansi({{"x", 1, look}}, ColourDepth::cube256), expected(cube256));
        EXPECT_EQ(ansi({{"x", 1, look}}, ColourDepth::sixteen), expected(sixteen));
        EXPECT_EQ(ansi({{"x", 1, look}}, ColourDepth::none), expected(none));
    }
}

TEST(Writer, SequencesStandWhereLooksDifferAndRowsBeginAnew) {
    Look const bold{.isBold = true};
    Look const red{.text = Colour::ofPalette(1)};
    Look const nearRed{.text = Colour::rgb(205, 0, 0)};
    EXPECT_EQ(ansi({{"a", 1, {}}, {"b", 1, bold}, {"c", 1, red}, {"d", 1, {}}}),
              "a\x1b[1mb\x1b[0;31mc\x1b[0md\n");
    EXPECT_EQ(ansi({{"a", 1, red}, {"b", 1, nearRed}}, ColourDepth::sixteen),
              "\x1b[31mab\x1b[0m\n");
    EXPECT_EQ(written({{{"a", 1, bold}}, {}, {{"b", 1, bold}}}, Format::ansi),
              "\x1b[1ma\x1b[0m\n\n\x1b[1mb\x1b[0m\n");
}

TEST(Writer, BlanksAtTheEndOfARowAreWrittenWhereTheyShow) {
    Look const ground{.background = Colour::ofPalette(4)};
    struct Case {
        Parts row;
        ColourDepth depth;
        char const* ansi;
    };
    Case const cases[] = {
        {{{"a  ", 3, {}}}, ColourDepth::exact, "a\n"},
        {{{"   ", 3, {}}}, ColourDepth::exact, "\n"},
        {{{"a", 1, {}}, {"  ", 2, {.isBold = true}}}, ColourDepth::exact, "a\n"},
        {{{"a", 1, {}}, {"  ", 2, ground}}, ColourDepth::exact, "a\x1b[44m  \x1b[0m\n"},
        {{{"a", 1, {}}, {"  ", 2, ground}}, ColourDepth::none, "a\n"},
        {{{" ", 1, ground}, {"  ", 2, {}}}, ColourDepth::exact, "\x1b[44m \x1b[0m\n"},
        {{{" ", 1, {.isUnderlined = true}}}, ColourDepth::none, "\x1b[4m \x1b[0m\n"},
        {{{" ", 1, {.isStruckThrough = true}}}, ColourDepth::exact, "\x1b[9m \x1b[0m\n"},
    };
    for (auto const& [row, depth, bytes] : cases) EXPECT_EQ(ansi(row, depth), bytes);
    EXPECT_EQ(written({{{" a", 2, {}}, {"  ", 2, ground}}}, Format::plain), " a\n");
}

TEST(Writer, ALinkIsOneOverRowsAndLooks) {
    Link const link{"https://example.com/a?b=1;c&d=\xc3\xa9 \"<\x1b\x07\x7f%20", 7};
    constexpr char const* s_encoded = "https://example.com/a?b=1;c&d=%C3%A9%20%22%3C%1B%07%7F%20";
    std::vector<Parts> const rows = {
        {{"a", 1, {}}, {"b", 1, {.link = &link}}, {"c", 1, {.isBold = true, .link = &link}}},
        {{"d", 1, {.link = &link}}, {"e", 1, {}}}};
    std::string const open = "\x1b]8;id=7;" + std::string(s_encoded) + "\x1b\\";
    std::string const close = "\x1b]8;;\x1b\\";
    EXPECT_EQ(written(rows, Format::ansi),
              "a" + open + "b\x1b[1mc\x1b[0m" + close + "\n" + open + "d" + close + "e\n");
    std::string href = "<a href=\"" + std::string(s_encoded) + "\">";
    href.replace(href.find('&'), 1, "&amp;");
    std::string const html = written(rows, Format::html);
    EXPECT_EQ(content(html), "a" + href + "b<span class=\"g1\">c</span></a>\n" + href + "d</a>e\n");
    EXPECT_NE(html.find("\n.galley-dark a{color:inherit;text-decoration:none;}\n"),
              std::string::npos);
    EXPECT_EQ(written({{{"a", 1, {}}}}, Format::html).find(" a{"), std::string::npos);
    std::string const svg = content(written(rows, Format::svg));
    EXPECT_NE(svg.find("a</tspan>" + href + "<tspan x=\"9\""), std::string::npos) << svg;
    EXPECT_NE(svg.find("c</tspan></tspan></a></text>"), std::string::npos) << svg;
    EXPECT_NE(svg.find("d</tspan></a><tspan x=\"9\""), std::string::npos) << svg;
}

TEST(Writer, TwoLinksSideBySideAreTwo) {
    Link const first{"https://a.example/", 1};
    Link const second{"https://b.example/", 2};
    std::vector<Parts> const rows = {{{"a", 1, {.link = &first}}, {"b", 1, {.link = &second}}}};
    EXPECT_EQ(written(rows, Format::ansi),
              "\x1b]8;id=1;https://a.example/\x1b\\a\x1b]8;id=2;https://b.example/\x1b\\b"
              "\x1b]8;;\x1b\\\n");
    EXPECT_EQ(content(written(rows, Format::html)),
              "<a href=\"https://a.example/\">a</a><a href=\"https://b.example/\">b</a>\n");
}

TEST(Writer, WideCharactersTakeTwoCells) {
    Look const ground{.background = Colour::rgb(1, 2, 3)};
    std::vector<Parts> const rows = {
        {{"e\xcc\x81x\xe6\x97\xa5\xe6\x9c\xac y", 8, {}}, {"\xe8\xaa\x9e", 2, ground}}};
    EXPECT_EQ(content(written(rows, Format::html)),
              "e&#769;x<span class=\"gw\">&#26085;</span><span class=\"gw\">&#26412;</span> y"
              "<span class=\"g48-2-1-2-3\"><span class=\"gw\">&#35486;</span></span>\n");
    auto const word = [](int column, int cells, std::string const& text) {
        return "<tspan x=\"" + std::to_string(column * 9) + "\" textLength=\"" +
               std::to_string(cells * 9) + "\" lengthAdjust=\"spacingAndGlyphs\">" + text +
               "</tspan>";
    };
    std::string const svg = written(rows, Format::svg);
    EXPECT_EQ(content(svg),
              "<rect x=\"72\" y=\"0\" width=\"18\" height=\"18\" fill=\"#010203\" "
              "shape-rendering=\"crispEdges\"/>\n<text y=\"14\" xml:space=\"preserve\">" +
                  word(0, 2, "e&#769;x") + word(2, 4, "&#26085;&#26412;") + " " + word(7, 1, "y") +
                  word(8, 2, "&#35486;") + "</text>\n");
    EXPECT_EQ(svg.find("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"108\""), 0U);
}

TEST(Writer, ColoursOf24BitsAreTheSameInBothThemes) {
    Look const look{.text = Colour::rgb(255, 136, 0),
                    .background = Colour::ofPalette(12),
                    .isStruckThrough = true};
    std::string const html = written({{{"a", 1, look}}}, Format::html);
    EXPECT_NE(html.find(".g9-38-2-255-136-0-104{text-decoration:line-through;display:inline-block;"
                        "vertical-align:top;color:#ff8800;background:#6cb6ff;}\n"),
              std::string::npos)
        << html;
    Look const both{.isUnderlined = true, .isStruckThrough = true};
    EXPECT_NE(written({{{"a", 1, both}}}, Format::svg)
                  .find("<tspan style=\"text-decoration:underline line-through;\">"),
              std::string::npos);
}

}  // namespace
}  // namespace galley

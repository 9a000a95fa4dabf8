#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "galley/formats/PageWriter.h"
#include "galley/formats/palette.h"

namespace galley {
namespace {

std::string written(std::string const& page, Options const& options) {
    String text(page.c_str(), 0, static_cast<int>(page.length()));
    rewritePage(text, options);
    return std::string(text.view());
}

std::string plain(std::string const& page) { return written(page, {.format = Format::plain}); }

std::string html(std::string const& page, Theme theme = Theme::automatic, bool isDocument = false,
                 std::string const& name = "") {
    return written(
        page, {.format = Format::html, .theme = theme, .standalone = isDocument, .name = name});
}

/// What stands behind the rules.
std::string htmlText(std::string const& page) {
    std::string const all = html(page);
    std::size_t const start = all.find("</style>") + 8;
    return all.substr(start, all.find("</pre>\n") - start);
}

/// The declarations that a rule has in a theme, each theme's in a line of its own.
std::string rule(std::string const& page, Theme theme, std::string const& selector) {
    std::string const all = html(page, theme);
    std::string const start = "\n" + selector + "{";
    std::string found;
    for (std::size_t i = 0; (i = all.find(start, i)) != std::string::npos;) {
        i += start.length();
        found += all.substr(i, all.find('}', i) - i) + "\n";
    }
    return found;
}

std::string wholeSvg(std::string const& page, Theme theme) {
    return written(page, {.format = Format::svg, .theme = theme});
}

/// Behind the rectangle that is the terminal.
std::string svg(std::string const& page) {
    std::string const all = wholeSvg(page, Theme::automatic);
    std::size_t const start = all.find("/>\n") + 3;
    return all.substr(start, all.find("</svg>\n") - start);
}

std::string word(int column, int cells, std::string const& text) {
    return "<tspan x=\"" + std::to_string(column * 9) + "\" textLength=\"" +
           std::to_string(cells * 9) + "\" lengthAdjust=\"spacingAndGlyphs\">" + text + "</tspan>";
}

std::string row(int number, std::string const& text) {
    return "<text y=\"" + std::to_string(number * 18 + 14) + "\" xml:space=\"preserve\">" + text +
           "</text>\n";
}

TEST(Formats, PlainIsThePageWithoutSequencesAndBlanksAtTheEndsOfRows) {
    struct Case {
        std::string page;
        std::string plain;
    };
    Case const cases[] = {
        {"", ""},
        {"a\n\nb\n", "a\n\nb\n"},
        {"a  \n   \n  b c \n\n", "a\n\n  b c\n\n"},
        {"\x1b[0m\x1b[1m\x1b[31mx\x1b[0m y\n\x1b[0m\x1b[7m z\x1b[0m\n", "x y\n z\n"},
        // Blanks of several looks end a row, or stand within it.
        {"a \x1b[0m\x1b[41m  \x1b[0m \n\x1b[0m\x1b[41m  \x1b[0m\n", "a\n\n"},
        {"a \x1b[0m\x1b[41m  \x1b[0mb\n", "a   b\n"},
        // Only blanks are.
        {"a\t\nb\xa0\nc\r\nd \x01\n", "a\t\nb\xa0\nc\r\nd \x01\n"},
        {std::string("a\0 \n", 4), std::string("a\0\n", 3)},
        // No sequences of the library.
        {"\x1b[0ma\x1b\x1b[2J \x1b[1;2m\x1b[3\n\x1b[\n", "a\x1b\x1b[2J \x1b[1;2m\x1b[3\n\x1b[\n"},
    };
    for (auto const& [page, expected] : cases) EXPECT_EQ(plain(page), expected);
}

TEST(Formats, EveryLookHasItsClassAndItsCss) {
    constexpr char const* s_shape = "display:inline-block;vertical-align:top;";
    struct Case {
        char const* sequences;
        char const* name;
        std::string dark;
        std::string light;
    };
    Case const cases[] = {
        {"\x1b[1m", "g1", "font-weight:bold;", "font-weight:bold;"},
        {"\x1b[2m", "g2", "color:#8b8b8b;", "color:#4b4b4b;"},
        {"\x1b[3m", "g3", "font-style:italic;", "font-style:italic;"},
        {"\x1b[4m", "g4", "text-decoration:underline;", "text-decoration:underline;"},
        {"\x1b[5m", "g5", "animation:galley-blink 1s step-end infinite;",
         "animation:galley-blink 1s step-end infinite;"},
        {"\x1b[7m", "g7", std::string(s_shape) + "color:#1e1e1e;background:#d4d4d4;",
         std::string(s_shape) + "color:#ffffff;background:#1e1e1e;"},
        {"\x1b[8m", "g8", "color:#1e1e1e;", "color:#ffffff;"},
        {"\x1b[30m", "g30", "color:#000000;", "color:#000000;"},
        {"\x1b[37m", "g37", "color:#ffffff;", "color:#545454;"},
        {"\x1b[41m", "g41", std::string(s_shape) + "background:#f14c4c;",
         std::string(s_shape) + "background:#cd3131;"},
        {"\x1b[32m\x1b[44m", "g32-44", std::string(s_shape) + "color:#23d18b;background:#3b8eea;",
         std::string(s_shape) + "color:#0dbc79;background:#2472c8;"},
        {"\x1b[7m\x1b[33m", "g7-33", std::string(s_shape) + "color:#1e1e1e;background:#e5e510;",
         std::string(s_shape) + "color:#ffffff;background:#6b4e00;"},
        {"\x1b[8m\x1b[7m", "g7-8", std::string(s_shape) + "color:#d4d4d4;background:#d4d4d4;",
         std::string(s_shape) + "color:#1e1e1e;background:#1e1e1e;"},
        {"\x1b[3m\x1b[36m\x1b[1m", "g1-3-36", "font-weight:bold;font-style:italic;color:#29b8db;",
         "font-weight:bold;font-style:italic;color:#005f6b;"},
    };
    for (auto const& [sequences, name, dark, light] : cases) {
        std::string const page = "a\x1b[0m" + std::string(sequences) + "b\x1b[0mc\n";
        EXPECT_EQ(htmlText(page), "a<span class=\"" + std::string(name) + "\">b</span>c\n");
        EXPECT_EQ(rule(page, Theme::dark, ".galley-dark ." + std::string(name)), dark + "\n");
        EXPECT_EQ(rule(page, Theme::light, ".galley-light ." + std::string(name)), light + "\n");
    }
}

TEST(Formats, OnlyTheAutomaticThemeHasTheRulesOfBoth) {
    std::string const page = "a\x1b[0m\x1b[1m\x1b[31mb\x1b[0m\x1b[1mc\x1b[0m\n";
    EXPECT_EQ(rule(page, Theme::automatic, ".galley .g1-31"),
              "font-weight:bold;color:#b3261e;\ncolor:#f14c4c;\n");
    EXPECT_EQ(rule(page, Theme::automatic, ".galley .g1"), "font-weight:bold;\n");
    EXPECT_EQ(html(page).find("<pre class=\"galley\">\n<style>\n"), 0U);
    std::string const dark = "color:#d4d4d4;background:#1e1e1e;color-scheme:dark;\n";
    std::string const light = "color:#1e1e1e;background:#ffffff;color-scheme:light;\n";
    constexpr char const* s_dark = "@media (prefers-color-scheme:dark){";
    for (auto const& [theme, name, colors] : {std::tuple{Theme::automatic, "galley", light + dark},
                                              std::tuple{Theme::light, "galley-light", light},
                                              std::tuple{Theme::dark, "galley-dark", dark}}) {
        std::string const all = html(page, theme);
        std::string const scope = "." + std::string(name);
        EXPECT_NE(rule(page, theme, scope).find(colors), std::string::npos) << name;
        EXPECT_NE(all.find("<pre class=\"" + std::string(name) + "\">"), std::string::npos);
        EXPECT_EQ(all.find(s_dark) != std::string::npos, theme == Theme::automatic) << name;
        // In a document they hold for the whole window.
        std::string const whole = html(page, theme, true);
        EXPECT_NE(whole.find("\nhtml," + scope + "{" + colors.substr(0, colors.find('\n'))),
                  std::string::npos);
    }
}

TEST(Formats, ADocumentOfHtmlHasAHeadWithItsTitleAndRules) {
    std::string const page = "\n\x1b[0m\x1b[1ma\x1b[0m\n";
    std::string const element = html(page, Theme::dark);
    std::size_t const start = element.find(".galley-dark .g1{");
    std::string const rules = element.substr(start, element.find("</style>") - start);
    std::string const whole = html(page, Theme::dark, true, "f/a<\xc3\xa9&\n.xml");
    EXPECT_EQ(whole.find("<!DOCTYPE html>\n<html>\n<head>\n"), 0U);
    EXPECT_NE(whole.find("<title>a&lt;&#233;&amp;&#65533;.xml</title>\n"), std::string::npos);
    EXPECT_NE(whole.find(rules), std::string::npos);
    EXPECT_EQ(whole.substr(whole.find("</style>")),
              "</style>\n</head>\n<body>\n<pre class=\"galley-dark\">\n"
              "\n<span class=\"g1\">a</span>\n</pre>\n</body>\n</html>\n");
}

TEST(Formats, OnlyWhatBlinksBringsAnAnimation) {
    std::string const frames = "@keyframes galley-blink{50%{color:transparent;fill:transparent}}\n";
    std::string const page = "\x1b[0m\x1b[5mb\x1b[0m\n";
    EXPECT_NE(html(page).find(frames), std::string::npos);
    EXPECT_NE(wholeSvg(page, Theme::dark).find("<style>" + frames + "</style>"), std::string::npos);
    EXPECT_EQ(html("b\n").find("@keyframes"), std::string::npos);
    EXPECT_EQ(wholeSvg("b\n", Theme::dark).find("<style>"), std::string::npos);
    EXPECT_EQ(svg(page), row(0, "<tspan style=\"animation:galley-blink 1s step-end infinite;\">" +
                                    word(0, 1, "b") + "</tspan>"));
}

/// As WCAG 2 defines it, of a color "#rrggbb".
double luminance(std::string const& color) {
    constexpr double s_shares[] = {0.2126, 0.7152, 0.0722};
    double sum = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        double const part = std::stoi(color.substr(1 + 2 * i, 2), nullptr, 16) / 255.0;
        sum +=
            s_shares[i] * (part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4));
    }
    return sum;
}

TEST(Formats, EveryColorIsReadableOnALightPageAndDiffersFromTheOthers) {
    using web::Colour;
    std::vector<Colour> colours = {Colour()};
    for (std::uint8_t i = 0; i < 16; ++i) colours.push_back(Colour::ofPalette(i));
    std::set<std::string> texts;
    for (Colour const colour : colours) {
        for (bool const isFaint : {false, true}) {
            auto const [text, ground] =
                cellColors({.text = colour, .isFaint = isFaint}, Theme::light);
            double const contrast = (luminance(ground) + 0.05) / (luminance(text) + 0.05);
            EXPECT_GE(contrast, 4.5) << text << " on " << ground;
            EXPECT_TRUE(texts.insert(text).second) << text;
        }
        auto const ground = cellColors({.text = {}, .background = colour}, Theme::light).ground;
        if (colour != Colour()) {
            EXPECT_NE(ground, cellColors({}, Theme::light).ground);
        }
    }
}

TEST(Formats, WhatIsNoCharacterOfAnXmlDocumentIsReplaced) {
    struct Case {
        std::string given;
        std::string escaped;
        int cells;
    };
    Case const cases[] = {
        {"<&>\"'", "&lt;&amp;&gt;\"'", 5},
        {"caf\xc3\xa9!", "caf&#233;!", 5},
        {"\xe2\x9c\x93", "&#10003;", 1},
        {"\xf0\x9f\x98\x80", "&#128512;", 1},
        {"\xed\x9f\xbf\xee\x80\x80", "&#55295;&#57344;", 2},
        {"\xed\xa0\x80", "&#65533;&#65533;&#65533;", 3},
        {"\xc3", "&#65533;", 1},
        {"\x80z\xff", "&#65533;z&#65533;", 3},
        {"\xc2\x85", "&#65533;", 1},
        {"\xef\xbf\xbe\xef\xbf\xbf\xef\xbf\xbd", "&#65533;&#65533;&#65533;", 3},
        {"\x01\t\r\x7f\x1b[", "&#65533;&#65533;&#65533;&#65533;&#65533;[", 6},
        {std::string("\0", 1), "&#65533;", 1},
    };
    for (auto const& [given, escaped, cells] : cases) {
        EXPECT_EQ(htmlText(given + "\n"), escaped + "\n");
        EXPECT_EQ(svg("a " + given + "\n"),
                  row(0, word(0, 1, "a") + " " + word(2, cells, escaped)));
    }
}

TEST(Formats, APicturePlacesWordsAndGroundsAtTheirCells) {
    std::string const page = "\n  ab \xc3\xa9  c\n\x1b[0m\x1b[41m d  e \x1b[0mf\n";
    EXPECT_EQ(
        svg(page),
        row(1, "  " + word(2, 2, "ab") + " " + word(5, 1, "&#233;") + "  " + word(8, 1, "c")) +
            "<rect x=\"0\" y=\"36\" width=\"54\" height=\"18\" fill=\"#f14c4c\" "
            "shape-rendering=\"crispEdges\"/>\n" +
            row(2, " " + word(1, 1, "d") + "  " + word(4, 1, "e") + " " + word(6, 1, "f")));
    EXPECT_NE(
        wholeSvg(page, Theme::dark).find("width=\"99\" height=\"72\" viewBox=\"-9 -9 99 72\""),
        std::string::npos);
}

TEST(Formats, APictureIsDarkUnlessItIsAskedToBeLight) {
    std::string const page = "\x1b[0m\x1b[31m\x1b[42ma\x1b[0m\n";
    std::string const dark = wholeSvg(page, Theme::dark);
    EXPECT_EQ(wholeSvg(page, Theme::automatic), dark);
    for (char const* color : {"#d4d4d4", "#1e1e1e", "#23d18b", "#f14c4c"}) {
        EXPECT_NE(dark.find("fill=\"" + std::string(color)), std::string::npos) << color;
    }
    std::string const light = wholeSvg(page, Theme::light);
    for (char const* color : {"#1e1e1e", "#ffffff", "#0dbc79", "#cd3131"}) {
        EXPECT_NE(light.find("fill=\"" + std::string(color)), std::string::npos) << color;
    }
}

}  // namespace
}  // namespace galley

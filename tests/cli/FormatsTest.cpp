#include "galley/formats/formats.h"

#include <gtest/gtest.h>

#include <string>

#include "galley/formats/plain.h"

namespace {

std::string plain(std::string const& page) {
    String text(page.c_str(), 0, static_cast<int>(page.length()));
    CLI::XML::makePlain(text);
    return std::string(text.view());
}

/// What stands between the tags of the whole.
std::string html(std::string const& page) {
    String text(page.c_str(), 0, static_cast<int>(page.length()));
    makeHtml(text);
    std::string const all = text.c_str();
    std::size_t const start = all.find(">\n") + 2;
    return all.substr(start, all.find("</pre>\n") - start);
}

/// Behind the rectangle that is the terminal.
std::string svg(std::string const& page) {
    String text(page.c_str(), 0, static_cast<int>(page.length()));
    makeSvg(text);
    std::string const all = text.c_str();
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
        // Without an end of the row.
        {"a\nb  ", "a\nb"},
        // No sequences of the library.
        {"\x1b[0ma\x1b\x1b[2J \x1b[1;2m\x1b[3\n\x1b[", "a\x1b\x1b[2J \x1b[1;2m\x1b[3\n\x1b["},
    };
    for (auto const& [page, expected] : cases) EXPECT_EQ(plain(page), expected);
}

TEST(Formats, EveryAttributeAndColorHasItsCss) {
    struct Case {
        char const* sequences;
        char const* css;
    };
    constexpr Case cases[] = {
        {"\x1b[1m", "font-weight:bold;"},
        {"\x1b[2m", "color:#8b8b8b;"},
        {"\x1b[3m", "font-style:italic;"},
        {"\x1b[4m", "text-decoration:underline;"},
        {"\x1b[7m", "color:#1e1e1e;background:#d4d4d4;"},
        {"\x1b[8m", "color:#1e1e1e;"},
        {"\x1b[30m", "color:#000000;"},
        {"\x1b[37m", "color:#ffffff;"},
        {"\x1b[41m", "background:#f14c4c;"},
        {"\x1b[32m\x1b[44m", "color:#23d18b;background:#3b8eea;"},
        {"\x1b[7m\x1b[33m", "color:#1e1e1e;background:#e5e510;"},
        {"\x1b[7m\x1b[8m", "background:#d4d4d4;"},
        {"\x1b[1m\x1b[3m\x1b[36m", "color:#29b8db;font-weight:bold;font-style:italic;"},
    };
    for (auto const& [sequences, css] : cases) {
        std::string const page = "a\x1b[0m" + std::string(sequences) + "b\x1b[0mc\n";
        EXPECT_EQ(html(page), "a<span style=\"" + std::string(css) + "\">b</span>c\n");
    }
}

TEST(Formats, ARunThatBlinksBringsItsAnimation) {
    std::string const page = "\x1b[0m\x1b[5mb\x1b[0m\n";
    std::string const rule =
        "<style>@keyframes galley-blink{50%{color:transparent;fill:transparent}}</style>";
    std::string const css = "style=\"animation:galley-blink 1s step-end infinite;\">";
    EXPECT_EQ(html(page), rule + "<span " + css + "b</span>\n");
    EXPECT_EQ(svg(page), row(0, "<tspan " + css + word(0, 1, "b") + "</tspan>"));
    String picture(page.c_str());
    makeSvg(picture);
    EXPECT_NE(std::string(picture.c_str()).find(rule), std::string::npos);
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
        EXPECT_EQ(html(given + "\n"), escaped + "\n");
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
    String picture(page.c_str());
    makeSvg(picture);
    EXPECT_NE(
        std::string(picture.c_str()).find("width=\"99\" height=\"72\" viewBox=\"-9 -9 99 72\""),
        std::string::npos);
}

}  // namespace

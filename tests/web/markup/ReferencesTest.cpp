#include "web/markup/References.h"

#include <gtest/gtest.h>

#include "web/css/characters.h"

namespace galley::web {
namespace {

struct Decoded {
    explicit Decoded(std::string_view source) {
        std::vector<Problem> found;
        decodeReferences(source, 100, text, found);
        for (Problem const& problem : found) {
            problems += std::to_string(problem.offset) + " " + problem.message + "\n";
        }
    }

    std::string text;
    std::string problems;
};

TEST(References, EachNameStandsForItsCharacter) {
    struct {
        std::string name;
        std::uint32_t codePoint;
    } const entities[] = {
#include "web/markup/entities.inc"
    };
    EXPECT_EQ(std::size(entities), 253U);
    for (auto const& [name, codePoint] : entities) {
        std::string character;
        appendUtf8(character, codePoint);
        Decoded const decoded("&" + name + ";");
        EXPECT_EQ(decoded.text, character) << name;
        EXPECT_EQ(decoded.problems, "") << name;
    }
}

TEST(References, NumbersStandForCharacters) {
    EXPECT_EQ(Decoded("&#65;&#x42;&#X4a;&#0067;&#xE9;&#8364;&#x1F600;&#x10FFFF;&#10;").text,
              "ABJCé€\U0001F600\U0010FFFF\n");
    EXPECT_EQ(Decoded("&#xD7FF;&#xE000;").text, "\uD7FF\uE000");
}

TEST(References, WhatIsNoneIsSaid) {
    struct {
        std::string source;
        std::string text;
        std::string problems;
    } const cases[] = {
        {"&amp;amp;", "&amp;", ""},
        {"a & b", "a & b", "102 '&' begins no reference; write '&amp;'\n"},
        {"&&lt;&am", "&<&am",
         "100 '&' begins no reference; write '&amp;'\n105 '&' begins no reference; write "
         "'&amp;'\n"},
        {"&amp &nbsp, &#65 &#x41", "&amp &nbsp, &#65 &#x41",
         "100 missing ';' behind '&amp'\n105 missing ';' behind '&nbsp'\n"
         "112 missing ';' behind '&#65'\n117 missing ';' behind '&#x41'\n"},
        {"a&b=c;d", "a&b=c;d", "101 '&' begins no reference; write '&amp;'\n"},
        {"&;&#;&#x;&#x1g;&#1a;&a#b;&#-1;", "&;&#;&#x;&#x1g;&#1a;&a#b;&#-1;",
         "100 '&' begins no reference; write '&amp;'\n102 '&' begins no reference; write '&amp;'\n"
         "105 '&' begins no reference; write '&amp;'\n109 '&' begins no reference; write '&amp;'\n"
         "115 '&' begins no reference; write '&amp;'\n120 '&' begins no reference; write '&amp;'\n"
         "125 '&' begins no reference; write '&amp;'\n"},
        {"&AMP;&hellipp;", "&AMP;&hellipp;",
         "100 unknown reference '&AMP;'\n105 unknown reference '&hellipp;'\n"},
        {"&#0;&#xD800;&#xDFFF;&#x110000;", "\uFFFD\uFFFD\uFFFD\uFFFD",
         "100 '&#0;' is no character\n104 '&#xD800;' is no character\n"
         "112 '&#xDFFF;' is no character\n120 '&#x110000;' is no character\n"},
        {"&#9;&#10;&#13;&#27;&#x7f;&#150;&#160;", "\t\n\r\x1B\x7F\u0096\u00A0",
         "114 '&#27;' is a control character, shown as U+FFFD\n"
         "119 '&#x7f;' is a control character, shown as U+FFFD\n"
         "125 '&#150;' is a control character, shown as U+FFFD\n"},
        {"&#4294967361;", "\uFFFD", "100 '&#4294967361;' is no character\n"},
    };
    for (auto const& [source, text, problems] : cases) {
        Decoded const decoded(source);
        EXPECT_EQ(decoded.text, text);
        EXPECT_EQ(decoded.problems, problems);
    }
}

}  // namespace
}  // namespace galley::web

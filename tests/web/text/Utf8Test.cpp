#include "web/text/utf8.h"

#include <gtest/gtest.h>

#include <string>

namespace galley::web {
namespace {

using namespace std::string_literals;

/// The code points of a text, each with a blank before it; of an ill-formed part its length, too.
std::string decoded(std::string_view text) {
    std::string out;
    for (std::size_t i = 0; i < text.size();) {
        CodePoint const c = decodeAt(text, i);
        char word[16];
        std::snprintf(word, sizeof(word), c.isWellFormed ? " %04X" : " !%X/%u",
                      static_cast<unsigned>(c.value), c.length);
        out += word;
        i += c.length;
    }
    return out;
}

TEST(Utf8, EachMaximalIllFormedPartIsOneReplacement) {
    struct {
        std::string text;
        std::string expected;
    } const cases[] = {
        {"a\x7F\u0080\u07FF\u0800\uFFFF\U00010000\U0010FFFF",
         " 0061 007F 0080 07FF 0800 FFFF 10000 10FFFF"},
        {"\0"s, " 0000"},
        // Overlong forms, surrogates, what is too large: no byte goes with the first one.
        {"\xC0\xAF\xE0\x80\xBF\xF0\x81\x82\x41",
         " !FFFD/1 !FFFD/1 !FFFD/1 !FFFD/1 !FFFD/1 !FFFD/1 !FFFD/1 !FFFD/1 0041"},
        {"\xED\xA0\x80\xED\xBF\xBF\xED\xAF\x41",
         " !FFFD/1 !FFFD/1 !FFFD/1 !FFFD/1 !FFFD/1 !FFFD/1 !FFFD/1 !FFFD/1 0041"},
        {"\xF4\x91\x92\x93\xFF\x41\x80\xBF\x42",
         " !FFFD/1 !FFFD/1 !FFFD/1 !FFFD/1 !FFFD/1 0041 !FFFD/1 !FFFD/1 0042"},
        // Truncated ones: all that could have gone on.
        {"\xE1\x80\xE2\xF0\x91\x92\xF1\xBF\x41", " !FFFD/2 !FFFD/1 !FFFD/3 !FFFD/2 0041"},
        {"\xED\x9F\x41\xF4\x8F\xBF\x41\xE0\xA0", " !FFFD/2 0041 !FFFD/3 0041 !FFFD/2"},
        {"\xC2", " !FFFD/1"},
        {"\xC2\xC2\xA0", " !FFFD/1 00A0"},
        {"\xF5\x80\xF8\x88\xFE", " !FFFD/1 !FFFD/1 !FFFD/1 !FFFD/1 !FFFD/1"},
    };
    for (auto const& [text, expected] : cases) EXPECT_EQ(decoded(text), expected);
}

TEST(Utf8, IllFormedPartsAreFoundOneByOne) {
    std::string const text = "ab\xE1\x80\u00E9\xFFz";
    std::size_t const first = findIllFormed(text);
    EXPECT_EQ(first, 2U);
    std::size_t const second = findIllFormed(text, first + decodeAt(text, first).length);
    EXPECT_EQ(second, 6U);
    EXPECT_EQ(findIllFormed(text, second + 1), std::string::npos);
}

TEST(Utf8, AsManyCodePointsAreBeforeAPlaceAsBehindIt) {
    std::string const text = "a\u00E9\u6F22\U0001F600\xFF\xF0\x9F\x98z";
    std::string found;
    for (std::size_t i = text.size(); i > 0;) {
        std::size_t const start = startBefore(text, i);
        found += std::to_string(i - start);
        i = start;
    }
    // Of the truncated character each byte by itself.
    EXPECT_EQ(found, "111114321");
}

}  // namespace
}  // namespace galley::web

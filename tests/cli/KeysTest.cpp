// Keys as bytes that a terminal sends.

#include "cli/Keys.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace {

/// A letter for each key.
std::string letters(std::vector<Key> const& keys) {
    std::string text;
    for (Key const key : keys) text += std::string_view("udUDheq")[static_cast<std::size_t>(key)];
    return text;
}

struct Case {
    char const* bytes;
    /// u d up and down, U D by a page, h e home and end, q quit.
    char const* keys;
};

constexpr Case s_cases[] = {
    {"", ""},
    {"\x1b[A\x1b[B", "ud"},
    {"\x1bOA\x1bOB", "ud"},
    {"kj b", "udDU"},
    {"\x1b[5~\x1b[6~", "UD"},
    {"\x1b[H\x1b[F\x1bOH\x1bOF", "hehe"},
    {"\x1b[1~\x1b[4~\x1b[7~\x1b[8~", "hehe"},
    {"gGq", "heq"},
    // No keys of the screen: letters, function keys, keys with Control, a character of two bytes.
    {"xAQB\t\n\x7f", ""},
    {"\x1b[15~\x1bOP\x1b[Z\x1b[3~k", "u"},
    {"\x1b[1;5A\x1b[6;2~\x1b[1;2Hj", "d"},
    {"\x1b[[A\x1b[[Bj", "d"},
    {"\xc3\xa9\xc3kj", "ud"},
    // The key Escape, alone or before others.
    {"\x1b\x1b[A", "u"},
    {"\x1b\x1b\x1bq", "q"},
    {"\x1bq", "q"},
    // What breaks a sequence off is read by itself.
    {"\x1b[\x1b[B", "d"},
    {"\x1b[5\x1b[6~", "D"},
    {"\x1b[\nq", "q"},
    {"\x1bO\x1bOA", "u"},
    // Sequences that no key has.
    {"\x1b[?1;2c\x1b[200~k\x1b[201~", "u"},
    {"\x1b[11111111111111111111111111111111111111111111~j", "d"},
};

TEST(Keys, AreTheSameHoweverTheirBytesArrive) {
    for (auto const& [bytes, keys] : s_cases) {
        std::string_view const all = bytes;
        for (std::size_t first = 0; first <= all.length(); ++first) {
            KeyReader reader;
            std::string read = letters(reader.read(all.substr(0, first)));
            read += letters(reader.read(all.substr(first)));
            EXPECT_EQ(read, keys) << testing::PrintToString(bytes) << first;
        }
        KeyReader reader;
        std::string read;
        for (char const byte : all) read += letters(reader.read({&byte, 1}));
        EXPECT_EQ(read, keys) << testing::PrintToString(bytes);
    }
}

TEST(Keys, HaveComeWhenTheirLastByteHas) {
    KeyReader reader;
    EXPECT_EQ(letters(reader.read("k\x1b")), "u");
    EXPECT_EQ(letters(reader.read("[")), "");
    EXPECT_EQ(letters(reader.read("5")), "");
    EXPECT_EQ(letters(reader.read("~")), "U");
}

TEST(Keys, ComeAgainAfterASequenceWithoutEnd) {
    KeyReader reader;
    reader.read("\x1b[" + std::string(100000, '1'));
    EXPECT_EQ(letters(reader.read("jq")), "dq");
}

}  // namespace

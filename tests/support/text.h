#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <ostream>
#include <string>
#include <utility>

#include "base/String.h"
#include "base/XCode.h"

/// A text with NUL bytes among its characters.
template <std::size_t size>
String bytes(char const (&literal)[size]) {
    return String(literal, 0, static_cast<int>(size) - 1);
}

/// The text as `cat -A` prints it: "^[" for an escape byte, "^@" for NUL, "$" before a line feed,
/// "M-" for the high bit.
inline std::string shown(String const& text) {
    std::string result;
    for (int i = 0; i < text.length(); ++i) {
        auto const byte = static_cast<unsigned char>(text[i]);
        char const low = static_cast<char>(byte & 0x7F);
        if (byte >= 0x80) result += "M-";
        if (low >= ' ')
            result += low;
        else if (low == '\n')
            result += "$\n";
        else
            result += {'^', static_cast<char>(low + '@')};
    }
    return result;
}

/// How GoogleTest prints a text.
inline void PrintTo(String const& text, std::ostream* out) { *out << '"' << shown(text) << '"'; }

/// A row of a table: an input, and what has to become of it.
using Row = std::pair<String, char const*>;

template <class Act>
void expectEach(std::initializer_list<Row> rows, Act const& act) {
    for (auto const& [input, expected] : rows) EXPECT_EQ(act(input), expected) << shown(input);
}

/// A picture in a raw string, without the line feed that opens it.
inline std::string picture(char const* rawString) { return rawString + 1; }

/// "ok", or the message of a failure, which is the generic one.
inline std::string outcome(XCode const& code) {
    EXPECT_TRUE(code || code.getValue() == 0x7FFFFFFF);
    return code ? "ok" : code.getString().c_str();
}

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace galley::web {

/// A token of CSS Syntax Level 3. Comments are none.
struct Token {
    enum class Kind : std::uint8_t {
        identifier,
        /// The name and the opening parenthesis.
        function,
        atKeyword,
        hash,
        string,
        /// A string with a line end in it, before which it stops.
        badString,
        url,
        number,
        percentage,
        dimension,
        whitespace,
        colon,
        semicolon,
        comma,
        openParenthesis,
        closeParenthesis,
        openBracket,
        closeBracket,
        openBrace,
        closeBrace,
        /// `<!--` or `-->`, which mean nothing around rules.
        commentMark,
        /// Any other byte.
        delimiter,
    };

    Kind kind = Kind::delimiter;
    /// The token in the source, which outlives it.
    std::string_view source;
    /// Bytes from the start of the source.
    std::size_t offset = 0;
    /// Without escapes: the name, the text of the string, the unit of the dimension.
    std::string text;
    /// Of a number, a percentage or a dimension.
    double number = 0;
    /// Tokens from one that opens a block through the one that closes it, or to the end; else 1.
    std::size_t extent = 1;
    /// Whether a block that it opens is closed by the last of these.
    bool isClosed = false;
    /// Whether a hash could name an element.
    bool isName = false;

    bool isDelimiter(char c) const { return kind == Kind::delimiter && source.front() == c; }
};

}  // namespace galley::web

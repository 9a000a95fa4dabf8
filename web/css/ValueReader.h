#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "web/css/Token.h"
#include "web/wording.h"

namespace galley::web {

/// Reads what is between two tokens, without white space. What reads a value with it returns
/// whether there was one, and may have read on where there was none; copies can be tried.
class ValueReader {
public:
    /// All of these must outlive the reader and its copies. `name` is that of the property.
    ValueReader(std::span<Token const> value, std::string_view name, std::vector<Problem>& found)
        : tokens(value), property(name), problems(&found) {
        skipWhitespace();
    }

    bool atEnd() const { return tokens.empty(); }

    /// The next token, which must be there.
    Token const& peek() const { return tokens.front(); }

    /// Whether a token is there, and of that kind.
    bool isNext(Token::Kind kind) const { return !atEnd() && peek().kind == kind; }

    /// Steps behind the next token, which must be there.
    Token const& take();
    bool take(Token::Kind kind);
    bool takeDelimiter(char c);
    /// An identifier, whatever the case of its letters.
    bool takeWord(std::string_view word);

    /// Steps behind the next token, or the block that it opens, and warns that it is without
    /// effect.
    void ignore();
    /// Warns that a token has no effect as a value of the property, though it may be one.
    void warnAbout(Token const& token) const;
    /// Warns that a colour, which begins with a token, is opaque though it says otherwise.
    void warnOfOpacity(Token const& token) const;
    /// Warns that a border, which the value is, has no style and so does not show.
    void warnOfNoStyle() const;

private:
    void skipWhitespace();
    void drop(std::size_t count);

    std::span<Token const> tokens;
    std::string_view property;
    std::vector<Problem>* problems;
};

}  // namespace galley::web

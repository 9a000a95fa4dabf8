#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "web/Problem.h"
#include "web/css/Token.h"

namespace galley::web {

/// Splits a sheet, or a part of one, into tokens. Nothing fails: what is wrong is a token, too.
class Tokenizer {
public:
    /// In bytes. All tokens are in memory at once, and take fifty times as much.
    static constexpr std::size_t s_longest = std::size_t{4} << 20;

    /// The source must outlive the tokens. What is longer is read up to that length.
    explicit Tokenizer(std::string_view text)
        : source(text.substr(0, s_longest)), isCut(text.size() > s_longest) {}

    std::vector<Token> run();

    /// Says so where not all has been read.
    void warnOfRest(std::vector<Problem>& problems) const;

    /// Where the comment begins that has no end, once all is read.
    std::optional<std::size_t> const& unclosedComment() const { return commentStart; }

private:
    Token next();
    Token::Kind readToken(Token& token);
    Token::Kind readString(Token& token);
    Token::Kind readNumber(Token& token);
    Token::Kind readNamed(Token& token);
    Token::Kind readUrl(Token& token);
    Token::Kind readPunctuation(Token& token);
    std::string readName();
    void readEscape(std::string& text);
    void skipDigits();
    bool skipComment();
    bool skip(std::string_view text);

    /// The byte that is `ahead` bytes away, or 0 where there is none.
    char peek(std::size_t ahead = 0) const;
    bool atEnd() const { return position >= source.length(); }
    bool startsEscape(std::size_t ahead) const;
    bool startsName(std::size_t ahead) const;
    bool startsNumber() const;

    std::string_view source;
    bool isCut;
    std::size_t position = 0;
    std::optional<std::size_t> commentStart;
};

}  // namespace galley::web

#include "web/css/DeclarationParser.h"

#include <algorithm>

#include "web/css/characters.h"
#include "web/css/lengths.h"
#include "web/css/suggestValue.h"

namespace galley::web {

namespace {

using Kind = Token::Kind;
using Tokens = std::span<Token const>;

constexpr std::size_t s_longestExcerpt = 40;

/// Takes `!important` from the end of a value. Whether it was there.
bool takeImportant(Tokens& value) {
    if (value.empty() || value.back().kind != Kind::identifier) return false;
    if (!isSameWord(value.back().text, "important")) return false;
    Tokens const rest = trimmed(value.first(value.size() - 1));
    if (rest.empty() || !rest.back().isDelimiter('!')) return false;
    value = trimmed(rest.first(rest.size() - 1));
    return true;
}

/// Tokens of a declaration, or of something else, up to the semicolon or through the braces that
/// are behind it.
std::size_t lengthOfItem(Tokens tokens) {
    std::size_t const length = lengthBefore(tokens, Kind::semicolon);
    // Looking farther for every declaration would take quadratic time.
    std::size_t const brace = lengthBefore(tokens.first(length), Kind::openBrace);
    if (brace == length) return length;
    return std::min(brace + tokens[brace].extent, tokens.size());
}

}  // namespace

Tokens trimmed(Tokens tokens) {
    auto const isBlank = [](Token const& token) { return token.kind == Kind::whitespace; };
    while (!tokens.empty() && isBlank(tokens.front())) tokens = tokens.subspan(1);
    while (!tokens.empty() && isBlank(tokens.back())) tokens = tokens.first(tokens.size() - 1);
    return tokens;
}

std::string excerpt(Tokens tokens) {
    std::string text;
    for (Token const& token : tokens) {
        bool const isBlank = token.kind == Kind::whitespace;
        text += isBlank ? std::string_view(" ") : token.source;
        if (text.length() > s_longestExcerpt) break;
    }
    if (text.length() <= s_longestExcerpt) return text;
    std::size_t end = s_longestExcerpt;
    // Trailing bytes of UTF-8 go with their lead.
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) --end;
    return text.substr(0, end) + "...";
}

std::size_t lengthBefore(Tokens tokens, Kind kind) {
    std::size_t i = 0;
    while (i < tokens.size() && tokens[i].kind != kind) i += tokens[i].extent;
    return std::min(i, tokens.size());
}

DeclarationBlock DeclarationParser::parse(Tokens tokens) {
    DeclarationBlock block;
    while (!tokens.empty()) {
        Kind const kind = tokens.front().kind;
        if (kind == Kind::whitespace || kind == Kind::semicolon) {
            tokens = tokens.subspan(1);
            continue;
        }
        std::size_t const length = lengthOfItem(tokens);
        parseDeclaration(trimmed(tokens.first(length)), block);
        tokens = tokens.subspan(length);
    }
    return block;
}

void DeclarationParser::parseDeclaration(Tokens tokens, DeclarationBlock& block) {
    Token const& name = tokens.front();
    Tokens value = trimmed(tokens.subspan(1));
    bool const hasBraces = lengthBefore(tokens, Kind::openBrace) < tokens.size();
    if (hasBraces || name.kind != Kind::identifier) {
        warn(problems, name.offset, quoted(excerpt(tokens)) + " is no declaration");
    } else if (value.empty() || value.front().kind != Kind::colon) {
        warn(problems, name.offset, "missing ':' behind " + quoted(name.source));
    } else if (Property const* const property = findProperty(name.text)) {
        value = trimmed(value.subspan(1));
        bool const isImportant = takeImportant(value);
        if (value.empty()) {
            warn(problems, name.offset, "missing value of " + quoted(name.source));
        } else {
            declare(isImportant ? block.important : block.normal, *property, value);
        }
    } else {
        warnAboutUnknown(name);
    }
}

void DeclarationParser::declare(Declarations& declarations, Property const& property,
                                Tokens value) {
    std::size_t const before = problems.size();
    if (!declarations.declare(property, ValueReader(value, property.name, problems))) {
        problems.resize(before);
        std::size_t const offset = value.empty() ? 0 : value.front().offset;
        warn(problems, offset,
             quoted(excerpt(value)) + " is no value of " + quoted(property.name) +
                 valueMeant(property, value));
    }
    // What stands for several sides was read for each.
    auto const first = problems.begin() + static_cast<std::ptrdiff_t>(before);
    std::stable_sort(first, problems.end(),
                     [](Problem const& a, Problem const& b) { return a.offset < b.offset; });
    problems.erase(std::unique(first, problems.end()), problems.end());
}

/// Why a value is none, or what it was probably meant to be, to be appended to a warning.
std::string DeclarationParser::valueMeant(Property const& property, Tokens value) {
    auto const function = std::find_if(value.begin(), value.end(), [](Token const& token) {
        return token.kind == Kind::function && !isSameWord(token.text, "rgb") &&
               !isSameWord(token.text, "rgba");
    });
    if (function != value.end()) return "; " + quoted(function->text + "()") + " is not supported";
    for (Token const& token : value) {
        if (token.kind == Kind::dimension && !isUnit(token.text)) {
            return "; unit " + quoted(token.text) + " is not supported";
        }
        if (token.kind != Kind::identifier || !suggestion.isAsked()) continue;
        std::string_view const word = suggestValue(property, token.text);
        bool const isValue = isSameWord(word, token.text);
        std::string meant = suggestion.worded(isValue ? std::string_view() : word);
        if (!meant.empty()) return meant;
    }
    return {};
}

void DeclarationParser::warnAboutUnknown(Token const& name) {
    IgnoredProperty const* const ignored = findIgnoredProperty(name.text);
    bool const isVariable = name.text.starts_with("--");
    if (ignored == nullptr && !isVariable) {
        warn(problems, name.offset,
             "unknown property " + quoted(name.source) +
                 suggestion(name.text, allProperties(), &Property::name));
        return;
    }
    if (ignored != nullptr && ignored->isAboutFonts) {
        if (aboutFonts) return;
        aboutFonts = problems.size();
    }
    bool const isAboutFonts = aboutFonts == problems.size();
    warn(problems, name.offset,
         quoted(name.source) + " has no effect" +
             (isAboutFonts ? ", nor has anything else about fonts and line heights" : ""));
}

}  // namespace galley::web

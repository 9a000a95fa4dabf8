#include "web/css/colours.h"

#include <algorithm>
#include <cmath>

#include "web/css/characters.h"
#include "web/css/colourNames.h"

namespace galley::web {

namespace {

using Kind = Token::Kind;

constexpr Colour s_transparent = {Colour::Kind::transparent};

/// A colour of which nothing shows, or else all.
Colour withOpacity(Colour colour, double opacity, Token const& first, ValueReader const& reader) {
    if (opacity == 0) return s_transparent;
    if (opacity < 1) reader.warnOfOpacity(first);
    return colour;
}

bool readHash(ValueReader& reader, Colour& colour) {
    Token const& token = reader.take();
    std::string_view const digits = token.text;
    bool const isShort = digits.length() == 3 || digits.length() == 4;
    if (!isShort && digits.length() != 6 && digits.length() != 8) return false;
    if (!std::all_of(digits.begin(), digits.end(), [](char c) { return hexDigit(c) >= 0; })) {
        return false;
    }
    auto const channel = [&](std::size_t i) {
        std::size_t const first = isShort ? i : 2 * i;
        std::size_t const second = isShort ? i : first + 1;
        return static_cast<std::uint8_t>(hexDigit(digits[first]) * 16 + hexDigit(digits[second]));
    };
    double const opacity = digits.length() % 4 == 0 ? channel(3) / 255.0 : 1;
    colour = withOpacity(Colour::rgb(channel(0), channel(1), channel(2)), opacity, token, reader);
    return true;
}

/// A number up to `whole`, or a percentage of that.
bool readAmount(ValueReader& reader, double whole, Kind& kind, double& amount) {
    if (reader.atEnd()) return false;
    Token const& token = reader.take();
    kind = token.kind;
    if (kind != Kind::number && kind != Kind::percentage) return false;
    double const value = kind == Kind::number ? token.number : token.number * whole / 100;
    amount = std::clamp(value, 0.0, whole);
    return true;
}

/// Between the parentheses: `r, g, b`, `r, g, b, a`, `r g b` or `r g b / a`.
bool readChannels(ValueReader& reader, Token const& function, Colour& colour) {
    std::uint8_t channels[3] = {};
    Kind firstKind = Kind::number;
    bool hasCommas = false;
    for (std::size_t i = 0; i < 3; ++i) {
        bool const isBehindComma = i > 0 && reader.take(Kind::comma);
        if (i == 1) hasCommas = isBehindComma;
        double amount = 0;
        Kind kind = Kind::number;
        if (!readAmount(reader, 255, kind, amount)) return false;
        if (i == 0) firstKind = kind;
        if ((i > 0 && isBehindComma != hasCommas) || kind != firstKind) return false;
        channels[i] = static_cast<std::uint8_t>(std::lround(amount));
    }
    double opacity = 1;
    Kind kind = Kind::number;
    bool const hasOpacity = hasCommas ? reader.take(Kind::comma) : reader.takeDelimiter('/');
    if (hasOpacity && !readAmount(reader, 1, kind, opacity)) return false;
    if (!reader.atEnd() && !reader.take(Kind::closeParenthesis)) return false;
    colour =
        withOpacity(Colour::rgb(channels[0], channels[1], channels[2]), opacity, function, reader);
    return true;
}

}  // namespace

bool readColour(ValueReader& reader, Colour& colour) {
    if (readKeyword<s_colourNames>(reader, colour)) return true;
    if (reader.isNext(Kind::hash)) return readHash(reader, colour);
    if (!reader.isNext(Kind::function)) return false;
    Token const& function = reader.take();
    bool const isRgb = isSameWord(function.text, "rgb") || isSameWord(function.text, "rgba");
    return isRgb && readChannels(reader, function, colour);
}

}  // namespace galley::web

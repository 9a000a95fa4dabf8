#include "web/flow/transformText.h"

#include <utf8proc.h>

#include <algorithm>
#include <array>
#include <iterator>

#include "web/text/utf8.h"

namespace galley::web {

namespace {

bool isLetterOrNumber(std::int32_t c) {
    bool const isCircledLetter = c >= 0x24B6 && c <= 0x24E9;
    utf8proc_category_t const category = utf8proc_category(c);
    return (category >= UTF8PROC_CATEGORY_LU && category <= UTF8PROC_CATEGORY_LO) ||
           (category >= UTF8PROC_CATEGORY_ND && category <= UTF8PROC_CATEGORY_NO) ||
           isCircledLetter;
}

/// A mark, or what only formats: words go on behind it as they would without it.
bool isPassedOver(std::int32_t c) {
    constexpr std::int32_t zeroWidthSpace = 0x200B;
    utf8proc_category_t const category = utf8proc_category(c);
    return (category >= UTF8PROC_CATEGORY_MN && category <= UTF8PROC_CATEGORY_ME) ||
           (category == UTF8PROC_CATEGORY_CF && c != zeroWidthSpace);
}

/// Joins letters on both sides: the classes MidLetter, MidNumLet and Single_Quote of UAX #29 as
/// Chromium's data have them, which is without full stops and colons.
bool joinsLetters(std::int32_t c) {
    constexpr std::u32string_view s_joining =
        U"'\u00B7\u0387\u055F\u05F4\u2018\u2019\u2024\u2027\uFE13\uFE52\uFF07";
    return s_joining.find(static_cast<char32_t>(c)) != std::u32string_view::npos;
}

/// In a script without spaces between words: Thai and its neighbours, kana, ideographs. Words of
/// other letters end and begin beside it.
bool isWithoutSpaces(std::int32_t c) {
    struct Range {
        std::int32_t first;
        std::int32_t last;
    };
    constexpr Range s_ranges[] = {{0x0E00, 0x0EFF}, {0x1000, 0x109F},  {0x1780, 0x17FF},
                                  {0x3005, 0x3007}, {0x3021, 0x3029},  {0x3041, 0x30FF},
                                  {0x31F0, 0x31FF}, {0x3400, 0x9FFF},  {0xF900, 0xFAFF},
                                  {0xFF66, 0xFF9F}, {0x20000, 0x3FFFF}};
    return std::any_of(std::begin(s_ranges), std::end(s_ranges),
                       [c](Range const& range) { return c >= range.first && c <= range.last; });
}

bool isWithinWord(std::int32_t c) {
    if (isWithoutSpaces(c)) return false;
    return isLetterOrNumber(c) || utf8proc_category(c) == UTF8PROC_CATEGORY_PC;
}

/// Finds the beginnings of words, one character after the other.
class Words {
public:
    explicit Words(char32_t before) { take(static_cast<std::int32_t>(before)); }

    /// Whether a word begins with a character.
    bool take(std::int32_t c) {
        if (isPassedOver(c)) return false;
        State const before = state;
        if (isWithinWord(c)) {
            state = State::inside;
        } else {
            bool const joins = before == State::inside && joinsLetters(c);
            state = joins ? State::joining : State::outside;
        }
        return state == State::inside && before == State::outside;
    }

private:
    enum class State { outside, inside, joining };

    State state = State::outside;
};

struct FullMapping {
    std::int32_t from;
    std::array<std::int32_t, 3> to;
};

/// Of characters that become several; 0 where there are no more.
constexpr FullMapping s_uppercase[] = {
#include "web/flow/uppercase.inc"
};

void append(std::string& out, std::int32_t c) {
    std::array<std::uint8_t, 4> encoded = {};
    auto const length = utf8proc_encode_char(c, encoded.data());
    out.append(encoded.begin(), encoded.begin() + length);
}

/// As Chromium does it: Georgian, whose capitals few fonts have, stays small or becomes so.
void appendUppercase(std::string& out, std::int32_t c) {
    constexpr std::int32_t s_georgian = 0x10D0;
    constexpr std::int32_t s_georgianEnd = 0x1100;
    constexpr std::int32_t s_georgianCapital = 0x1C90;
    constexpr std::int32_t s_georgianCapitalEnd = 0x1CC0;
    if (c >= s_georgian && c < s_georgianEnd) return append(out, c);
    if (c >= s_georgianCapital && c < s_georgianCapitalEnd) {
        return append(out, c - s_georgianCapital + s_georgian);
    }
    auto const* const full = std::ranges::lower_bound(s_uppercase, c, {}, &FullMapping::from);
    if (full == std::end(s_uppercase) || full->from != c) return append(out, utf8proc_toupper(c));
    for (std::int32_t const each : full->to) {
        if (each != 0) append(out, each);
    }
}

void appendTitlecase(std::string& out, std::int32_t c) {
    // utf8proc has the capital one, which Unicode's mappings do not lead to.
    constexpr std::int32_t s_sharpS = 0xDF;
    // Chromium capitalizes no letter of a supplementary plane.
    constexpr std::int32_t s_lastCapitalized = 0xFFFF;
    bool const isKept = c == s_sharpS || c > s_lastCapitalized;
    append(out, isKept ? c : utf8proc_totitle(c));
}

/// Neither has a case nor parts words, in the sense of Unicode's Final_Sigma.
bool isCaseIgnorable(std::int32_t c) {
    constexpr std::u32string_view s_joining = U".:^`\u00A8\u00AF\u00B4\u00B8";
    utf8proc_category_t const category = utf8proc_category(c);
    return isPassedOver(c) || joinsLetters(c) || category == UTF8PROC_CATEGORY_LM ||
           category == UTF8PROC_CATEGORY_SK ||
           s_joining.find(static_cast<char32_t>(c)) != std::u32string_view::npos;
}

bool isCased(std::int32_t c) {
    utf8proc_category_t const category = utf8proc_category(c);
    return (category >= UTF8PROC_CATEGORY_LU && category <= UTF8PROC_CATEGORY_LT) ||
           utf8proc_tolower(c) != c || utf8proc_toupper(c) != c;
}

/// Whether the next character that has a case or parts words has a case.
bool beginsCased(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        CodePoint const next = decodeAt(text, at);
        auto const c = static_cast<std::int32_t>(next.value);
        if (!isCaseIgnorable(c)) return isCased(c);
        at += next.length;
    }
    return false;
}

class LowercaseWriter {
public:
    explicit LowercaseWriter(std::string& target) : out(target) {}

    /// `behind` is the text that follows the character.
    void add(std::int32_t c, std::string_view behind) {
        constexpr std::int32_t s_capitalSigma = 0x3A3;
        constexpr std::int32_t s_finalSigma = 0x3C2;
        constexpr std::int32_t s_capitalDottedI = 0x130;
        if (c == s_capitalSigma && isBehindCased && !beginsCased(behind)) {
            append(out, s_finalSigma);
        } else if (c == s_capitalDottedI) {
            out += "i\u0307";
        } else {
            append(out, utf8proc_tolower(c));
        }
        if (!isCaseIgnorable(c)) isBehindCased = isCased(c);
    }

private:
    std::string& out;
    bool isBehindCased = false;
};

}  // namespace

void transformText(std::string& out, std::string_view text, TextTransform transform,
                   char32_t before) {
    out.clear();
    Words words(before);
    LowercaseWriter lowercase(out);
    for (std::size_t at = 0; at < text.size();) {
        CodePoint const decoded = decodeAt(text, at);
        std::string_view const bytes = text.substr(at, decoded.length);
        at += decoded.length;
        auto const c = static_cast<std::int32_t>(decoded.value);
        bool const isCapitalized =
            transform == TextTransform::capitalize && decoded.isWellFormed && words.take(c);
        if (isCapitalized) {
            appendTitlecase(out, c);
        } else if (!decoded.isWellFormed || transform == TextTransform::capitalize) {
            out += bytes;
        } else if (transform == TextTransform::uppercase) {
            appendUppercase(out, c);
        } else {
            lowercase.add(c, text.substr(at));
        }
    }
}

}  // namespace galley::web

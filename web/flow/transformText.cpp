#include "web/flow/transformText.h"

#include <utf8proc.h>

#include <algorithm>
#include <array>
#include <iterator>

#include "web/text/utf8.h"

namespace galley::web {

namespace {

bool isLetterOrNumber(std::int32_t c) {
    utf8proc_category_t const category = utf8proc_category(c);
    return (category >= UTF8PROC_CATEGORY_LU && category <= UTF8PROC_CATEGORY_LO) ||
           (category >= UTF8PROC_CATEGORY_ND && category <= UTF8PROC_CATEGORY_NO);
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

}  // namespace

void transformText(std::string& out, std::string_view text, TextTransform transform,
                   char32_t before) {
    out.clear();
    Words words(before);
    for (std::size_t at = 0; at < text.size();) {
        CodePoint const decoded = decodeAt(text, at);
        std::string_view const bytes = text.substr(at, decoded.length);
        at += decoded.length;
        auto const c = static_cast<std::int32_t>(decoded.value);
        std::int32_t mapped = c;
        if (transform == TextTransform::uppercase) {
            mapped = utf8proc_toupper(c);
        } else if (transform == TextTransform::lowercase) {
            mapped = utf8proc_tolower(c);
        } else if (words.take(c)) {
            mapped = utf8proc_totitle(c);
        }
        if (mapped == c) {
            out += bytes;
        } else {
            std::array<std::uint8_t, 4> encoded = {};
            auto const length = utf8proc_encode_char(mapped, encoded.data());
            out.append(encoded.begin(), encoded.begin() + length);
        }
    }
}

}  // namespace galley::web

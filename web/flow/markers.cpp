#include "web/flow/markers.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace galley::web {

namespace {

/// With zeros before it up to so many characters, of which a minus sign is one.
std::string decimal(int number, std::size_t digits = 1) {
    std::string text = std::to_string(number);
    if (text.size() < digits) text.insert(0, digits - text.size(), '0');
    return text;
}

/// Counts as columns of a sheet are counted: a to z, aa, ab. Without a form for 0 and below.
std::string alphabetic(int number, std::string_view first, int letters, int bytes) {
    std::string text;
    for (; number > 0; number = (number - 1) / letters) {
        int const letter = (number - 1) % letters;
        std::string_view const known =
            first.substr(static_cast<std::size_t>(letter) * static_cast<std::size_t>(bytes),
                         static_cast<std::size_t>(bytes));
        text.insert(0, known);
    }
    return text;
}

/// From 1 to 3999.
std::string roman(int number) {
    struct Part {
        int value;
        char const* letters;
    };
    constexpr std::array<Part, 13> s_parts = {{{1000, "M"},
                                               {900, "CM"},
                                               {500, "D"},
                                               {400, "CD"},
                                               {100, "C"},
                                               {90, "XC"},
                                               {50, "L"},
                                               {40, "XL"},
                                               {10, "X"},
                                               {9, "IX"},
                                               {5, "V"},
                                               {4, "IV"},
                                               {1, "I"}}};
    std::string text;
    if (number > 3999) return text;
    for (auto const& [value, letters] : s_parts) {
        for (; number >= value; number -= value) text += letters;
    }
    return text;
}

std::string lowered(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return static_cast<char>(c - 'A' + 'a'); });
    return text;
}

std::string numeral(MarkerKind kind, int number) {
    switch (kind) {
        case MarkerKind::decimalLeadingZero:
            return decimal(number, 2);
        case MarkerKind::lowerAlpha:
            return alphabetic(number, "abcdefghijklmnopqrstuvwxyz", 26, 1);
        case MarkerKind::upperAlpha:
            return alphabetic(number, "ABCDEFGHIJKLMNOPQRSTUVWXYZ", 26, 1);
        case MarkerKind::lowerRoman:
            return lowered(roman(number));
        case MarkerKind::upperRoman:
            return roman(number);
        case MarkerKind::lowerGreek:
            return alphabetic(number, "αβγδεζηθικλμνξοπρστυφχψω", 24, 2);
        default:
            return decimal(number);
    }
}

}  // namespace

std::string markerText(Marker const& marker, int number) {
    switch (marker.kind) {
        case MarkerKind::none:
            return {};
        case MarkerKind::disc:
            return "• ";
        case MarkerKind::circle:
            return "◦ ";
        case MarkerKind::square:
            return "▪ ";
        case MarkerKind::text:
            return marker.text;
        default:
            break;
    }
    std::string text = numeral(marker.kind, number);
    if (text.empty()) text = decimal(number);
    return text + ". ";
}

}  // namespace galley::web

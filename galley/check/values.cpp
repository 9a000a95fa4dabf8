#include "galley/check/values.h"

#include <algorithm>
#include <iterator>

#include "galley/check/wording.h"
#include "web/suggest.h"
#include "xml/dom/vocabulary.h"
#include "xml/render/keywords.h"

namespace galley {

namespace {

using CLI::XML::ColorName;
using CLI::XML::DisplayKeyword;
using CLI::XML::FontStyle;

constexpr std::string_view s_whitespace = " \t\n\v\f\r";
constexpr std::string_view s_digits = "0123456789";

/// Asks for the terminal's own colour, as any value does that is none.
constexpr std::string_view s_ownColor = "default";

/// Where CSS has a kind of border, a text is drawn.
constexpr std::string_view s_kindsOfBorder[] = {"solid",  "dashed", "dotted", "double", "groove",
                                                "hidden", "inset",  "none",   "outset", "ridge"};

std::string aboutCells(std::string_view value) {
    std::size_t const first = std::min(value.find_first_not_of(s_whitespace), value.length());
    bool const isSigned = first < value.length() && (value[first] == '-' || value[first] == '+');
    std::size_t const digits = first + (isSigned ? 1 : 0);
    std::size_t const end = std::min(value.find_first_not_of(s_digits, digits), value.length());
    if (end == digits) return quoted(value) + " is no number and counts as 0";
    std::string_view const rest = value.substr(end);
    if (rest.find_first_not_of(s_whitespace) == std::string_view::npos) return {};
    return quoted(value) + " counts as " + std::string(value.substr(first, end - first)) + "; " +
           quoted(rest) + " is ignored";
}

/// The value is none of the names in `table`. An empty one takes back what the rule says.
template <class Table, class NameOf>
std::string aboutName(std::string_view value, Table const& table, NameOf const& nameOf,
                      std::string_view complaint, std::string_view effect) {
    auto const isValue = [&](auto const& entry) { return std::invoke(nameOf, entry) == value; };
    if (value.empty() || std::any_of(std::begin(table), std::end(table), isValue)) return {};
    return quoted(value).append(complaint) + didYouMean(web::suggest(value, table, nameOf), effect);
}

std::string aboutColor(std::string_view value) {
    if (value == s_ownColor) return {};
    return aboutName(value, CLI::XML::s_colorNames, &ColorName::name, " is no colour",
                     "; 'default' is the terminal's own");
}

std::string aboutText(std::string_view value) {
    auto const* const found =
        std::find(std::begin(s_kindsOfBorder), std::end(s_kindsOfBorder), value);
    if (found == std::end(s_kindsOfBorder)) return {};
    return quoted(value) + " is the text to draw, no kind of border";
}

}  // namespace

std::string warningAbout(Value kind, std::string_view value) {
    switch (kind) {
        case Value::Cells:
            return aboutCells(value);
        case Value::Color:
            return aboutColor(value);
        case Value::FontStyle:
            return aboutName(value, CLI::XML::s_fontStyles, &FontStyle::value, " is no font style",
                             " and counts as 'normal'");
        case Value::Text:
            return aboutText(value);
        case Value::Display:
            return aboutName(value, CLI::XML::s_displayKeywords, &DisplayKeyword::keyword,
                             " is no kind of display", " and has no effect");
    }
    return {};
}

}  // namespace galley

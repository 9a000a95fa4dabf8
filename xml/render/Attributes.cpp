#include <charconv>
#include <iterator>

#include "xml/render/Canvas.h"

namespace CLI::XML {

namespace {

struct ColorName {
    std::string_view name;
    std::uint8_t number;
};

/// The colours of SGR 30 to 37, by the names that style sheets use for them.
constexpr ColorName s_colorNames[] = {
    {"black", 0}, {"red", 1},      {"green", 2}, {"yellow", 3},
    {"blue", 4},  {"mangenta", 5}, {"cyan", 6},  {"white", 7},
};

struct FlagEscape {
    std::uint8_t flag;
    char const* escape;
};

/// SGR parameters of ECMA-48, 8.3.117.
constexpr FlagEscape s_flagEscapes[] = {
    {Canvas::Attributes::Bold, "\x1b[1m"},   {Canvas::Attributes::Faint, "\x1b[2m"},
    {Canvas::Attributes::Italic, "\x1b[3m"}, {Canvas::Attributes::Underline, "\x1b[4m"},
    {Canvas::Attributes::Blink, "\x1b[5m"},  {Canvas::Attributes::Inverse, "\x1b[7m"},
    {Canvas::Attributes::Hidden, "\x1b[8m"},
};

void appendColor(String& escape, char const* prefix, std::uint8_t color) {
    char digits[4] = {};
    char* const end = std::to_chars(std::begin(digits), std::end(digits) - 1, color).ptr;
    *end = 'm';
    escape += prefix;
    escape.concat(digits, static_cast<int>(end + 1 - digits));
}

}  // namespace

std::uint8_t Canvas::Attributes::color(String const& name) {
    for (ColorName const& candidate : s_colorNames) {
        if (name.view() == candidate.name) return candidate.number;
    }
    return NoColor;
}

String Canvas::Attributes::generateFormattingFrom(Attributes const& previous) const {
    String result;
    if (*this == previous) return result;
    result += "\x1b[0m";
    for (FlagEscape const& candidate : s_flagEscapes) {
        if ((flags & candidate.flag) != 0) result += candidate.escape;
    }
    if (foreground != NoColor) appendColor(result, "\x1b[3", foreground);
    if (background != NoColor) appendColor(result, "\x1b[4", background);
    return result;
}

}  // namespace CLI::XML

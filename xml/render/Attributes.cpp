#include <algorithm>
#include <charconv>
#include <iterator>

#include "xml/render/Canvas.h"
#include "xml/render/colorNames.h"

namespace CLI::XML {

namespace {

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

/// Collects escape sequences, as many as one attribute value has.
class EscapeText {
public:
    void add(std::string_view escape) { end = std::copy(escape.begin(), escape.end(), end); }
    void addColor(std::string_view prefix, std::uint8_t color) {
        add(prefix);
        end = std::to_chars(end, std::end(text), color).ptr;
        add("m");
    }
    String toString() const { return String(text, 0, static_cast<int>(end - text)); }

private:
    /// "ESC[0m", as long as that of a flag, and "ESC[3254m".
    static constexpr std::size_t s_short = 4;
    static constexpr std::size_t s_color = 7;

    char text[(1 + std::size(s_flagEscapes)) * s_short + 2 * s_color] = {};
    char* end = text;
};

}  // namespace

std::uint8_t Canvas::Attributes::color(String const& name) {
    for (ColorName const& candidate : s_colorNames) {
        if (name.view() == candidate.name) return candidate.number;
    }
    return NoColor;
}

String Canvas::Attributes::generateFormattingFrom(Attributes const& previous) const {
    if (*this == previous) return {};
    EscapeText escapes;
    escapes.add("\x1b[0m");
    for (FlagEscape const& candidate : s_flagEscapes) {
        if ((flags & candidate.flag) != 0) escapes.add(candidate.escape);
    }
    if (foreground != NoColor) escapes.addColor("\x1b[3", foreground);
    if (background != NoColor) escapes.addColor("\x1b[4", background);
    return escapes.toString();
}

}  // namespace CLI::XML

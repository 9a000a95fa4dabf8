#include "galley/formats/style.h"

namespace galley {

namespace {

struct AttributeCss {
    Look::Attribute attribute;
    char const* css;
};
constexpr AttributeCss s_attributes[] = {
    {Look::Bold, "font-weight:bold;"},
    {Look::Italic, "font-style:italic;"},
    {Look::Underline, "text-decoration:underline;"},
    {Look::Blink, "animation:galley-blink 1s step-end infinite;"},
};

}  // namespace

std::string attributeCss(Look const& look) {
    std::string css;
    for (auto const& [attribute, declaration] : s_attributes) {
        if (look.has(attribute)) css += declaration;
    }
    return css;
}

std::string_view blinkRule(std::string_view page) {
    bool const blinks = page.find("\x1b[5m") != std::string_view::npos;
    return blinks ? "@keyframes galley-blink{50%{color:transparent;fill:transparent}}\n" : "";
}

}  // namespace galley

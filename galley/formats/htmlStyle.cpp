#include "galley/formats/htmlStyle.h"

#include <set>
#include <tuple>

#include "base/append.h"
#include "galley/formats/palette.h"
#include "galley/formats/style.h"

namespace galley {

using CLI::XML::append;

namespace {

/// A row is 18 pixels high where text is 16.
constexpr char const* s_pageCss =
    "{padding:1em;overflow:auto;font-size:.9375em;line-height:1.2;font-family:";
/// The window scrolls where a row is longer, not the element.
constexpr char const* s_documentRules = "body{margin:0;min-width:max-content;}\npre{margin:0;}\n";

struct LookOrder {
    bool operator()(Look const& left, Look const& right) const {
        return std::tie(left.attributes, left.foreground, left.background) <
               std::tie(right.attributes, right.foreground, right.background);
    }
};
using Looks = std::set<Look, LookOrder>;

/// All of the page but that without attributes and colours.
Looks looksOf(std::string_view page) {
    Looks looks;
    AnsiReader reader(page);
    Look last;
    for (AnsiReader::Run run; reader.next(run);) {
        if (run.text.empty() || run.look == last) continue;
        looks.insert(run.look);
        last = run.look;
    }
    looks.erase(Look());
    return looks;
}

bool hasGround(Look const& look) {
    return look.background != Look::s_noColor || look.has(Look::Inverse);
}

bool hasTextColor(Look const& look) {
    return look.foreground != Look::s_noColor || look.has(Look::Inverse) || look.has(Look::Faint) ||
           look.has(Look::Hidden);
}

/// A ground is as high as its row, so that it touches those above and below.
std::string shapeCss(Look const& look) {
    return attributeCss(look) + (hasGround(look) ? "display:inline-block;vertical-align:top;" : "");
}

/// What differs from the element around the text; the same declarations in all themes.
std::string colorCss(Look const& look, Theme theme) {
    auto const [text, ground] = cellColors(look, theme);
    return (hasTextColor(look) ? "color:" + text + ";" : "") +
           (hasGround(look) ? "background:" + ground + ";" : "");
}

std::string pageCss(Theme theme) {
    auto const [text, ground] = cellColors({}, theme);
    std::string_view const scheme = theme == Theme::light ? "light" : "dark";
    return "color:" + text + ";background:" + ground + ";color-scheme:" + std::string(scheme) + ";";
}

}  // namespace

std::string_view pageClass(Theme theme) {
    return theme == Theme::automatic ? "galley"
           : theme == Theme::light   ? "galley-light"
                                     : "galley-dark";
}

std::string lookClass(Look const& look) {
    std::string name;
    auto const add = [&](unsigned number) {
        name += (name.empty() ? "g" : "-") + std::to_string(number);
    };
    for (unsigned number = Look::Bold; number <= Look::Hidden; ++number) {
        if (look.has(static_cast<Look::Attribute>(number))) add(number);
    }
    if (look.foreground != Look::s_noColor) add(30 + look.foreground);
    if (look.background != Look::s_noColor) add(40 + look.background);
    return name;
}

void appendRules(String& css, std::string_view page, HtmlOptions const& options) {
    Looks const looks = looksOf(page);
    std::string const scope = "." + std::string(pageClass(options.theme));
    std::string const pages = (options.isDocument ? "html," : "") + scope;
    auto const appendRule = [&](Look const& look, std::string const& declarations) {
        if (declarations.empty()) return;
        append(css, scope, " .", lookClass(look), "{", declarations, "}\n");
    };
    bool const isAutomatic = options.theme == Theme::automatic;
    Theme const theme = isAutomatic ? Theme::light : options.theme;
    append(css, options.isDocument ? s_documentRules : "", scope, s_pageCss, s_fontFamily, "}\n",
           pages, "{", pageCss(theme), "}\n", blinkRule(page));
    for (Look const& look : looks) appendRule(look, shapeCss(look) + colorCss(look, theme));
    if (!isAutomatic) return;
    append(css, "@media (prefers-color-scheme:dark){\n", pages, "{", pageCss(Theme::dark), "}\n");
    for (Look const& look : looks) appendRule(look, colorCss(look, Theme::dark));
    append(css, "}\n");
}

}  // namespace galley

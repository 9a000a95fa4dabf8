#include "galley/formats/HtmlStyle.h"

#include <algorithm>
#include <tuple>

#include "base/append.h"
#include "galley/formats/palette.h"
#include "galley/formats/style.h"
#include "galley/terminal/sgr.h"

namespace galley {

using CLI::XML::append;
using web::Colour;
using web::Look;

namespace {

/// A row is 18 pixels high where text is 16.
constexpr char const* s_pageCss =
    "{padding:1em;overflow:auto;font-size:.9375em;line-height:1.2;font-family:";
/// The window scrolls where a row is longer, not the element.
constexpr char const* s_documentRules = "body{margin:0;min-width:max-content;}\npre{margin:0;}\n";
/// A link looks as its page says.
constexpr char const* s_linkCss = " a{color:inherit;text-decoration:none;}\n";

constexpr std::string_view s_wideClass = "gw";
/// Lines that decorate a text pass boxes by.
constexpr char const* s_wideCss = "{display:inline-block;width:2ch;text-decoration:inherit;}\n";

bool hasGround(Look const& look) {
    return look.background.kind != Colour::Kind::terminal || look.isInverse;
}

bool hasTextColour(Look const& look) {
    return look.text.kind != Colour::Kind::terminal || look.isInverse || look.isFaint ||
           look.isHidden;
}

/// A ground is as high as its row, so that it touches those above and below.
std::string shapeCss(Look const& look) {
    return attributeCss(look) + (hasGround(look) ? "display:inline-block;vertical-align:top;" : "");
}

/// What differs from the element around the text; the same declarations in all themes.
std::string colourCss(Look const& look, Theme theme) {
    auto const [text, ground] = cellColors(look, theme);
    return (hasTextColour(look) ? "color:" + text + ";" : "") +
           (hasGround(look) ? "background:" + ground + ";" : "");
}

std::string pageCss(Theme theme) {
    auto const [text, ground] = cellColors({}, theme);
    std::string_view const scheme = theme == Theme::light ? "light" : "dark";
    return "color:" + text + ";background:" + ground + ";color-scheme:" + std::string(scheme) + ";";
}

std::string className(Look const& look) {
    std::string name = sgrParameters(look, ColourDepth::exact);
    std::replace(name.begin(), name.end(), ';', '-');
    return name.empty() ? name : "g" + name;
}

/// Bit n is the attribute with the code n.
unsigned attributesOf(Look const& look) {
    unsigned bits = 0;
    for (auto const& [code, isSet] : s_attributes) bits |= (look.*isSet ? 1U : 0U) << code;
    return bits;
}

/// Those of 24 bits come behind the terminal's own.
unsigned rank(Colour colour) {
    constexpr unsigned s_noColour = 16;
    if (colour.kind == Colour::Kind::palette) return colour.red;
    if (colour.kind != Colour::Kind::rgb) return s_noColour;
    return 1U << 24 | unsigned{colour.red} << 16 | unsigned{colour.green} << 8 | colour.blue;
}

}  // namespace

bool HtmlStyle::Order::operator()(Look const& left, Look const& right) const {
    auto const key = [](Look const& look) {
        return std::tuple(attributesOf(look), rank(look.text), rank(look.background));
    };
    return key(left) < key(right);
}

std::string_view HtmlStyle::pageClass() const {
    return theme == Theme::automatic ? "galley"
           : theme == Theme::light   ? "galley-light"
                                     : "galley-dark";
}

std::string HtmlStyle::use(Look const& look) {
    if (look.link != nullptr) isAnythingLinked = true;
    std::string name = className(look);
    if (!name.empty()) looks.insert(look);
    return name;
}

std::string_view HtmlStyle::useWide() {
    isAnythingWide = true;
    return s_wideClass;
}

void HtmlStyle::appendLooks(String& css, Theme shown, bool withShapes) const {
    for (Look const& look : looks) {
        std::string const declarations =
            (withShapes ? shapeCss(look) : "") + colourCss(look, shown);
        if (declarations.empty()) continue;
        append(css, ".", pageClass(), " .", className(look), "{", declarations, "}\n");
    }
}

void HtmlStyle::appendRules(String& css, bool isDocument) const {
    std::string const scope = "." + std::string(pageClass());
    std::string const pages = (isDocument ? "html," : "") + scope;
    bool const isAutomatic = theme == Theme::automatic;
    Theme const first = isAutomatic ? Theme::light : theme;
    bool const blinks =
        std::any_of(looks.begin(), looks.end(), [](Look const& look) { return look.isBlinking; });
    append(css, isDocument ? s_documentRules : "", scope, s_pageCss, s_fontFamily, "}\n", pages,
           "{", pageCss(first), "}\n", blinks ? s_blinkRule : "");
    if (isAnythingLinked) append(css, scope, s_linkCss);
    if (isAnythingWide) append(css, scope, " .", s_wideClass, s_wideCss);
    appendLooks(css, first, true);
    if (!isAutomatic) return;
    append(css, "@media (prefers-color-scheme:dark){\n", pages, "{", pageCss(Theme::dark), "}\n");
    appendLooks(css, Theme::dark, false);
    append(css, "}\n");
}

}  // namespace galley

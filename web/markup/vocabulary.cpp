#include "web/markup/vocabulary.h"

#include <algorithm>
#include <iterator>

namespace galley::web {

namespace {

constexpr ElementType s_vocabulary[] = {
    {"a", Display::inlined},         {"abbr", Display::inlined},
    {"address", Display::block},     {"article", Display::block},
    {"aside", Display::block},       {"b", Display::inlined},
    {"blockquote", Display::block},  {"body", Display::block},
    {"br", Display::inlined},        {"caption", Display::caption},
    {"cite", Display::inlined},      {"code", Display::inlined},
    {"col", Display::column},        {"colgroup", Display::columnGroup},
    {"dd", Display::block},          {"del", Display::inlined},
    {"dfn", Display::inlined},       {"div", Display::block},
    {"dl", Display::block},          {"dt", Display::block},
    {"em", Display::inlined},        {"figcaption", Display::block},
    {"figure", Display::block},      {"footer", Display::block},
    {"h1", Display::block},          {"h2", Display::block},
    {"h3", Display::block},          {"h4", Display::block},
    {"h5", Display::block},          {"h6", Display::block},
    {"head", Display::none},         {"header", Display::block},
    {"hr", Display::block},          {"html", Display::block},
    {"i", Display::inlined},         {"img", Display::inlined},
    {"ins", Display::inlined},       {"kbd", Display::inlined},
    {"li", Display::listItem},       {"main", Display::block},
    {"mark", Display::inlined},      {"nav", Display::block},
    {"ol", Display::block},          {"p", Display::block},
    {"pre", Display::block},         {"q", Display::inlined},
    {"s", Display::inlined},         {"samp", Display::inlined},
    {"script", Display::none},       {"section", Display::block},
    {"small", Display::inlined},     {"span", Display::inlined},
    {"strong", Display::inlined},    {"style", Display::none},
    {"sub", Display::inlined},       {"sup", Display::inlined},
    {"table", Display::table},       {"tbody", Display::rowGroup},
    {"td", Display::cell},           {"template", Display::none},
    {"tfoot", Display::footerGroup}, {"th", Display::cell},
    {"thead", Display::headerGroup}, {"tr", Display::row},
    {"u", Display::inlined},         {"ul", Display::block},
    {"var", Display::inlined},       {"wbr", Display::inlined},
};
static_assert(std::ranges::is_sorted(s_vocabulary, {}, &ElementType::name));

/// Those of HTML, where they are written without an end tag.
constexpr std::string_view s_voidElements[] = {"area",  "base",   "br",    "col",  "embed",
                                               "hr",    "img",    "input", "link", "meta",
                                               "param", "source", "track", "wbr"};

}  // namespace

std::span<ElementType const> vocabulary() { return s_vocabulary; }

ElementType const* findElementType(std::string_view name) {
    auto const* const found = std::ranges::lower_bound(s_vocabulary, name, {}, &ElementType::name);
    return found == std::end(s_vocabulary) || found->name != name ? nullptr : found;
}

bool isVoid(std::string_view name) {
    return std::ranges::find(s_voidElements, name) != std::end(s_voidElements);
}

}  // namespace galley::web

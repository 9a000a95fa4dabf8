#include "web/markup/vocabulary.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace galley::web {

namespace {

constexpr ElementType s_vocabulary[] = {
    {"a", Display::inlined},
    {"abbr", Display::inlined},
    {"address", Display::block},
    {"article", Display::block},
    {"aside", Display::block},
    {"b", Display::inlined},
    {"blockquote", Display::block},
    {"body", Display::block},
    {"br", Display::inlined},
    {"caption", Display::caption},
    {"cite", Display::inlined},
    {"code", Display::inlined},
    {"col", Display::column},
    {"colgroup", Display::columnGroup},
    {"dd", Display::block},
    {"del", Display::inlined},
    {"dfn", Display::inlined},
    {"div", Display::block},
    {"dl", Display::block},
    {"dt", Display::block},
    {"em", Display::inlined},
    {"figcaption", Display::block},
    {"figure", Display::block},
    {"footer", Display::block},
    {"h1", Display::block},
    {"h2", Display::block},
    {"h3", Display::block},
    {"h4", Display::block},
    {"h5", Display::block},
    {"h6", Display::block},
    {"head", Display::none},
    {"header", Display::block},
    {"hr", Display::block},
    {"html", Display::block},
    {"i", Display::inlined},
    {"img", Display::inlined},
    {"ins", Display::inlined},
    {"kbd", Display::inlined},
    {"li", Display::listItem},
    {"main", Display::block},
    {"mark", Display::inlined},
    {"nav", Display::block},
    {"ol", Display::block},
    {"p", Display::block},
    {"pre", Display::block},
    {"q", Display::inlined},
    {"s", Display::inlined},
    {"samp", Display::inlined},
    {"script", Display::none},
    {"section", Display::block},
    {"small", Display::inlined},
    {"span", Display::inlined},
    {"strong", Display::inlined},
    {"style", Display::none},
    {"sub", Display::inlined},
    {"sup", Display::inlined},
    {"table", Display::table},
    {"tbody", Display::rowGroup},
    {"td", Display::cell},
    {"template", Display::none},
    {"tfoot", Display::footerGroup},
    {"th", Display::cell},
    {"thead", Display::headerGroup},
    {"time", Display::inlined},
    {"tr", Display::row},
    {"u", Display::inlined},
    {"ul", Display::block},
    {"var", Display::inlined},
    {"wbr", Display::inlined},
};
static_assert(std::ranges::is_sorted(s_vocabulary, {}, &ElementType::name));

/// Rows of the table.
struct RowRange {
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// Those of the names that begin with a letter, from a to z.
constexpr auto s_byLetter = [] {
    std::array<RowRange, 26> ranges = {};
    for (std::size_t i = 0; i < std::size(s_vocabulary); ++i) {
        RowRange& range = ranges[static_cast<std::size_t>(s_vocabulary[i].name.front() - 'a')];
        if (range.end == 0) range.begin = i;
        range.end = i + 1;
    }
    return ranges;
}();

/// Those of HTML that are none of ours, old ones too.
constexpr std::string_view s_ofHtmlOnly[] = {
    "acronym",  "area",   "audio",    "base",     "bdi",      "bdo",    "big",     "button",
    "canvas",   "center", "data",     "datalist", "details",  "dialog", "dir",     "embed",
    "fieldset", "font",   "form",     "frame",    "frameset", "hgroup", "iframe",  "input",
    "label",    "legend", "link",     "map",      "math",     "menu",   "meta",    "meter",
    "noscript", "object", "optgroup", "option",   "output",   "param",  "picture", "progress",
    "rp",       "rt",     "ruby",     "search",   "select",   "slot",   "source",  "strike",
    "summary",  "svg",    "textarea", "title",    "track",    "tt",     "video",
};
static_assert(std::ranges::is_sorted(s_ofHtmlOnly));

/// Those of HTML, where they are written without an end tag.
constexpr std::string_view s_voidElements[] = {"area",  "base",   "br",    "col",  "embed",
                                               "hr",    "img",    "input", "link", "meta",
                                               "param", "source", "track", "wbr"};

}  // namespace

std::span<ElementType const> vocabulary() { return s_vocabulary; }

ElementType const* findElementType(std::string_view name) {
    auto const first = static_cast<unsigned char>(name.front());
    if (first < 'a' || first > 'z') return nullptr;
    auto const [begin, end] = s_byLetter[first - 'a'];
    for (std::size_t i = begin; i < end; ++i) {
        if (s_vocabulary[i].name == name) return &s_vocabulary[i];
    }
    return nullptr;
}

bool isOfHtmlOnly(std::string_view name) { return std::ranges::binary_search(s_ofHtmlOnly, name); }

bool isVoid(std::string_view name) {
    return std::ranges::find(s_voidElements, name) != std::end(s_voidElements);
}

}  // namespace galley::web

#include "xml/reachesUp.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "xml/css/properties.h"
#include "xml/parser/scan.h"

namespace CLI::XML {

namespace {

/// Those that count for the position of what is below.
constexpr std::string_view s_edges[] = {
    Property::s_margin.name,         Property::s_marginTop.name,
    Property::s_marginBottom.name,   Property::s_borderWidth.name,
    Property::s_borderTopWidth.name, Property::s_borderBottomWidth.name,
    Property::s_padding.name,        Property::s_paddingTop.name,
    Property::s_paddingBottom.name,
};

bool isEdge(std::string_view property) {
    return std::find(std::begin(s_edges), std::end(s_edges), property) != std::end(s_edges);
}

/// Whether a number that is read from the value may be negative, since a reference may stand for
/// the sign, or so large that the place below it is cut off at the limit of geometry: what is drawn
/// above that place then comes to lie too high. A page has fewer than 268,435,456 rows.
bool mayReachUp(std::string_view value) {
    constexpr std::size_t s_digitsOfLarge = 9;
    return value.length() >= s_digitsOfLarge || value.find_first_of("-&") != std::string_view::npos;
}

/// The name of an attribute, or what stands there of a text, that ends before `end`.
std::string_view nameBefore(std::string_view markup, std::size_t end) {
    std::size_t start = end;
    while (start > 0 && !s_endOfName.contains(markup[start - 1])) --start;
    return markup.substr(start, end - start);
}

bool hasReachingEdge(std::string_view markup) {
    // Any quotation mark may begin a value, since some stand in texts and comments: the one that
    // ends a value is looked at again.
    for (std::size_t quote = markup.find('"'); quote != std::string_view::npos;) {
        std::size_t const end = markup.find('"', quote + 1);
        bool const beginsValue = quote > 0 && markup[quote - 1] == '=';
        // Few values may, and a name takes longer to find.
        if (beginsValue && mayReachUp(markup.substr(quote + 1, end - quote - 1)) &&
            isEdge(nameBefore(markup, quote - 1))) {
            return true;
        }
        quote = end;
    }
    return false;
}

bool hasReachingEdge(StyleNode const& rule) {
    auto const& head = rule.declarations.head;
    for (auto const* entry = head.prev; entry != &head; entry = entry->prev) {
        if (isEdge(entry->key.view()) && mayReachUp(entry->value.view())) return true;
    }
    return false;
}

}  // namespace

bool mayReachUp(String const& xml, StyleList const& styles) {
    for (ZRLWPtr<StyleNode> const& rule : styles) {
        if (hasReachingEdge(*rule)) return true;
    }
    return hasReachingEdge(xml.view());
}

}  // namespace CLI::XML

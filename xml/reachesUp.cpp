#include "xml/reachesUp.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "xml/css/properties.h"
#include "xml/parser/PullParser.h"
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

bool isKnownReference(std::string_view name) {
    EntityReplacement const* known = PullParser::s_specialReplacement;
    while (known->name != nullptr && known->name != name) ++known;
    return known->name != nullptr;
}

/// The characters of an attribute's value, decoded as far as a number needs it: an unknown
/// reference is nothing, any other one ends a number, as does the ampersand that it begins with.
class ValueReader {
public:
    explicit ValueReader(std::string_view value) : rest(value) { skipUnknownReferences(); }

    /// NUL at the end.
    char next() const { return rest.empty() ? '\0' : rest.front(); }
    void advance() {
        rest.remove_prefix(1);
        skipUnknownReferences();
    }

private:
    void skipUnknownReferences() {
        while (next() == '&') {
            std::size_t const semicolon = rest.find(';');
            if (semicolon == std::string_view::npos) return;
            if (isKnownReference(rest.substr(1, semicolon - 1))) return;
            rest.remove_prefix(semicolon + 1);
        }
    }

    std::string_view rest;
};

/// Whether `String::toInteger` makes a negative number of the value, whether that is decoded before
/// or not. Nothing is allocated, which might fail.
bool isNegative(std::string_view value) {
    ValueReader reader(value);
    while (reader.next() == ' ' || (reader.next() >= '\t' && reader.next() <= '\r')) {
        reader.advance();
    }
    if (reader.next() != '-') return false;
    do reader.advance();
    while (reader.next() == '0');
    return reader.next() >= '1' && reader.next() <= '9';
}

/// The name of an attribute, or what stands there of a text, that ends before `end`.
std::string_view nameBefore(std::string_view markup, std::size_t end) {
    std::size_t start = end;
    while (start > 0 && !s_endOfName.contains(markup[start - 1])) --start;
    return markup.substr(start, end - start);
}

bool hasNegativeEdge(std::string_view markup) {
    // Any quotation mark may begin a value, since some stand in texts and comments: the one that
    // ends a value is looked at again.
    for (std::size_t quote = markup.find('"'); quote != std::string_view::npos;) {
        std::size_t const end = markup.find('"', quote + 1);
        bool const beginsValue = quote > 0 && markup[quote - 1] == '=';
        // Few values are negative, and a name takes longer to find.
        if (beginsValue && isNegative(markup.substr(quote + 1, end - quote - 1)) &&
            isEdge(nameBefore(markup, quote - 1))) {
            return true;
        }
        quote = end;
    }
    return false;
}

bool hasNegativeEdge(StyleNode const& rule) {
    auto const& head = rule.declarations.head;
    for (auto const* entry = head.prev; entry != &head; entry = entry->prev) {
        if (isEdge(entry->key.view()) && isNegative(entry->value.view())) return true;
    }
    return false;
}

}  // namespace

bool mayReachUp(String const& xml, StyleList const& styles) {
    for (ZRLWPtr<StyleNode> const& rule : styles) {
        if (hasNegativeEdge(*rule)) return true;
    }
    return hasNegativeEdge(xml.view());
}

}  // namespace CLI::XML

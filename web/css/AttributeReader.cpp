#include "web/css/AttributeReader.h"

#include <algorithm>
#include <iterator>

#include "web/css/DeclarationParser.h"
#include "web/css/Tokenizer.h"

namespace galley::web {

namespace {

constexpr std::string_view s_allowed[] = {
    "class", "id",   "style", "hidden", "href", "colspan", "rowspan", "span",     "start",
    "value", "type", "dir",   "title",  "lang", "role",    "xmlns",   "xml:lang",
};

/// A browser shows nothing of these.
constexpr std::string_view s_unseen[] = {
    "abbr", "cite", "datetime", "headers", "hreflang", "name", "rel", "scope", "tabindex", "target",
};

/// Attributes of old HTML, and the properties that came in their place.
struct Replaced {
    std::string_view attribute;
    std::string_view property;
};

constexpr Replaced s_replaced[] = {
    {"align", "text-align"},    {"bgcolor", "background-color"},
    {"cellpadding", "padding"}, {"cellspacing", "border-spacing"},
    {"nowrap", "white-space"},  {"valign", "vertical-align"},
};

constexpr std::string_view s_allowedStarts[] = {"aria-", "data-"};

/// Elements of lists, of which `type` says how items are marked.
constexpr std::string_view s_lists[] = {"ol", "ul", "li"};

struct ListType {
    std::string_view type;
    std::string_view marker;
};

constexpr ListType s_listTypes[] = {
    {"1", "decimal"},     {"a", "lower-alpha"}, {"A", "upper-alpha"},
    {"i", "lower-roman"}, {"I", "upper-roman"}, {"disc", "disc"},
    {"circle", "circle"}, {"square", "square"}, {"none", "none"},
};

template <class Table>
bool contains(Table const& table, std::string_view word) {
    return std::find(std::begin(table), std::end(table), word) != std::end(table);
}

bool isAllowed(Element const& element, std::string_view name) {
    if (element.name == "img" && (name == "alt" || name == "src")) return true;
    return contains(s_allowed, name) || contains(s_unseen, name) ||
           std::any_of(std::begin(s_allowedStarts), std::end(s_allowedStarts),
                       [name](std::string_view start) { return name.starts_with(start); });
}

/// The attribute as one that has a property's name, if it hides the element, makes it a link or is
/// about the markers of a list.
Attribute asProperty(Element const& element, Attribute attribute) {
    if (attribute.name == "hidden") {
        attribute.name = "display";
        attribute.value = "none";
        return attribute;
    }
    if (element.name == "a" && attribute.name == "href") {
        attribute.name = "text-decoration";
        attribute.value = "underline";
        return attribute;
    }
    if (attribute.name != "type" || !contains(s_lists, element.name)) return attribute;
    auto const* const found =
        std::find_if(std::begin(s_listTypes), std::end(s_listTypes),
                     [&attribute](ListType const& row) { return row.type == attribute.value; });
    if (found == std::end(s_listTypes)) return attribute;
    attribute.name = "list-style-type";
    attribute.value = found->marker;
    return attribute;
}

}  // namespace

void AttributeReader::read(Element const& element, Found& found) {
    found.presentational.clear();
    found.style = nullptr;
    for (Attribute const& original : element.attributes) {
        if (original.name == "class") continue;
        if (original.name == "style") {
            found.style = &valueOf(original, nullptr).block;
            continue;
        }
        Attribute const attribute = asProperty(element, original);
        Property const* const property = findProperty(attribute.name);
        if (property != nullptr && property->name == attribute.name) {
            found.presentational.push_back(&valueOf(attribute, property).block.normal);
        } else if (!isAllowed(element, attribute.name)) {
            warn(problems, attribute.nameOffset,
                 "unknown attribute " + quoted(attribute.name) + nameMeant(attribute.name));
        } else if (attribute.name == "type" && contains(s_lists, element.name)) {
            warn(problems, attribute.valueOffset,
                 quoted(attribute.value) + " is no value of 'type'");
        }
    }
}

std::string AttributeReader::nameMeant(std::string_view name) {
    if (!suggester.isAsked()) return {};
    auto const* const old = std::ranges::find(s_replaced, name, &Replaced::attribute);
    if (old != std::end(s_replaced)) return suggester.worded(old->property);
    std::string_view const allowed = suggest(name, s_allowed, std::identity());
    return suggester.worded(allowed.empty() ? suggest(name, allProperties(), &Property::name)
                                            : allowed);
}

AttributeReader::Value const& AttributeReader::valueOf(Attribute const& attribute,
                                                       Property const* property) {
    key.assign(attribute.name).append(1, '\0').append(attribute.value);
    auto found = known.find(key);
    if (found == known.end()) found = known.emplace(key, parse(attribute.value, property)).first;
    report(found->second, attribute.valueOffset);
    return found->second;
}

AttributeReader::Value AttributeReader::parse(std::string_view text, Property const* property) {
    Value value;
    DeclarationParser parser(value.problems, suggester);
    Tokenizer tokenizer(text);
    std::vector<Token> const tokens = tokenizer.run();
    tokenizer.warnOfRest(value.problems);
    if (property == nullptr) {
        value.block = parser.parse(tokens);
    } else {
        parser.declare(value.block.normal, *property, trimmed(tokens));
    }
    value.fontProblem = parser.fontProblem();
    return value;
}

void AttributeReader::report(Value const& value, std::size_t offset) {
    for (std::size_t i = 0; i < value.problems.size(); ++i) {
        bool const isAboutFonts = value.fontProblem == i;
        if (isAboutFonts && hasWarnedOfFonts) continue;
        hasWarnedOfFonts |= isAboutFonts;
        Problem problem = value.problems[i];
        problem.offset += offset;
        tell(problems, std::move(problem));
    }
}

}  // namespace galley::web

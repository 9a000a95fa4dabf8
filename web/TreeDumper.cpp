#include "web/TreeDumper.h"

#include <algorithm>

#include "web/css/characters.h"
#include "web/css/describeStyle.h"
#include "web/text/visible.h"

namespace galley::web {

namespace {

/// With nothing in it that would not be seen.
std::string shown(std::string_view text) { return printable(visible(text)); }

/// With each run of white space as one blank, and none at the ends.
std::string collapsed(std::string_view text) {
    std::string words;
    for (char const c : text) {
        bool const isBlank = isWhitespace(c);
        if (isBlank && (words.empty() || words.back() == ' ')) continue;
        words += isBlank ? ' ' : c;
    }
    if (words.ends_with(' ')) words.pop_back();
    return shown(words);
}

/// As a selector has it.
std::string nameOf(Element const& element) {
    std::string name = shown(element.name);
    for (Attribute const& attribute : element.attributes) {
        if (attribute.name == "id") name.append("#").append(collapsed(attribute.value));
        if (attribute.name != "class") continue;
        std::string classes = collapsed(attribute.value);
        std::replace(classes.begin(), classes.end(), ' ', '.');
        if (!classes.empty()) name.append(".").append(classes);
    }
    return name;
}

}  // namespace

void TreeDumper::startElement(Element& element) {
    builder.startElement(element);
    openImplied(element.parent);
    write(element);
}

void TreeDumper::text(std::string_view decoded) {
    builder.text(decoded);
    std::string const words = collapsed(decoded);
    if (words.empty()) return;
    if (open.empty()) openImplied(builder.implied());
    out.append(indent()).append("\"").append(words).append("\"\n");
}

void TreeDumper::endElement(Element& element) {
    builder.endElement(element);
    open.pop_back();
}

/// Writes elements that the document has without having their tags.
void TreeDumper::openImplied(Element const* innermost) {
    if (innermost == nullptr) return;
    if (std::find(open.rbegin(), open.rend(), innermost) != open.rend()) return;
    openImplied(innermost->parent);
    write(*innermost);
}

void TreeDumper::write(Element const& element) {
    Style const* const parent = element.parent != nullptr ? element.parent->style : nullptr;
    std::string const style = describeStyle(*element.style, parent);
    out.append(indent()).append(nameOf(element));
    if (!style.empty()) out.append(" { ").append(style).append("}");
    out.append("\n");
    open.push_back(&element);
}

}  // namespace galley::web
